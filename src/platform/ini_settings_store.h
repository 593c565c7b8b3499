#pragma once

#include "ports/settings_store.h"

#include <map>
#include <optional>
#include <utility>

namespace lanterra {

/// The texts of a settings file by section and key.
using SettingsTexts = std::map<std::pair<QString, QString>, QString>;

/// The settings store as one readable file in INI form, a group for each section. It is read at each Get and
/// replaced whole at each change, so another instance's changes count at once and a full disk leaves the old
/// file. QSettings isn't used for it, because there a full disk puts a cut file in the place of the old one
/// and passes for success; it reads the file all the same.
class IniSettingsStore final : public SettingsStore {
public:
    /// The file need not exist; it and its folder are created by the first change.
    explicit IniSettingsStore(QString settingsFile) : path(std::move(settingsFile)) {}

    /// Lanterra.ini in the user's folder for settings, $XDG_CONFIG_HOME.
    static QString DefaultPath();

    QString Get(const QString &section, const QString &key) const override;
    bool SetAll(const QList<StoredSetting> &texts) override;
    bool DeleteSection(const QString &section) override;

private:
    /// Nothing if there is a file that can't be read.
    std::optional<SettingsTexts> Read() const;
    bool Write(const SettingsTexts &texts) const;

    QString path;
};

} // namespace lanterra
