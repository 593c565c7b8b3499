#include "platform/process_document_opener.h"
#include "platform/qt_event_queue.h"
#include "support/text_file.h"
#include "tests/fakes/scripted_event_queue.h"
#include "tests/qt_printing.h"
#include "tests/wait_until.h"

#include <QFile>
#include <QTemporaryDir>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace lanterra;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class ProcessDocumentOpenerTest : public testing::Test {
protected:
    QString Script(const QString &text) const {
        QString path = folder.filePath(u"opener"_s);
        WriteFileText(path, u"#!/bin/sh\n"_s + text + u'\n');
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }
    OpenResult Open(EventQueue &queue, const QString &script) {
        return ProcessDocumentOpener(queue, clock, script).OpenWithDefault(u"x"_s);
    }
    QTemporaryDir folder;
    FakeClock clock;
    QtEventQueue qtQueue;
    ScriptedEventQueue jumpingQueue{clock}; ///< hears of no program, and lets the clock jump
};

TEST_F(ProcessDocumentOpenerTest, TellsFromTheExitCodeHowItEnded) {
    const std::pair<QString, OpenResult> scripts[] = {{u"exit 0"_s, OpenResult::Opened},
                                                      {u"exit 3"_s, OpenResult::NoApplication},
                                                      {u"exit 4"_s, OpenResult::Failed},
                                                      {u"kill -9 $$"_s, OpenResult::Failed}};
    for (const auto &[script, result] : scripts)
        EXPECT_EQ(Open(qtQueue, Script(script)), result) << script.toStdString();
    EXPECT_EQ(Open(qtQueue, folder.filePath(u"none"_s)), OpenResult::Failed);
}

TEST_F(ProcessDocumentOpenerTest, PassesArgumentsWithoutAShell) {
    // Only the desktop's 3 means that there is no application.
    const QString script = Script(u"printf '%s|' \"$@\" > \"$0.out\"; exit 3\n"_s);
    ProcessDocumentOpener opener(qtQueue, clock);
    EXPECT_EQ(opener.Start(script, {u"--new"_s, u"/a b;$(id) 'x'.htm"_s}), OpenResult::Failed);
    EXPECT_EQ(ReadFileText(script + u".out"_s), u"--new|/a b;$(id) 'x'.htm|"_s);
}

TEST_F(ProcessDocumentOpenerTest, AProgramThatStillRunsAfterTwoSecondsHasWorkedAndRunsOn) {
    const QByteArray gatePath = QFile::encodeName(folder.filePath(u"gate"_s));
    mkfifo(gatePath.constData(), 0600);
    const int gate = open(gatePath.constData(), O_RDWR | O_CLOEXEC); // both ends of the pipe
    // Behind the gate it writes down that it got so far and leads a session of its own.
    const QString script =
        Script(u"read line < \"${0%/*}/gate\"\ncut -d ' ' -f 1,6 /proc/$$/stat > \"$0.out\""_s);
    for (const bool closing : {false, true}) { // the end of the program is not held up
        if (closing)
            jumpingQueue.Close();
        QFile::remove(script + u".out"_s);
        EXPECT_EQ(Open(jumpingQueue, script), OpenResult::Opened);
        EXPECT_EQ(clock.Elapsed(), 2s);
        EXPECT_FALSE(QFile::exists(script + u".out"_s));
        EXPECT_EQ(write(gate, "\n", 1), 1);
        EXPECT_TRUE(WaitUntil([] {
            siginfo_t ended{};
            return waitid(P_ALL, 0, &ended, WEXITED | WNOHANG | WNOWAIT) != 0; // there is no program
        }));
        const QStringList ids = ReadFileText(script + u".out"_s).trimmed().split(u' ');
        EXPECT_EQ(ids.value(0), ids.value(1, u"none"_s));
    }
    close(gate);
}

} // namespace
