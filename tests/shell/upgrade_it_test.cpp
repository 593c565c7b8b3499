#include "tests/fakes/program_fixture.h"
#include "tests/wait_until.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class UpgradeItTest : public ProgramFixture {
protected:
    void GivenAddress(const QByteArray &address = "http://maker.example/v") {
        GivenHosts("[Upgrade]\nAddress=" + address + '\n');
        GivenSites({u"Alta"_s});
        List1().SetAllSelected(false);
        QObject::connect(&program->frame, &MainFrame::CloseRequested, [this] { ++closes; });
    }
    void Run() { program->run.cmdStart_Click(); }
    void AskByHand() { program->modes.mnuUpgrade_Click(); }

    /// The client that looks at the version file.
    FakeHttpClient &Looker() {
        return ClientThat([](auto *each) { return each->Target() == u"http://maker.example/v"; });
    }
    void Answer(const QString &text) {
        Looker().SetResponseText(text);
        emit Looker().Done();
    }

    const QString newer = u"Product=Zephyrine Lanterra\r\nVersion=2.15\r\nNote=Quicker."_s;
    const QString news =
        u"Zephyrine Lanterra: Version 2.15 of Zephyrine Lanterra, from the makers of Zephyrine Lanterra, is "
        "available. This is version 2.14. | Quicker."_s;
    const QString failed =
        u"Error: It can't be found out whether there is a newer version of Zephyrine Lanterra. | "_s;
    int closes = 0;
};

TEST_F(UpgradeItTest, ARunChecksUntilACheckHasWorkedAndTellsAtItsEnd) {
    GivenAddress();
    queue.AtYield(1, [this] { emit Looker().Error(61); }); // in silence
    Run();
    EXPECT_FALSE(program->UpgradeIt1.CheckStarted);
    EXPECT_EQ(dialogs.Told(), QString());
    queue.AtYield(1, [this] { Answer(newer); });
    Run();
    EXPECT_EQ(dialogs.Told(), news);
    Run();
    EXPECT_EQ(Looker().connects, 2);
    EXPECT_EQ(dialogs.Told(), QString());
    program->UpgradeIt1.CheckStarted = false;
    program->frmSettings.check_for_program_upgrade.SetValue(0);
    Run();
    EXPECT_EQ(Looker().connects, 2) << "switched off";
}

TEST_F(UpgradeItTest, AUserIsToldWhateverComesOfIt) {
    GivenAddress();
    const QString page = u"Product=Zephyrine Lanterra\nVersion=%1\nPage=javascript:alert(1)"_s;
    const QString newest = u"Zephyrine Lanterra: Version 2.14 of Zephyrine Lanterra is the newest one."_s;
    const std::pair<QString, QString> answers[] = {
        {page.arg(u"2.14"_s), newest},
        {page.arg(u"2.9"_s), newest},
        {newer, news},
        {u"Product=Other\nVersion=9"_s, failed + u"The answer is no list of versions."_s},
        {u"Product=Zephyrine Lanterra\nVersion=soon"_s, failed + u"The answer is no list of versions."_s}};
    for (const auto &[answer, told] : answers) {
        AskByHand();
        Answer(answer);
        EXPECT_EQ(dialogs.Told(), told);
    }
    AskByHand();
    Looker().bodyBytes = 65'537;
    emit Looker().Data("HTTP/1.1 200 OK");
    EXPECT_EQ(dialogs.Told(), failed + u"The answer is no list of versions."_s);
    AskByHand();
    emit Looker().Error(61);
    EXPECT_EQ(dialogs.Told(), failed + u"Connection refused."_s);
    EXPECT_TRUE(documents.opened.empty());
}

TEST_F(UpgradeItTest, ThePageIsOpenedAndTheProgramEndsIfTheUserWantsIt) {
    GivenAddress();
    for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
        EXPECT_EQ(closes, 0);
        EXPECT_TRUE(documents.opened.empty());
        dialogs.answers.push_back(answer);
        AskByHand();
        Answer(newer + u"\nPage = https://maker.example/2.15"_s);
    }
    EXPECT_EQ(dialogs.boxes[0].defaultAnswer, BoxAnswer::No);
    EXPECT_EQ(documents.Opened(), u"|https://maker.example/2.15"_s);
    EXPECT_EQ(closes, 1);
}

TEST_F(UpgradeItTest, WithoutAnAddressNothingIsAskedForAndOnlyTheUserIsToldSo) {
    GivenAddress("");
    Run();
    EXPECT_EQ(dialogs.Told(), QString());
    AskByHand();
    EXPECT_EQ(dialogs.Told(), failed + u"No address is known where newer versions are announced."_s);
    EXPECT_TRUE(std::all_of(clients.begin(), clients.end(), [](auto *each) { return each->connects == 0; }));
}

TEST_F(UpgradeItTest, AServerThatNeverAnswersIsGivenUp) {
    GivenAddress();
    auto silent = std::make_unique<FakeHttpClient>();
    const FakeHttpClient &client = *silent;
    UpgradeIt upgrade(
        {program->hosts, program->proxy, program->viewer, dialogs, std::chrono::milliseconds(1)},
        std::move(silent));
    upgrade.CheckNow();
    EXPECT_TRUE(WaitUntil([this] { return !dialogs.boxes.empty(); }));
    EXPECT_EQ(dialogs.Told(), failed + u"The server doesn't answer."_s);
    EXPECT_EQ(client.aborts, 1);
}

} // namespace
