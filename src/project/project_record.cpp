#include "project/project_record.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

ProjectRecord::ProjectRecord()
    : Combo2({u"Miscellaneous"_s, u"Business"_s, u"Computers"_s, u"Education"_s, u"Entertainment"_s,
              u"Government"_s, u"Personal"_s}) {
    ListFields();
    NameControls();
    Combo2.SetText(u"Business"_s);
    FollowChanges();
}

void ProjectRecord::ListFields() {
    textFields = {
        {u"txtURL"_s, &txtURL, false, MultiUrlTable::urlColumn},
        {u"txtEmail"_s, &txtEmail, true},
        {u"txtName1"_s, &txtName1, true},
        {u"txtName2"_s, &txtName2, true},
        {u"txtCompany"_s, &txtCompany, true},
        {u"txtStreet"_s, &txtStreet, true},
        {u"txtState"_s, &txtState, true},
        {u"txtCountry"_s, &txtCountry, true},
        {u"txtCity"_s, &txtCity, true},
        {u"txtZip"_s, &txtZip, true},
        {u"txtPhone"_s, &txtPhone, true},
        {u"txtFax"_s, &txtFax, true},
        {u"txtTitle"_s, &txtTitle, true, MultiUrlTable::titleColumn},
    };
    // The address and the keywords are stored as they stand: one that is too long fails alone and is not cut.
    int column = MultiUrlTable::firstKeyColumn;
    for (std::size_t i = 0; i < txtKey.size(); ++i)
        textFields.push_back({u"txtKey%1"_s.arg(i + 1), &txtKey[i], false, column++});
    textFields.push_back({u"txtLimit"_s, &txtLimit, true});
    textFields.push_back({u"txtDesc"_s, &txtDesc, true, MultiUrlTable::descColumn});
    textFields.push_back({u"Combo2"_s, &Combo2, true});
    textFields.push_back({u"txttrazim"_s, &txttrazim, true});
    checkFields = {
        {u"chkMultiSameDesc"_s, &chkMultiSameDesc}, {u"Check1"_s, &Check1}, {u"Check3"_s, &Check3}};
}

void ProjectRecord::NameControls() {
    for (const TextField &field : textFields)
        AddToForm(*this, *field.box, field.name);
    for (const CheckField &field : checkFields)
        AddToForm(*this, *field.box, field.name);
    AddToForm(*this, txtName, u"txtName"_s);
    AddToForm(*this, HScroll1, u"HScroll1"_s);
    AddToForm(*this, SSCommand7, u"SSCommand7"_s);
}

// Keeps the table current while a person types. During a load the address stays out of it, but the other
// texts go to slot 0: the load fills the slots afterwards.
void ProjectRecord::FollowChanges() {
    connect(&txtURL, &TextBox::TextChanged, this, [this](const QString &text) {
        if (!LoadingProject)
            multiUrlTable.SetCell(HScroll1.Value(), MultiUrlTable::urlColumn, text);
    });
    for (int column = MultiUrlTable::titleColumn; column < MultiUrlTable::columnCount; ++column) {
        connect(FieldOfColumn(column).box, &TextBox::TextChanged, this, [this, column](const QString &text) {
            const bool ownTexts = !chkMultiSameDesc.Checked() && !LoadingProject;
            multiUrlTable.SetCell(ownTexts ? HScroll1.Value() : 0, column, text);
        });
    }
}

const ProjectRecord::TextField &ProjectRecord::FieldOfColumn(int column) const {
    return *std::find_if(textFields.begin(), textFields.end(),
                         [column](const TextField &field) { return field.column == column; });
}

std::array<TextBox *, 11> ProjectRecord::ContactBoxes() {
    return {&txtEmail,   &txtName1, &txtName2, &txtCompany, &txtStreet, &txtState,
            &txtCountry, &txtCity,  &txtZip,   &txtPhone,   &txtFax};
}

void ProjectRecord::ShowSlot(int slot) {
    for (int column = 0; column < MultiUrlTable::columnCount; ++column)
        FieldOfColumn(column).box->SetText(multiUrlTable.Cell(slot, column));
}

void ProjectRecord::ResetUrls() {
    SetMultiUrlMode(false);
    MultiUrlUpper = 0;
    multiUrlTable.Erase();
    HScroll1.SetValue(0);
    txtURL.SetText(u"http://"_s);
}

void ProjectRecord::SetMultiUrlMode(bool on) {
    multiUrlMode = on;
    SSCommand7.SetMarked(on);
}

QString CutToFieldSize(const QString &text) {
    if (text.size() <= ProjectRecord::fieldSize)
        return text;
    const bool splitsPair = text.at(ProjectRecord::fieldSize - 1).isHighSurrogate();
    return text.left(ProjectRecord::fieldSize - (splitsPair ? 1 : 0));
}

} // namespace lanterra
