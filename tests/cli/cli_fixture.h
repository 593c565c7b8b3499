#pragma once

#include "tests/fakes/site_database_builder.h"
#include "tests/platform/raw_server.h"
#include "tests/qt_printing.h"
#include "tests/wait_until.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <csignal>
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

    /// A project p.rts with all that a run asks for, made from these sites, which are selected. Replaces an
    /// old one.
    void GivenProject(const SiteDatabaseBuilder &sites, const QStringList &more = {}) {
        ASSERT_TRUE(sites.Write(Path(QStringLiteral("home/ng.dll"))));
        const QString entry = QStringLiteral(
            "new --yes p.rts txtURL=www.page.example txtEmail=x txtName1=x txtName2=x txtCompany=x "
            "txtStreet=x "
            "txtState=x txtCountry=x txtCity=x txtZip=x txtPhone=x txtTitle=x txtKey1=x txtKey2=x txtKey3=x "
            "txtKey4=x txtKey5=x txtKey6=x");
        for (const QStringList &words :
             {entry.split(u' ') + more, QStringLiteral("select p.rts --all").split(u' ')}) {
            const CommandResult result = Run(words);
            ASSERT_EQ(result.exitCode, 0) << result.errors.toStdString();
        }
    }

    QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

} // namespace lanterra
