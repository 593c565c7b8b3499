#include "tests/fakes/program_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class MultiFormTest : public ProgramFixture {
protected:
    MultiFormTest() {
        GivenSites({u"Alta"_s});
        Record().ResetUrls();
    }

    void Enter(const QString &lines) {
        Form().Activate();
        Form().ListedURLs.Clear();
        for (const QString &line : lines.split(u' '))
            Form().ListedURLs.AddItem(line);
        Form().cmdOK_Click();
    }
    QString Listed() {
        QStringList lines;
        for (int i = 0; i < Form().ListedURLs.ListCount(); ++i)
            lines << Form().ListedURLs.Item(i);
        return lines.join(u' ');
    }
    QString Slots() {
        QStringList urls;
        for (int slot = 0; slot < MultiUrlTable::slotCount; ++slot)
            urls << Record().multiUrlTable.Cell(slot, MultiUrlTable::urlColumn);
        return urls.join(u' ').trimmed();
    }
    /// As a person does it in a list view.
    void Type(int row, const QString &text) {
        ASSERT_LT(row, Form().ListedURLs.rowCount());
        Form().ListedURLs.setData(Form().ListedURLs.index(row), text, Qt::EditRole);
    }

    MultiForm &Form() { return program->frmMulti; }
};

TEST_F(MultiFormTest, LinesBecomeSlotsAndOfEqualOnesTheLastStays) {
    const struct {
        QString lines, urls;
    } cases[] = {{u"http://a http://b"_s, u"http://a http://b"_s},
                 {u"http://a http://b HTTP://A http://c"_s, u"http://b HTTP://A http://c"_s},
                 {u"x x X"_s, u"X"_s},
                 {u"1 2 3 4 5 6 7 8 9 10 11 12"_s, u"1 2 3 4 5 6 7 8 9 10"_s}};
    for (const auto &entry : cases) {
        program->run.urlCounter = 5;
        Record().HScroll1.SetMaximum(3);
        Record().HScroll1.SetValue(3);
        Enter(entry.lines);
        EXPECT_EQ(Slots(), entry.urls);
        EXPECT_TRUE(Record().MultiUrlMode() && Record().SSCommand7.Marked() &&
                    Record().chkMultiSameDesc.Enabled());
        EXPECT_EQ(Record().MultiUrlUpper, entry.lines.count(u' ')) << "counted before equal lines go";
        EXPECT_EQ(Record().HScroll1.Maximum(), Form().ListedURLs.ListCount() - 1);
        EXPECT_EQ(Record().HScroll1.Value() + program->run.urlCounter, 0);
        EXPECT_EQ(Record().txtURL.Text(), entry.urls.section(u' ', 0, 0));
        EXPECT_FALSE(Form().Visible());
    }
}

TEST_F(MultiFormTest, FewerThanTwoLinesEndTheModeAndTheBoxKeepsItsAddress) {
    Enter(u"http://a.example http://b.example"_s);
    Record().HScroll1.SetValue(1);
    Enter(u"http://a.example"_s);
    EXPECT_EQ(Slots(), QString());
    EXPECT_FALSE(Record().MultiUrlMode() || Record().SSCommand7.Marked() ||
                 Record().chkMultiSameDesc.Enabled());
    EXPECT_EQ(Record().txtURL.Text(), u"http://b.example"_s);
}

TEST_F(MultiFormTest, ItsListIsFilledOnceAtEachShowingAndTakesWhatIsTyped) {
    Record().txtURL.SetText(u"HTTPS://a.b"_s);
    Form().Activate();
    Type(1, u" http://b.example "_s);
    Type(2, u" "_s);
    Form().Activate(); // the focus comes back
    Type(0, u"http://1.ex"_s);
    Type(2, u"http://2.e"_s);
    Form().cmdOK_Click();
    Form().Activate();
    EXPECT_EQ(Listed(), u"http://1.ex http://b.example"_s) << "ten characters are lost";
    Type(0, QString());
    Form().cmdCancel_Click();
    EXPECT_EQ(Slots(), u"http://1.ex http://b.example http://2.e"_s);
    Record().ResetUrls();
    Form().Activate();
    EXPECT_EQ(Listed(), QString()) << "the bare scheme is no address";
}

TEST_F(MultiFormTest, ItsBoxesAddAnAddressWithASchemeAndEditOrRemoveTheSelectedOne) {
    Record().txtURL.SetText(QString());
    Form().Activate();
    dialogs.lines = {u"a.example"_s, u"HTTPS://b"_s, u" "_s, u"http://"_s, u" "_s, u"c"_s};
    for (int i = 0; i < 4; ++i)
        Form().AddUrl();
    Form().EditUrl(); // none is selected
    Form().ListedURLs.SetListIndex(1);
    Form().EditUrl();
    Form().EditUrl();
    EXPECT_EQ(dialogs.inputBoxes.back().defaultText, u"HTTPS://b"_s);
    EXPECT_EQ(Listed(), u"http://a.example c"_s);
    Form().RemoveUrl();
    EXPECT_EQ(Listed(), u"http://a.example"_s);
}

TEST_F(MultiFormTest, TheScrollBarShowsTheTextsOfItsSlotOrTheSharedOnes) {
    Enter(u"http://a.example http://b.example"_s);
    Record().txtTitle.SetText(u"A"_s);
    Record().HScroll1.SetValue(1);
    EXPECT_EQ(Record().txtURL.Text(), u"http://b.example"_s);
    EXPECT_EQ(Record().txtTitle.Text(), QString());
    Record().txtTitle.SetText(u"B"_s);
    Record().chkMultiSameDesc.SetValue(1);
    Record().HScroll1.SetValue(0);
    Record().HScroll1.SetValue(1);
    EXPECT_EQ(Record().txtTitle.Text(), u"A"_s);
}

} // namespace
