#include "tests/shell/start_fixture.h"

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

using MainFormTest = StartFixture;

TEST_F(MainFormTest, PaneButtonsShowTheirPanesAndBringThemUpToDate) {
    MainForm &form = program->frmMain;
    ProjectRecord &record = program->project.record;
    record.txtLimit.SetText(u"12 s"_s);
    record.HScroll1.SetValue(2);
    record.txtURL.SetText(u"http://third/"_s);
    form.cmdSubmit_Click();
    EXPECT_EQ(record.txtLimit.Text() + program->submitForm.Label2.Caption(), u"20http://third/"_s);
    record.SetMultiUrlMode(true);
    record.multiUrlTable.SetCell(2, MultiUrlTable::urlColumn, u"http://loaded/"_s);
    form.cmdKeyword_Click();
    EXPECT_EQ(record.txtURL.Text(), u"http://loaded/"_s);
    record.SetMultiUrlMode(false);
    form.cmdKeyword_Click();
    EXPECT_EQ(record.HScroll1.Value(), 0);
    QObject::connect(&form, &MainForm::RibbonButtonUp,
                     [&](int index) { form.SSRibbon1_Click(index, false); });
    forms.onForm[ModalForm::TechSupp] = [&] { form.cmdDesc_Click(); };
    form.SSRibbon1_Click(7, true); // pops up, and its command runs once
    form.cmdEngines_Click();
    form.Command14_Click();
    form.mnuHelpAbout_Click();
    EXPECT_EQ(Traced(), u"pane5 pane1 pane1 pane2 pane3 pane4 pane0"_s);
}

} // namespace
