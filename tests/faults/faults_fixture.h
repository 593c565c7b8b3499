#pragma once

#include "tests/faults/faulted_program.h"
#include "tests/qt_printing.h"

#include <QFile>
#include <QTemporaryDir>
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

    static QByteArray BytesOf(const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void Overwrite(const QString &path, const QByteArray &bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    static const Operation &Named(const QString &name) {
        for (const Operation &operation : Operations()) {
            if (operation.name == name)
                return operation;
        }
        throw std::logic_error("no such operation");
    }

    QString Do(const QString &operation) {
        Named(operation).perform(*faulted);
        return faulted->Told();
    }

    QString Site() const { return faulted->InProjects(QStringLiteral("Site.rts")); }

    QTemporaryDir folder;
    std::unique_ptr<FaultedProgram> faulted;
};

} // namespace lanterra
