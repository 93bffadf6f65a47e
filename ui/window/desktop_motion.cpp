// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/desktop_motion.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTimer>
#include <utility>

namespace plasmos {

namespace {

/// No bus is started where the session has none, and one that may not be used is left alone.
bool SessionHasBus() {
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    if (!address.isEmpty()) {
        return !address.startsWith(QLatin1String("autolaunch:")) && !address.startsWith(QLatin1String("disabled:"));
    }
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !folder.isEmpty() && QFileInfo(folder + QStringLiteral("/bus")).isWritable();
}

QDBusMessage Question() {
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
    return question << QStringLiteral("org.gnome.desktop.interface") << QStringLiteral("enable-animations");
}

/// A portal wraps the value once more than it needs.
QVariant Unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

}  // namespace

DesktopMotion::DesktopMotion(QObject* parent, std::function<void(bool moves)> told)
    : QObject(parent), told_(std::move(told)) {
    if (!SessionHasBus()) {
        return;
    }
    QTimer::singleShot(0, this, [this] { Ask(); });
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive) {
            Ask();
        }
    });
}

void DesktopMotion::Ask() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (asking_ || !bus.isConnected()) {
        return;
    }
    asking_ = true;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(Question()), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        asking_ = false;
        Hear(*answer);
        answer->deleteLater();
    });
}

void DesktopMotion::Hear(QDBusPendingCallWatcher& answer) {
    const QDBusPendingReply<QDBusVariant> reply(answer);
    const QVariant moves = reply.isError() ? QVariant() : Unwrapped(reply.value().variant());
    if (moves.typeId() == QMetaType::Bool) {
        told_(moves.toBool());
    }
}

}  // namespace plasmos
