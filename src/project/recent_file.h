#pragma once

#include "ports/settings_store.h"

#include <QObject>
#include <QStringList>

namespace lanterra {

/// The list of recently opened projects, newest first, five at most. It keeps itself in a section of its own
/// of the settings store, keys File1 to File5.
class RecentFile : public QObject {
    Q_OBJECT

public:
    static constexpr int limit = 5;

    /// The store must outlive this.
    explicit RecentFile(SettingsStore &settingsStore) : store(settingsStore) {}

    /// Reads the stored list.
    void Load();

    /// Moves the name to the top and stores the list. One that can't be stored counts until the program ends.
    void Add(const QString &fileName);

    /// The name at index 1 to 5, empty when there is none.
    QString File(int index) const { return files.value(index - 1); }

signals:
    /// Five names, the empty ones behind the others.
    void Changed(const QStringList &files);

private:
    void Announce();

    SettingsStore &store;
    QStringList files; ///< without empty names
};

} // namespace lanterra
