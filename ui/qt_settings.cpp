// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt_settings.h"

#include "ui/palette.h"

namespace plasmos {

namespace {

QString KeyOf(std::string_view section, std::string_view key) {
    return ToQt(section) + QLatin1Char('/') + ToQt(key);
}

}  // namespace

QtSettings::QtSettings() : settings_(QStringLiteral("QX"), QStringLiteral("Plasmos")) {}

QtSettings::QtSettings(const QString& iniFile) : settings_(iniFile, QSettings::IniFormat) {}

// Lists come from texts with commas that somebody wrote into the file by hand.
std::string QtSettings::Get(std::string_view section, std::string_view key, std::string_view fallback) const {
    const QVariant value = settings_.value(KeyOf(section, key));
    if (!value.isValid()) {
        return std::string(fallback);
    }
    if (value.typeId() == QMetaType::QStringList) {
        return value.toStringList().join(QStringLiteral(", ")).toStdString();
    }
    return value.toString().toStdString();
}

bool QtSettings::Save(std::string_view section, std::string_view key, std::string_view value) {
    if (!settings_.isWritable()) {
        return false;
    }
    const QString name = KeyOf(section, key);
    const QVariant before = settings_.value(name);
    settings_.setValue(name, ToQt(value));
    settings_.sync();
    if (settings_.status() == QSettings::NoError) {
        return true;
    }
    before.isValid() ? settings_.setValue(name, before) : settings_.remove(name);
    return false;
}

std::string QtSettings::Where() const {
    return settings_.fileName().toStdString();
}

}  // namespace plasmos
