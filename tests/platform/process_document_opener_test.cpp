#include "platform/process_document_opener.h"
#include "platform/qt_event_queue.h"
#include "support/text_file.h"
#include "tests/fakes/fake_clock.h"
#include "tests/qt_printing.h"

#include <QDeadlineTimer>
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

/// Qt's queue, which can let the clock jump instead of waiting.
class JumpingQueue final : public EventQueue {
public:
    explicit JumpingQueue(FakeClock &fakeClock) : clock(fakeClock) {}
    void Yield() override { queue.Yield(); }
    void Wait(std::chrono::milliseconds atMost) override {
        ++waits;
        if (jumping)
            clock.Advance(atMost);
        else
            queue.Wait(10s);
    }
    bool Closing() const override { return closing; }

    bool jumping = false;
    bool closing = false;
    int waits = 0;

private:
    QtEventQueue queue;
    FakeClock &clock;
};

class ProcessDocumentOpenerTest : public testing::Test {
protected:
    ProcessDocumentOpenerTest() {
        const QByteArray path = QFile::encodeName(folder.filePath(u"gate"_s));
        mkfifo(path.constData(), 0600);
        gate = open(path.constData(), O_RDWR | O_CLOEXEC);
    }
    ~ProcessDocumentOpenerTest() override { close(gate); }
    Q_DISABLE_COPY_MOVE(ProcessDocumentOpenerTest)

    QString Script(const QString &text) const {
        QString path = folder.filePath(u"opener"_s);
        WriteFileText(path, u"#!/bin/sh\n"_s + text + u'\n');
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }
    OpenResult Open(const QString &script) {
        return ProcessDocumentOpener(queue, clock, Script(script)).OpenWithDefault(u"x"_s);
    }

    /// Lets the one program that waits at the gate go on, and waits for its end.
    void OpenGate() {
        queue.jumping = false;
        ASSERT_EQ(write(gate, "\n", 1), 1);
        siginfo_t ended{};
        for (const QDeadlineTimer deadline(10s); !deadline.hasExpired();) {
            if (waitid(P_ALL, 0, &ended, WEXITED | WNOHANG | WNOWAIT) != 0)
                break; // there is none
            queue.Wait(10s);
        }
        queue.Yield();
    }

    const QString waitAtGate = u"read line < \"${0%/*}/gate\"\n"_s;
    QTemporaryDir folder;
    int gate = -1; ///< both ends of a pipe
    FakeClock clock;
    JumpingQueue queue{clock};
};

TEST_F(ProcessDocumentOpenerTest, TellsFromTheExitCodeHowItEnded) {
    const std::pair<QString, OpenResult> scripts[] = {{u"exit 0"_s, OpenResult::Opened},
                                                      {u"exit 3"_s, OpenResult::NoApplication},
                                                      {u"exit 4"_s, OpenResult::Failed},
                                                      {u"kill -9 $$"_s, OpenResult::Failed}};
    for (const auto &[script, result] : scripts)
        EXPECT_EQ(Open(script), result) << script.toStdString();
    ProcessDocumentOpener opener(queue, clock, folder.filePath(u"none"_s));
    EXPECT_EQ(opener.OpenWithDefault(u"x"_s), OpenResult::Failed);
    // Only the desktop's 3 has that meaning.
    EXPECT_EQ(opener.Start(Script(u"exit 3"_s), {}), OpenResult::Failed);
}

TEST_F(ProcessDocumentOpenerTest, PassesArgumentsWithoutAShell) {
    const QString script = Script(u"printf '%s|' \"$@\" > \"$0.out\"\n"_s);
    ProcessDocumentOpener opener(queue, clock);
    EXPECT_EQ(opener.Start(script, {u"--new"_s, u"/a b;$(id) 'x'.htm"_s}), OpenResult::Opened);
    EXPECT_EQ(ReadFileText(script + u".out"_s), u"--new|/a b;$(id) 'x'.htm|"_s);
}

TEST_F(ProcessDocumentOpenerTest, AProgramThatStillRunsAfterTwoSecondsHasWorkedAndRunsOn) {
    queue.jumping = true;
    // Behind the gate it writes down that it got so far and leads a session of its own.
    EXPECT_EQ(Open(waitAtGate + u"cut -d ' ' -f 1,6 /proc/$$/stat > \"$0.out\""_s), OpenResult::Opened);
    EXPECT_EQ(clock.Elapsed(), 2s);
    const QString out = folder.filePath(u"opener.out"_s);
    EXPECT_FALSE(QFile::exists(out));
    OpenGate();
    const QStringList ids = ReadFileText(out).trimmed().split(u' ');
    EXPECT_EQ(ids.value(0), ids.value(1, u"none"_s));

    queue.closing = true; // the end of the program is not held up
    queue.waits = 0;
    EXPECT_EQ(Open(waitAtGate), OpenResult::Opened);
    EXPECT_EQ(queue.waits, 0);
    OpenGate();
}
} // namespace
