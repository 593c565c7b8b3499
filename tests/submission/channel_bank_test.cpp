#include "tests/submission/run_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class ChannelBankTest : public RunFixture {
protected:
    SubmissionChannel &Channel(int number) { return program->channels.Channel(number); }
};

TEST_F(ChannelBankTest, FillsTheChannelsInOrderAndThenTheLowestThatHasEnded) {
    GivenSites(Numbered(7));
    WhenWaiting([&] {
        for (int channel = 1; channel <= channelCount; ++channel) {
            EXPECT_EQ(Site(channel), u"Site %1."_s.arg(channel));
            EXPECT_EQ(Status(channel), u"finding site..."_s);
            EXPECT_EQ(Picture(channel), ButtonPicture::Dispatched);
        }
        Answer(4, "200 OK");
        Answer(2, "200 OK");
    });
    WhenWaiting([&] {
        EXPECT_EQ(Site(2) + Site(4), u"Site 6.Site 7."_s);
        for (int channel : {1, 2, 3, 4, 5})
            Answer(channel, "200 OK");
    });
    PressSubmit();
    EXPECT_EQ(Successful().first(), u"Site 4."_s);
    EXPECT_EQ(Successful().size(), 7);
}

TEST_F(ChannelBankTest, ShowsWhatAChannelDoes) {
    GivenSites(Numbered(1));
    WhenWaiting([&] {
        emit Client(1).Connected();
        EXPECT_EQ(Status(1), u"connected"_s);
        Client(1).Receive("HTTP/1.1 200 OK\r\n\r\n");
        emit Client(1).Done();
        EXPECT_EQ(Status(1), u"done!"_s);
        EXPECT_EQ(Picture(1), ButtonPicture::Connected);
    });
    PressSubmit();
    EXPECT_EQ(Picture(1), ButtonPicture::Idle);
    EXPECT_EQ(Site(1), u"Site 1."_s);
    WhenWaiting([&] {
        Answer(1, "503 Busy");
        EXPECT_EQ(Status(1), u"connected"_s); // a failure writes no word
        EXPECT_EQ(Picture(1), ButtonPicture::Idle);
    });
    PressSubmit();
    WhenWaiting([&] { Fail(1); });
    PressSubmit();
    EXPECT_TRUE(ReadPage(u"Site 1."_s).contains(u"Busy server or out of use."_s));
    EXPECT_EQ(program->channels.lastErrorSite, 0);
}

TEST_F(ChannelBankTest, JudgesByTheStatusClassAlone) {
    GivenSites(Numbered(1));
    const std::pair<QByteArray, bool> answers[] = {
        {"200 OK", true},     {"204 No Content", true}, {"302 Found", true},   {"304 Not Modified", true},
        {"400 Bad", false},   {"499 Odd", false},       {"500 Broken", false}, {"599 Odd", false},
        {"600 Beyond", true}, {"200 Not Found", true}};
    for (const auto &[status, good] : answers) {
        SubmitAnswered(status);
        EXPECT_EQ(Successful().size(), good ? 1 : 0) << status.toStdString();
        EXPECT_EQ(Failed().size(), good ? 0 : 1) << status.toStdString();
    }
}

TEST_F(ChannelBankTest, ARedirectionIsASuccessWithAPageOfOurOwn) {
    GivenSites(Numbered(2));
    WhenWaiting([&] {
        Answer(1, "302 Found", "Location: http://next.example/a?b=c\r\nLocation: http://second.example/\r\n");
        Answer(2, "302 Found");
    });
    PressSubmit();
    EXPECT_EQ(Successful().size(), 2);
    const QString page =
        u"<html><head><title>Your entry has been submitted! </title></head><body bgcolor=#FFFFFF "
        u"text=#000000>"
        u"<center><h1>Your entry has been submitted! </h1><a href=%1>%2</a></body></html>\r\n"_s;
    EXPECT_EQ(ReadPage(u"Site 1."_s), page.arg(u"http://next.example/a?b=c"_s, u"Site 1."_s));
    EXPECT_EQ(ReadPage(u"Site 2."_s), page.arg(QString(), u"Site 2."_s));
}

TEST_F(ChannelBankTest, TheWatchdogCutsOffAtTheLimitCountedFromDispatch) {
    GivenSites(Numbered(1));
    Record().txtLimit.SetText(u"20"_s);
    clock.SetTime(QTime(12, 0, 0, 600)); // counts as the full second behind it
    WhenWaiting([&] {
        clock.Advance(std::chrono::milliseconds(20'400));
        program->channels.CheckChannelTimeouts();
        EXPECT_EQ(Result().FailedCount(), 0); // reached is not past
        emit Client(1).Data("HTTP/1.1 200 OK\r\n\r\nstill coming");
        clock.Advance(std::chrono::milliseconds(100));
    });
    PressSubmit();
    EXPECT_EQ(Client(1).aborts, 1);
    EXPECT_EQ(Outcome(0).reason, u"No answer within 20 s"_s);
    emit Client(1).Done(); // late: the channel is closed
    EXPECT_EQ(Result().SuccessfulCount(), 0);

    const QTime before = clock.Now().time();
    PressSubmit(); // nobody answers, so each wait passes the time that it was given
    EXPECT_EQ(Failed().size(), 1);
    EXPECT_NEAR(before.msecsTo(clock.Now().time()), 20'000, 200);
}

TEST_F(ChannelBankTest, ALateDoneCountsForTheNextSiteOfTheChannel) {
    GivenSites(Numbered(6));
    // All five time out, and channel 1 takes the sixth site.
    WhenWaiting([&] { clock.Advance(std::chrono::seconds(50)); });
    WhenWaiting([&] { emit Client(1).Done(); });
    PressSubmit();
    EXPECT_EQ(Result().FailedCount(), 5);
    EXPECT_EQ(Successful(), QStringList{u"Site 6."_s});
}

TEST_F(ChannelBankTest, DoneWithoutDataIsJudgedByTheChannelsLastHeader) {
    GivenSites(Numbered(1));
    for (const bool good : {true, false}) {
        NoSiteAnswers();
        WhenWaiting([&] { emit Client(1).Done(); });
        PressSubmit();
        EXPECT_EQ(Successful().size(), good ? 1 : 0); // there is no header yet after the start of the program
        EXPECT_EQ(Outcome(0).status, std::nullopt);
        SubmitAnswered("404 Not Found");
    }
}

TEST_F(ChannelBankTest, ASiteWhoseNameIsPartOfAFailedOneIsSwallowed) {
    GivenSites({u"AltaVista"_s, u"Alta"_s});
    WhenWaiting([&] {
        Fail(1);
        Fail(2);
        EXPECT_TRUE(Channel(2).Ended() && !Channel(2).Free()); // only the watchdog frees it
    });
    PressSubmit();
    EXPECT_EQ(Failed(), QStringList{u"AltaVista"_s});
    EXPECT_EQ(Client(2).aborts, 1);
    EXPECT_EQ(Outcome(1).verdict, Verdict::None);
    EXPECT_EQ(Outcome(1).reason, u"Connection refused"_s);
    List1().SetSelected(0, false); // a failure of an earlier run swallows none
    SubmitAnswered("404 Not Found");
    EXPECT_EQ(Failed(), QStringList{u"Alta"_s});
}

TEST_F(ChannelBankTest, OnlyTheThirdChannelScansTheHeaderAndYieldsInIt) {
    GivenSites(Numbered(3));
    const auto yieldsOfHeader = [&](int channel) {
        const int before = queue.Yields();
        Client(channel).Receive("HTTP/1.1 200 OK\r\n\r\n");
        return queue.Yields() - before;
    };
    WhenWaiting([&] {
        EXPECT_EQ(yieldsOfHeader(2), 0);
        EXPECT_EQ(yieldsOfHeader(3), 17);
        EXPECT_EQ(yieldsOfHeader(3), 0); // only the first block of an answer is looked at
        Client(1).Receive("HTTP/1.1 200 OK\r\n\r\n");
        emit Client(1).Data("HTTP/1.1 404 Not Found\r\n\r\n");
        for (int channel : {1, 2, 3})
            emit Client(channel).Done();
    });
    PressSubmit();
    EXPECT_EQ(Successful().size(), 3);
}

TEST_F(ChannelBankTest, DisableLosesTheSitesBehindTheLowestEndedChannel) {
    GivenSites(Numbered(8));
    WhenWaiting([&] {
        Run().mnuDisabled_Click(1); // its request under way is finished
        Answer(1, "200 OK");
    });
    WhenWaiting([&] {
        for (int channel : {2, 3, 4, 5})
            Answer(channel, "200 OK");
    });
    PressSubmit();
    EXPECT_EQ(Client(1).connects, 1);
    EXPECT_EQ(Result().SuccessfulCount(), 5);
    EXPECT_EQ(Form().Label28.Caption() + Form().Label29.Caption(), u"85"_s);
    EXPECT_EQ(Outcome(7).verdict, Verdict::None);
    EXPECT_EQ(Outcome(7).reason, u"not sent, because the channel that was next is disabled"_s);

    SubmitAnswered("200 OK"); // the state doesn't carry over, the mark does
    EXPECT_EQ(Result().SuccessfulCount(), 8);
    EXPECT_EQ(Form().channels[0].disableMark.Value(), 1);
    Run().mnuDisabled_Click(1);
    EXPECT_TRUE(Channel(1).Disabled());
    EXPECT_EQ(Form().channels[0].disableMark.Value(), 0);
}

TEST_F(ChannelBankTest, AbortAsksTheClientAndChangesNothingElse) {
    GivenSites(Numbered(1));
    Run().mnuAbort_Click(3);
    EXPECT_EQ(Client(3).errorAborts, 1);
    WhenWaiting([&] {
        Run().kan_Click(1);
        Run().mnuAbort_Click(1);
        EXPECT_FALSE(Channel(1).Free());
        Fail(1); // what the real client raises at the next turn
    });
    PressSubmit();
    EXPECT_EQ(Failed().size(), 1);
    Run().kan_Click(1); // no popup while idle
    EXPECT_EQ(forms.poppedUp, (std::vector{PopupMenu::Submit, PopupMenu::Status}));
}

TEST_F(ChannelBankTest, AMethodOfNeitherKindGetsTheAddressAlone) {
    GivenMaster(SiteDatabaseBuilder().Site(u"Put"_s).Method(u"put"_s).Action(u"http://a.example:81/add"_s));
    GivenOpenProject();
    SubmitAnswered("200 OK");
    EXPECT_EQ(Client(1).Target() + Client(1).sentMethod, u"http://a.example:81/addGET"_s);
    EXPECT_FALSE(Client(1).RequestHeaders().contains("url="));
}

} // namespace
