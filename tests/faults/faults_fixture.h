#pragma once

#include "tests/faults/faulted_program.h"
#include "tests/file_bytes.h"
#include "tests/qt_printing.h"

#include <QTemporaryDir>
#include <algorithm>
#include <gtest/gtest.h>
#include <memory>

namespace lanterra {

/// A program with the project "Site.rts" open and edited, in a folder of its own.
class FaultsFixture : public testing::Test {
protected:
    void GivenEditedProject(const QString &home) {
        ASSERT_TRUE(MakePristineFolder(home));
        faulted = std::make_unique<FaultedProgram>(home);
        faulted->OpenAndEdit();
        ASSERT_EQ(faulted->Told(), QString());
    }

    static void Overwrite(const QString &path, const QByteArray &bytes) {
        QFile file(path); // in place, as a fault does it
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    QString Do(const QString &operation) { return Do(operation, *faulted); }

    static QString Do(const QString &name, FaultedProgram &program) {
        const std::vector<Operation> &all = Operations();
        std::find_if(all.begin(), all.end(), [&name](const Operation &each) {
            return each.name == name;
        })->perform(program);
        return program.Told();
    }

    QString Site() const { return faulted->InProjects(QStringLiteral("Site.rts")); }

    QTemporaryDir folder;
    std::unique_ptr<FaultedProgram> faulted;
};

} // namespace lanterra
