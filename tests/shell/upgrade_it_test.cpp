#include "platform/qt_event_queue.h"
#include "support/whole_file.h"
#include "tests/fakes/program_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class UpgradeItTest : public ProgramFixture {
protected:
    void GivenAddress(const QByteArray &address) {
        ASSERT_TRUE(WriteWholeFile(home.filePath(u"hosts.ini"_s), "[Upgrade]\nAddress=" + address + '\n'));
        GivenSites({u"Alta"_s});
        program->project.lists.List1.SetAllSelected(false);
        QObject::connect(&program->frame, &MainFrame::CloseRequested, [this] { ++closes; });
    }

    /// The client that looks at the version file.
    FakeHttpClient &Looker() {
        return **std::find_if(clients.begin(), clients.end(), [](const FakeHttpClient *each) {
            return each->Target() == u"http://maker.example/v";
        });
    }
    void Answer(const QString &text) {
        Looker().SetResponseText(text);
        emit Looker().Done();
    }
    QStringList Told() {
        QStringList told;
        for (const MessageBox &box : std::exchange(dialogs.boxes, {}))
            told.append(box.text + (box.detail.isEmpty() ? QString() : u" | "_s + box.detail));
        return told;
    }

    const QString newer = u"Product=Zephyrine Lanterra\r\nVersion=2.15\r\nNote=Quicker."_s;
    const QString news =
        u"Version 2.15 of Zephyrine Lanterra, from the makers of Zephyrine Lanterra, is available. This is version 2.14."_s;
    const QString failed =
        u"It can't be found out whether there is a newer version of Zephyrine Lanterra. | "_s;
    int closes = 0;
};

TEST_F(UpgradeItTest, ARunChecksOnceAndTellsAtItsEnd) {
    GivenAddress("http://maker.example/v");
    UpgradeIt &upgrade = program->UpgradeIt1;
    queue.AtYield(1, [this] { Answer(newer); });
    program->run.cmdStart_Click();
    EXPECT_EQ(Told(), QStringList(news + u" | Quicker."_s));
    EXPECT_TRUE(upgrade.CheckStarted);
    program->run.cmdStart_Click();
    EXPECT_EQ(Looker().connects, 1);
    EXPECT_EQ(Told(), QStringList());
}

TEST_F(UpgradeItTest, AFailedCheckIsSilentAndTheNextRunMakesAnother) {
    GivenAddress("http://maker.example/v");
    queue.AtYield(1, [this] { emit Looker().Error(61); });
    program->run.cmdStart_Click();
    EXPECT_FALSE(program->UpgradeIt1.CheckStarted);
    program->run.cmdStart_Click();
    EXPECT_EQ(Looker().connects, 2);
    program->frmSettings.check_for_program_upgrade.SetValue(0);
    emit Looker().Error(61);
    program->run.cmdStart_Click();
    EXPECT_EQ(Looker().connects, 2) << "switched off";
    EXPECT_EQ(Told(), QStringList());
}

TEST_F(UpgradeItTest, AUserIsToldWhateverComesOfIt) {
    GivenAddress("http://maker.example/v");
    const QString page = u"Product=Zephyrine Lanterra\nVersion=%1\nPage=javascript:alert(1)"_s;
    const std::pair<QString, QString> answers[] = {
        {page.arg(u"2.14"_s), u"Version 2.14 of Zephyrine Lanterra is the newest one."_s},
        {page.arg(u"2.9"_s), u"Version 2.14 of Zephyrine Lanterra is the newest one."_s},
        {newer, news + u" | Quicker."_s},
        {u"Product=Other\nVersion=9"_s, failed + u"The answer is no list of versions."_s},
        {u"Product=Zephyrine Lanterra\nVersion=soon"_s, failed + u"The answer is no list of versions."_s}};
    for (const auto &[answer, told] : answers) {
        program->modes.mnuUpgrade_Click();
        Answer(answer);
        EXPECT_EQ(Told(), QStringList(told));
    }
    program->modes.mnuUpgrade_Click();
    Looker().bodyBytes = 65'537;
    emit Looker().Data("HTTP/1.1 200 OK");
    EXPECT_EQ(Told(), QStringList(failed + u"The answer is no list of versions."_s));
    program->modes.mnuUpgrade_Click();
    emit Looker().Error(61);
    EXPECT_EQ(Told(), QStringList(failed + u"Connection refused."_s));
    EXPECT_TRUE(documents.opened.empty());
}

TEST_F(UpgradeItTest, ThePageIsOpenedAndTheProgramEndsIfTheUserWantsIt) {
    GivenAddress("http://maker.example/v");
    for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
        EXPECT_EQ(closes, 0);
        EXPECT_TRUE(documents.opened.empty());
        dialogs.answers.push_back(answer);
        program->modes.mnuUpgrade_Click();
        Answer(newer + u"\nPage = https://maker.example/2.15"_s);
    }
    EXPECT_EQ(dialogs.boxes[0].defaultAnswer, BoxAnswer::No);
    ASSERT_EQ(documents.opened.size(), 1U);
    EXPECT_EQ(documents.opened[0].arguments, QStringList(u"https://maker.example/2.15"_s));
    EXPECT_EQ(closes, 1);
}

TEST_F(UpgradeItTest, WithoutAnAddressNothingIsAskedForAndOnlyTheUserIsToldSo) {
    GivenAddress("");
    program->run.cmdStart_Click();
    EXPECT_EQ(Told(), QStringList());
    program->modes.mnuUpgrade_Click();
    EXPECT_EQ(Told(), QStringList(failed + u"No address is known where newer versions are announced."_s));
    for (const FakeHttpClient *client : clients)
        EXPECT_EQ(client->connects, 0);
}

TEST_F(UpgradeItTest, AServerThatNeverAnswersIsGivenUp) {
    GivenAddress("http://maker.example/v");
    auto silent = std::make_unique<FakeHttpClient>();
    const FakeHttpClient &client = *silent;
    UpgradeIt upgrade(
        {program->hosts, program->proxy, program->viewer, dialogs, std::chrono::milliseconds(1)},
        std::move(silent));
    upgrade.CheckNow();
    QtEventQueue events;
    for (int i = 0; i < 100 && dialogs.boxes.empty(); ++i)
        events.Wait(std::chrono::seconds(1));
    EXPECT_EQ(Told(), QStringList(failed + u"The server doesn't answer."_s));
    EXPECT_EQ(client.aborts, 1);
}

} // namespace
