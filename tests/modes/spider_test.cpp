#include "modes/spider.h"
#include "tests/fakes/fake_doors.h"
#include "tests/file_bytes.h"
#include "tests/qt_printing.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class SpiderTest : public testing::Test, protected FakeDoors {
protected:
    SpiderTest() {
        QObject::connect(&spider, &Spider::TaskProgress, &spider,
                         [this](int, const QString &, bool done, int task) {
                             EXPECT_TRUE(spider.Running());
                             if (done)
                                 ended << task;
                         });
        spider.SetTimeOut(10);
    }

    void GivenTasks(int count) {
        for (int i = 0; i < count; ++i) {
            spider.NewTask();
            spider.SetTaskItem(u"URL"_s, u"http://e%1.example/add?u=x?y"_s.arg(i));
            spider.SetTaskItem(u"Method"_s, i % 2 == 1 ? u"POST"_s : u"GET"_s);
            spider.SetTaskItem(u"EngineNo"_s, QString::number(10 + i));
            spider.SetTaskItem(u"Referrer"_s, u"http://r.example/\r\nX: y"_s);
            spider.SetTaskItem(u"Task"_s, u"task %1 <b>"_s.arg(i));
            spider.AddTask();
        }
        spider.Start(folder.path() + u'/');
    }
    void Answer(std::size_t client, const QByteArray &status = "200 OK") {
        emit clients[client]->Connected();
        clients[client]->Receive("HTTP/1.1 " + status + "\r\n\r\n", "hello");
        emit clients[client]->Done();
        emit clients[client]->Closing();
    }
    QString Status(int task) {
        spider.SetCurrentTask(task);
        return spider.TaskItem(u"status"_s);
    }
    QByteArray Page(int task) {
        spider.SetCurrentTask(task);
        return BytesOf(spider.TaskItem(u"FileName"_s));
    }

    QTemporaryDir folder;
    Spider spider{queue, clock, All().makeClient};
    QList<int> ended;
};

TEST_F(SpiderTest, SendsTheWholeRequestOfEachMethod) {
    GivenTasks(2);
    Answer(0);
    Answer(1, "302 Found");
    EXPECT_EQ(clients[0]->Target(), u"http://e0.example/add?u=x?y"_s);
    EXPECT_EQ(clients[0]->sentMethod, u"GET"_s);
    EXPECT_EQ(clients[0]->RequestHeaders(), "Host: e0.example\r\nReferer: http://r.example/%0D%0AX: y\r\n");
    EXPECT_EQ(clients[1]->Target(), u"http://e1.example/add"_s);
    EXPECT_EQ(clients[1]->sentMethod, u"POST"_s);
    EXPECT_TRUE(
        clients[1]->RequestHeaders().endsWith("\r\nContent-Type: application/x-www-form-urlencoded\r\n"
                                              "Content-Length: 5\r\n\r\nu=x?y"));
    EXPECT_EQ(Status(0) + Status(1), u"SuccessSuccess"_s);
    EXPECT_EQ(Page(1), "hello");
    EXPECT_TRUE(QFile::exists(folder.filePath(u"engine11.htm"_s)));
    EXPECT_FALSE(spider.Running());
}

TEST_F(SpiderTest, BeginsTheNextTaskWhereOneOfFiveHasEnded) {
    GivenTasks(7);
    EXPECT_EQ(clients[4]->connects, 1);
    Answer(2);
    emit clients[4]->Error(61);
    EXPECT_EQ(clients[2]->Target(), u"http://e5.example/add"_s);
    EXPECT_EQ(clients[4]->Target(), u"http://e6.example/add?u=x?y"_s);
    EXPECT_EQ(ended, (QList<int>{2, 4}));
    EXPECT_EQ(Status(4), u"Connection refused"_s);
    EXPECT_TRUE(Page(4).contains("task 4 &lt;b&gt;</p>\n<p>Connection refused."));
    EXPECT_TRUE(spider.Running());
}

TEST_F(SpiderTest, EachTaskHasItsOwnTimeLimit) {
    GivenTasks(6);
    clock.Advance(std::chrono::seconds(4));
    Answer(0);
    spider.WaitForTasks(); // which sleeps until the first limit
    EXPECT_EQ(ended, (QList<int>{0, 1, 2, 3, 4}));
    EXPECT_EQ(Status(1), u"No answer within 10 s"_s);
    EXPECT_EQ(clients[1]->aborts, 1);
    EXPECT_TRUE(spider.Running());
    spider.WaitForTasks();
    EXPECT_EQ(clock.Elapsed(), std::chrono::seconds(14));
    EXPECT_FALSE(spider.Running());
}

TEST_F(SpiderTest, StopLeavesUnfinishedTasksWithoutStatusAndTheNextStartBeginsAnew) {
    GivenTasks(6);
    Answer(0);
    spider.Stop();
    EXPECT_FALSE(spider.Running());
    EXPECT_EQ(Status(1), QString());
    EXPECT_EQ(Page(0), "hello");
    EXPECT_TRUE(Page(1).contains("The submission was canceled."));
    EXPECT_EQ(clients[3]->aborts, 1);
    spider.ClearTasks();
    GivenTasks(1);
    EXPECT_EQ(spider.TaskCount(), 1);
    EXPECT_EQ(clients[0]->Target(), u"http://e0.example/add?u=x?y"_s);
    Answer(0);
    EXPECT_EQ(ended, (QList<int>{0, 0}));
}

} // namespace
