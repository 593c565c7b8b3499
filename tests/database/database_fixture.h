#pragma once

#include "database/data_control.h"
#include "database/database_files.h"
#include "database/maintenance.h"
#include "database/walk_transaction.h"
#include "support/whole_file.h"
#include "tests/file_bytes.h"
#include "tests/qt_printing.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace lanterra {

/// A folder with a database of one table of sites, and two data controls on it.
class DatabaseFixture : public testing::Test {
protected:
    DatabaseFixture() { CreateDatabase(Path(), {createSites}); }

    QString Path(const QString &name = QStringLiteral("sites.rts")) const { return folder.filePath(name); }

    bool Bind(DataControl &bound, const QString &table = QStringLiteral("Sites")) {
        bound.SetDatabaseName(Path());
        bound.SetRecordSource(table);
        return bound.Refresh();
    }

    /// Leaves a page of a file without sense, behind its header.
    static QByteArray Damage(const QString &path, qsizetype place) {
        QByteArray damaged = BytesOf(path).replace(place, 4096, QByteArray(4096, '\x55'));
        WriteWholeFile(path, damaged);
        return damaged;
    }

    static bool Add(DataControl &bound, const QString &name) {
        return bound.AddNew() && bound.SetText(nameField, name) && bound.Update();
    }

    void GivenRows(const QStringList &names) {
        Bind(control);
        const WalkTransaction walk(control);
        for (const QString &name : names)
            Add(control, name);
        control.MoveFirst();
    }

    static QStringList Names(DataControl &bound) {
        QStringList names;
        for (bool here = bound.MoveFirst(); here; here = bound.MoveNext())
            names.append(bound.Text(nameField));
        return names;
    }

    /// What a stranger to this process' rows reads from the file.
    QStringList StoredNames() {
        DatabaseFiles freshFiles;
        DataControl fresh(freshFiles, DataControl::Access::ReadOnly);
        Bind(fresh);
        return Names(fresh);
    }

    /// The names in the folder, for a look at what was left behind.
    QStringList FilesLeft() const { return QDir(folder.path()).entryList(QDir::Files, QDir::Name); }

    static inline const QString nameField = QStringLiteral("Name");
    static inline const QString createSites = QStringLiteral(
        "CREATE TABLE \"Sites\" (\"Name\" VARCHAR(8), \"Number of visits\" INTEGER, \"Note\" TEXT)");

    QTemporaryDir folder;
    DatabaseFiles files;
    DataControl control{files, DataControl::Access::ReadWrite};
    DataControl second{files, DataControl::Access::ReadWrite};
};

} // namespace lanterra
