#include "project/entry_handlers.h"
#include "tests/fakes/fake_dialogs.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

class EntryHandlersTest : public testing::Test {
protected:
    ProjectRecord record;
    FakeDialogs dialogs;
    EntryHandlers entry{record, dialogs};
};

TEST_F(EntryHandlersTest, WarnsOfLongTextsAndLeavesThem) {
    for (const int size : {255, 256}) {
        EXPECT_EQ(dialogs.Told(), QString());
        record.txtTitle.SetText(QString(size, u't'));
        record.txtDesc.SetText(QString(size, u'd'));
        entry.txtTitle_LostFocus();
        entry.txtDesc_LostFocus();
    }
    EXPECT_EQ(dialogs.Told(), u"Error: Title tags should not exceed 255 characters \n"
                              "Error: Descriptions should not exceed 255 characters "_s);
    EXPECT_EQ(record.txtTitle.Text().size(), 256);
    EXPECT_EQ(record.txtTitle.SelStart(), 1);
}

TEST_F(EntryHandlersTest, ReturnLeadsThroughThePageAndRoundTheContactBoxes) {
    const TextBox *focused = nullptr;
    for (const ProjectRecord::TextField &field : record.TextFields())
        QObject::connect(field.box, &TextBox::FocusRequested, field.box, [&] { focused = field.box; });
    const std::pair<const TextBox &, const TextBox &> steps[] = {
        {record.txtURL, record.txtTitle},     {record.txtTitle, record.txtKey[0]},
        {record.txtKey[4], record.txtKey[5]}, {record.txtKey[5], record.txtDesc},
        {record.txtEmail, record.txtName1},   {record.txtState, record.txtCountry},
        {record.txtPhone, record.txtFax},     {record.txtFax, record.txtEmail}};
    for (const auto &[from, to] : steps) {
        EXPECT_TRUE(entry.ReturnPressed(from));
        EXPECT_EQ(focused, &to) << from.objectName().toStdString();
    }
    EXPECT_FALSE(entry.ReturnPressed(record.txtDesc));
}

TEST_F(EntryHandlersTest, TypingFollowsTheSlotOnShow) {
    const auto cell = [&](int slot, int column) { return record.multiUrlTable.Cell(slot, column); };
    record.HScroll1.SetValue(3);
    record.txtURL.SetText(u"http://a.example/"_s);
    record.txtDesc.SetText(u"own"_s);
    record.chkMultiSameDesc.SetValue(1); // shared texts land in slot 0, whatever slot is shown
    record.txtDesc.SetText(u"shared"_s);
    record.txtKey[5].SetText(u"key"_s);
    EXPECT_EQ(cell(3, 2), u"own"_s);
    EXPECT_EQ(cell(0, 2), u"shared"_s);
    EXPECT_EQ(cell(0, 8), u"key"_s);

    record.chkMultiSameDesc.SetValue(0);
    record.LoadingProject = true;
    record.txtURL.SetText(u"http://loaded.example/"_s);
    record.txtTitle.SetText(u"loaded"_s);
    EXPECT_EQ(cell(3, 0), u"http://a.example/"_s);
    EXPECT_EQ(cell(0, 1), u"loaded"_s);
}

} // namespace
