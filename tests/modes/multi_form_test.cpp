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

    void Enter(const QStringList &lines) {
        form.Activate();
        form.ListedURLs.Clear();
        for (const QString &line : lines)
            form.ListedURLs.AddItem(line);
        form.cmdOK_Click();
    }
    QStringList Listed() const {
        QStringList lines;
        for (int i = 0; i < form.ListedURLs.ListCount(); ++i)
            lines << form.ListedURLs.Item(i);
        return lines;
    }
    QStringList Slots() const {
        QStringList urls;
        for (int slot = 0; slot < MultiUrlTable::slotCount; ++slot)
            urls << record.multiUrlTable.Cell(slot, MultiUrlTable::urlColumn);
        while (!urls.isEmpty() && urls.last().isEmpty())
            urls.removeLast();
        return urls;
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
        QStringList lines, urls;
    } cases[] = {
        {{u"http://a.example"_s, u"http://b.example"_s}, {u"http://a.example"_s, u"http://b.example"_s}},
        {{u"http://a.example"_s, u"http://b.example"_s, u"HTTP://A.example"_s, u"http://c.example"_s},
         {u"http://b.example"_s, u"HTTP://A.example"_s, u"http://c.example"_s}},
        {{u"x"_s, u"x"_s, u"X"_s}, {u"X"_s}},
        {u"1 2 3 4 5 6 7 8 9 10 11 12"_s.split(u' '), u"1 2 3 4 5 6 7 8 9 10"_s.split(u' ')},
    };
    for (const auto &entry : cases) {
        program->run.urlCounter = 5;
        record.HScroll1.SetMaximum(3);
        record.HScroll1.SetValue(3);
        Enter(entry.lines);
        EXPECT_EQ(Slots(), entry.urls);
        EXPECT_TRUE(record.MultiUrlMode() && record.SSCommand7.Marked() && record.chkMultiSameDesc.Enabled());
        EXPECT_EQ(record.MultiUrlUpper, entry.lines.size() - 1) << "counted before equal lines go";
        EXPECT_EQ(record.HScroll1.Maximum(), form.ListedURLs.ListCount() - 1);
        EXPECT_EQ(record.HScroll1.Value() + program->run.urlCounter, 0);
        EXPECT_EQ(record.txtURL.Text(), entry.urls.first());
        EXPECT_FALSE(form.Visible());
    }
}

TEST_F(MultiFormTest, FewerThanTwoLinesEndTheModeAndTheBoxKeepsItsAddress) {
    Enter({u"http://a.example"_s, u"http://b.example"_s});
    record.HScroll1.SetValue(1);
    form.Activate();
    form.ListedURLs.RemoveItem(0);
    form.cmdOK_Click();
    EXPECT_EQ(Slots(), QStringList());
    EXPECT_FALSE(record.MultiUrlMode() || record.SSCommand7.Marked() || record.chkMultiSameDesc.Enabled());
    EXPECT_EQ(record.MultiUrlUpper, 0);
    EXPECT_EQ(record.txtURL.Text(), u"http://b.example"_s);
}

TEST_F(MultiFormTest, ItsListIsFilledOnceAtEachShowing) {
    record.txtURL.SetText(u"HTTPS://a.b"_s);
    form.Activate();
    EXPECT_EQ(Listed(), QStringList{u"HTTPS://a.b"_s});
    Type(1, u" http://b.example "_s);
    Type(2, u" "_s);
    form.Activate(); // the focus comes back
    Type(0, u"http://1.ex"_s);
    EXPECT_EQ(Listed(), (QStringList{u"http://1.ex"_s, u"http://b.example"_s}));
    Type(2, u"http://2.e"_s);
    form.cmdOK_Click();
    EXPECT_EQ(Slots().size(), 3);
    form.Activate();
    EXPECT_EQ(Listed(), (QStringList{u"http://1.ex"_s, u"http://b.example"_s})) << "ten characters are lost";
    Type(0, QString());
    form.cmdCancel_Click();
    EXPECT_EQ(Slots().size(), 3);
    record.ResetUrls();
    form.Activate();
    EXPECT_EQ(Listed(), QStringList()) << "the bare scheme is no address";
}

TEST_F(MultiFormTest, BoxesAddEditAndRemoveLines) {
    dialogs.lines = {u"www.a.example"_s, u"https://b.example"_s, u"http://"_s, u" "_s, u"new"_s, u" "_s};
    for (int i = 0; i < 4; ++i)
        form.AddUrl();
    EXPECT_EQ(Listed(), (QStringList{u"http://www.a.example"_s, u"https://b.example"_s}));
    form.EditUrl(); // nothing is selected, nothing is asked
    form.RemoveUrl();
    form.ListedURLs.SetListIndex(1);
    form.EditUrl();
    form.EditUrl();
    EXPECT_EQ(dialogs.inputBoxes.back().defaultText, u"new"_s);
    form.ListedURLs.RemoveItem(0);
    EXPECT_EQ(form.ListedURLs.Text(), u"new"_s);
    form.RemoveUrl();
    EXPECT_EQ(Listed(), QStringList());
    EXPECT_EQ(form.ListedURLs.ListIndex(), -1);
}

TEST_F(MultiFormTest, TheScrollBarShowsTheTextsOfItsSlotOrTheSharedOnes) {
    Enter({u"http://a.example"_s, u"http://b.example"_s});
    record.txtTitle.SetText(u"A"_s);
    record.HScroll1.SetValue(1);
    EXPECT_EQ(record.txtURL.Text(), u"http://b.example"_s);
    EXPECT_EQ(record.txtTitle.Text(), QString());
    record.txtTitle.SetText(u"B"_s);
    record.chkMultiSameDesc.SetValue(1);
    record.HScroll1.SetValue(0);
    record.HScroll1.SetValue(1);
    EXPECT_EQ(record.txtTitle.Text(), u"A"_s);
    record.txtTitle.SetText(u"Both"_s);
    EXPECT_EQ(record.multiUrlTable.Cell(0, 1) + record.multiUrlTable.Cell(1, 1), u"BothB"_s);
    record.SetMultiUrlMode(false);
    record.HScroll1.SetValue(0);
    EXPECT_EQ(record.txtURL.Text(), u"http://b.example"_s);
}

} // namespace
