// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSettings>

#include "model/settings_store.h"

namespace plasmos {

/// The settings in the user's own store, or in an ini file.
class QtSettings : public SettingsStore {
public:
    QtSettings();
    explicit QtSettings(const QString& iniFile);

    std::string Get(std::string_view section, std::string_view key, std::string_view fallback) const override;
    bool Save(std::string_view section, std::string_view key, std::string_view value) override;
    std::string Where() const override;

private:
    QSettings settings_;
};

}  // namespace plasmos
