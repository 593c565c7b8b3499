#pragma once

#include "tests/fakes/site_database_builder.h"
#include "tests/platform/raw_server.h"
#include "tests/qt_printing.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace lanterra {

/// What a command left behind.
struct CommandResult {
    int exitCode = -1; ///< -1 if a signal ended it
    QByteArray output;
    QString errors;

    QJsonObject Json() const { return QJsonDocument::fromJson(output).object(); }
    QString Text() const { return QString::fromUtf8(output); }
};

/// Runs the program from outside, in folders of its own.
class CliFixture : public testing::Test {
protected:
    CliFixture() {
        QDir(folder.path()).mkpath(QStringLiteral("home"));
        environment.insert(QStringLiteral("HOME"), folder.path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder.filePath(QStringLiteral("config")));
        environment.insert(QStringLiteral("LANTERRA_HOME"), folder.filePath(QStringLiteral("home")));
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        environment.remove(QStringLiteral("NO_COLOR"));
    }

    QString Path(const QString &name) const { return folder.filePath(name); }

    void WriteFile(const QString &name, const QByteArray &bytes) const {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray ReadFile(const QString &name) const {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// A command under way, in the temporary folder.
    std::unique_ptr<QProcess> Start(const QStringList &arguments) const {
        auto process = std::make_unique<QProcess>();
        process->setProgram(QStringLiteral(LANTERRA_CLI));
        process->setArguments(arguments);
        Prepare(*process);
        process->start();
        return process;
    }

    void Prepare(QProcess &process) const {
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        process.setChildProcessModifier(
            [] { signal(SIGINT, SIG_DFL); }); // a test in the background ignores it
    }

    CommandResult Run(const QStringList &arguments) const {
        const std::unique_ptr<QProcess> process = Start(arguments);
        return Finish(*process);
    }

    /// Waits for the end while the servers of the test go on.
    static CommandResult Finish(QProcess &process) {
        EXPECT_TRUE(WaitUntil([&] { return process.state() == QProcess::NotRunning; }));
        const bool byItself =
            process.exitStatus() == QProcess::NormalExit && process.error() == QProcess::UnknownError;
        return {byItself ? process.exitCode() : -1, process.readAllStandardOutput(),
                QString::fromUtf8(process.readAllStandardError())};
    }

    static bool WaitUntil(const std::function<bool()> &condition) {
        QTimer wake; // so that a wait for events comes to its deadline
        wake.start(std::chrono::milliseconds(100));
        const QDeadlineTimer deadline(std::chrono::seconds(20));
        while (!condition() && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return condition();
    }

    /// Builds the master by the command itself.
    void GivenMaster(const SiteDatabaseBuilder &sites) {
        WriteFile(QStringLiteral("sites.json"), SiteSourceText(sites.Source()).toUtf8());
        const CommandResult built = Run({QStringLiteral("sitedb"), QStringLiteral("build"),
                                         QStringLiteral("sites.json"), QStringLiteral("home/ng.dll")});
        ASSERT_EQ(built.exitCode, 0) << built.errors.toStdString();
    }

    /// A project p.rts with all that a run asks for.
    void GivenProject(const QStringList &more = {}) {
        QStringList arguments{QStringLiteral("new"), QStringLiteral("p.rts"),
                              QStringLiteral("txtURL=www.page.example")};
        for (const char *field : {"txtEmail", "txtName1", "txtName2", "txtCompany", "txtStreet", "txtState",
                                  "txtCountry", "txtCity", "txtZip", "txtPhone", "txtTitle", "txtKey1",
                                  "txtKey2", "txtKey3", "txtKey4", "txtKey5", "txtKey6"})
            arguments << QString::fromLatin1(field) + QStringLiteral("=x");
        const CommandResult made = Run(arguments + more);
        ASSERT_EQ(made.exitCode, 0) << made.errors.toStdString();
    }

    QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

} // namespace lanterra
