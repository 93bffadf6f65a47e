// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/app/qt_settings.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>
#include <cerrno>
#include <utility>

#include "files/disk_file.h"
#include "files/text.h"
#include "ui/look/palette.h"

namespace plasmos {

namespace {

/// More than settings can be; reading so much would keep the person waiting.
constexpr qint64 MostBytes = 1 << 20;

QString KeyOf(std::string_view section, std::string_view key) {
    return ToQt(section) + QLatin1Char('/') + ToQt(key);
}

/// The file of the user's own store, by its path alone, so that no other program's settings are looked
/// into; empty where the platform has something else than a file.
QString OwnFile() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/QX/Plasmos.conf");
#else
    return {};
#endif
}

}  // namespace

QtSettings::QtSettings() : file_(OwnFile()) {}

QtSettings::QtSettings(QString iniFile) : file_(std::move(iniFile)) {}

std::string QtSettings::Where() const {
    return file_.isEmpty() ? "the user's settings" : file_.toStdString();
}

std::string QtSettings::Fault() const {
    if (file_.isEmpty()) {
        return {};
    }
    // The store is locked by a file beside it while it is written.
    for (const char* end : {"", ".lock"}) {
        int reason = 0;
        const std::string path = Where() + end;
        if (!OpenDiskFile(path, OpenFor::Reading, reason).IsOpen() && reason != ENOENT) {
            return Concat("The settings are not used: ", path, " (", ReasonText(reason), ")");
        }
    }
    const bool small = QFileInfo(file_).size() <= MostBytes;
    return small ? std::string() : Concat("The settings are not used: ", Where(), " (larger than settings can be)");
}

// Whoever saves has the lock; drafts that lie there while nobody has it are nobody's. They end in six letters at
// random, large and small; a name that somebody has given, such as "backup" or "Sample", is left alone.
void QtSettings::RemoveAbandonedDrafts() const {
    if (file_.isEmpty() || !Fault().empty()) {
        return;
    }
    const QFileInfo store(file_);
    QDir folder = store.dir();
    const QString drafts = store.fileName() + QStringLiteral(".??????");
    const QRegularExpression letters(QStringLiteral("\\.(?=.*[a-z])(?=[A-Za-z]+[A-Z])[A-Za-z]{6}$"));
    const QStringList found = folder.entryList({drafts}, QDir::Files).filter(letters);
    QLockFile lock(file_ + QStringLiteral(".lock"));
    if (found.isEmpty() || !lock.tryLock(0)) {
        return;
    }
    for (const QString& draft : found) {
        folder.remove(draft);
    }
}

std::unique_ptr<QSettings> QtSettings::Open() const {
    if (!Fault().empty()) {
        return nullptr;
    }
    const auto open = [this] {
        return file_.isEmpty() ? std::make_unique<QSettings>(QStringLiteral("QX"), QStringLiteral("Plasmos"))
                               : std::make_unique<QSettings>(file_, QSettings::IniFormat);
    };
    auto store = open();
    // A damaged line is told once, when it is read; what the next one tells are troubles of its own.
    store->allKeys();
    return store->status() == QSettings::FormatError ? open() : std::move(store);
}

// Lists come from texts with commas that somebody wrote into the file by hand.
std::string QtSettings::Get(std::string_view section, std::string_view key, std::string_view fallback) const {
    const auto store = Open();
    const QVariant value = store ? store->value(KeyOf(section, key)) : QVariant();
    if (!value.isValid()) {
        return std::string(fallback);
    }
    if (value.typeId() == QMetaType::QStringList) {
        return value.toStringList().join(QStringLiteral(", ")).toStdString();
    }
    return value.toString().toStdString();
}

bool QtSettings::Save(std::string_view section, std::string_view key, std::string_view value) {
    const auto store = Open();
    if (!store || !store->isWritable()) {
        return false;
    }
    const QString name = KeyOf(section, key);
    const QVariant before = store->value(name);
    store->setValue(name, ToQt(value));
    store->sync();
    if (store->status() == QSettings::NoError) {
        return true;
    }
    before.isValid() ? store->setValue(name, before) : store->remove(name);
    return false;
}

}  // namespace plasmos
