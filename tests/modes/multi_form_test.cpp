#include "tests/fakes/program_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class OpenProject : public ProgramFixture {
protected:
    OpenProject() { GivenSites({u"Alta"_s}); }
};

class MultiFormTest : public OpenProject {
protected:
    MultiFormTest() { record.ResetUrls(); }

    void Enter(const QString &lines) {
        form.Activate();
        form.ListedURLs.Clear();
        for (const QString &line : lines.split(u' '))
            form.ListedURLs.AddItem(line);
        form.cmdOK_Click();
    }
    QString Listed() const {
        QStringList lines;
        for (int i = 0; i < form.ListedURLs.ListCount(); ++i)
            lines << form.ListedURLs.Item(i);
        return lines.join(u' ');
    }
    QString Slots() const {
        QStringList urls;
        for (int slot = 0; slot < MultiUrlTable::slotCount; ++slot)
            urls << record.multiUrlTable.Cell(slot, MultiUrlTable::urlColumn);
        return urls.join(u' ').trimmed();
    }
    /// As a person does it in a list view.
    void Type(int row, const QString &text) {
        ASSERT_LT(row, form.ListedURLs.rowCount());
        form.ListedURLs.setData(form.ListedURLs.index(row), text, Qt::EditRole);
    }

    ProjectRecord &record = program->project.record;
    MultiForm &form = program->frmMulti;
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
        record.HScroll1.SetMaximum(3);
        record.HScroll1.SetValue(3);
        Enter(entry.lines);
        EXPECT_EQ(Slots(), entry.urls);
        EXPECT_TRUE(record.MultiUrlMode() && record.SSCommand7.Marked() && record.chkMultiSameDesc.Enabled());
        EXPECT_EQ(record.MultiUrlUpper, entry.lines.count(u' ')) << "counted before equal lines go";
        EXPECT_EQ(record.HScroll1.Maximum(), form.ListedURLs.ListCount() - 1);
        EXPECT_EQ(record.HScroll1.Value() + program->run.urlCounter, 0);
        EXPECT_EQ(record.txtURL.Text(), entry.urls.section(u' ', 0, 0));
        EXPECT_FALSE(form.Visible());
    }
}

TEST_F(MultiFormTest, FewerThanTwoLinesEndTheModeAndTheBoxKeepsItsAddress) {
    Enter(u"http://a.example http://b.example"_s);
    record.HScroll1.SetValue(1);
    Enter(u"http://a.example"_s);
    EXPECT_EQ(Slots(), QString());
    EXPECT_FALSE(record.MultiUrlMode() || record.SSCommand7.Marked() || record.chkMultiSameDesc.Enabled());
    EXPECT_EQ(record.txtURL.Text(), u"http://b.example"_s);
}

TEST_F(MultiFormTest, ItsListIsFilledOnceAtEachShowingAndTakesWhatIsTyped) {
    record.txtURL.SetText(u"HTTPS://a.b"_s);
    form.Activate();
    Type(1, u" http://b.example "_s);
    Type(2, u" "_s);
    form.Activate(); // the focus comes back
    Type(0, u"http://1.ex"_s);
    Type(2, u"http://2.e"_s);
    form.cmdOK_Click();
    form.Activate();
    EXPECT_EQ(Listed(), u"http://1.ex http://b.example"_s) << "ten characters are lost";
    Type(0, QString());
    form.cmdCancel_Click();
    EXPECT_EQ(Slots(), u"http://1.ex http://b.example http://2.e"_s);
    record.ResetUrls();
    form.Activate();
    EXPECT_EQ(Listed(), QString()) << "the bare scheme is no address";
}

TEST_F(MultiFormTest, ItsBoxesAddAnAddressWithASchemeAndEditOrRemoveTheSelectedOne) {
    record.txtURL.SetText(QString());
    form.Activate();
    dialogs.lines = {u"a.example"_s, u"HTTPS://b"_s, u" "_s, u"http://"_s, u" "_s, u"c"_s};
    for (int i = 0; i < 4; ++i)
        form.AddUrl();
    form.EditUrl(); // none is selected
    form.ListedURLs.SetListIndex(1);
    form.EditUrl();
    form.EditUrl();
    EXPECT_EQ(dialogs.inputBoxes.back().defaultText, u"HTTPS://b"_s);
    EXPECT_EQ(Listed(), u"http://a.example c"_s);
    form.RemoveUrl();
    EXPECT_EQ(Listed(), u"http://a.example"_s);
}

TEST_F(MultiFormTest, TheScrollBarShowsTheTextsOfItsSlotOrTheSharedOnes) {
    Enter(u"http://a.example http://b.example"_s);
    record.txtTitle.SetText(u"A"_s);
    record.HScroll1.SetValue(1);
    EXPECT_EQ(record.txtURL.Text(), u"http://b.example"_s);
    EXPECT_EQ(record.txtTitle.Text(), QString());
    record.txtTitle.SetText(u"B"_s);
    record.chkMultiSameDesc.SetValue(1);
    record.HScroll1.SetValue(0);
    record.HScroll1.SetValue(1);
    EXPECT_EQ(record.txtTitle.Text(), u"A"_s);
}

} // namespace
