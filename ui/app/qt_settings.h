// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <memory>

#include "files/settings_store.h"

class QSettings;

namespace plasmos {

/// The settings in the user's own store, or in an ini file. The store is opened for each use, so that a
/// save that failed stands in no later one's way; a damaged line in it counts as missing.
class QtSettings : public SettingsStore {
public:
    QtSettings();
    explicit QtSettings(QString iniFile);

    std::string Get(std::string_view section, std::string_view key, std::string_view fallback) const override;
    bool Save(std::string_view section, std::string_view key, std::string_view value) override;
    std::string Where() const override;

    /// Why the store is left alone (a pipe, a device or a folder in its place, or more than settings can
    /// be), with its path; empty: it is used. While it is left alone everything counts as missing and
    /// nothing is saved.
    std::string Fault() const;

    /// Removes what programs that were killed in the middle of a save have left beside the store.
    void RemoveAbandonedDrafts() const;

private:
    std::unique_ptr<QSettings> Open() const;

    QString file_;  ///< empty: the platform keeps its settings in no file
};

}  // namespace plasmos
