#include "project/project_record.h"

using namespace Qt::StringLiterals;

namespace lanterra {

ProjectRecord::ProjectRecord()
    : Combo2({u"Miscellaneous"_s, u"Business"_s, u"Computers"_s, u"Education"_s, u"Entertainment"_s,
              u"Government"_s, u"Personal"_s}) {
    textFields = {
        {u"txtURL"_s, &txtURL, false},        {u"txtEmail"_s, &txtEmail, true},
        {u"txtName1"_s, &txtName1, true},     {u"txtName2"_s, &txtName2, true},
        {u"txtCompany"_s, &txtCompany, true}, {u"txtStreet"_s, &txtStreet, true},
        {u"txtState"_s, &txtState, true},     {u"txtCountry"_s, &txtCountry, true},
        {u"txtCity"_s, &txtCity, true},       {u"txtZip"_s, &txtZip, true},
        {u"txtPhone"_s, &txtPhone, true},     {u"txtFax"_s, &txtFax, true},
        {u"txtTitle"_s, &txtTitle, true},
    };
    // The address and the keywords are stored as they stand: one that is too long fails alone and is not cut.
    for (std::size_t i = 0; i < txtKey.size(); ++i)
        textFields.push_back({u"txtKey%1"_s.arg(i + 1), &txtKey[i], false});
    textFields.push_back({u"txtLimit"_s, &txtLimit, true});
    textFields.push_back({u"txtDesc"_s, &txtDesc, true});
    textFields.push_back({u"Combo2"_s, &Combo2, true});
    textFields.push_back({u"txttrazim"_s, &txttrazim, true});
    checkFields = {
        {u"chkMultiSameDesc"_s, &chkMultiSameDesc}, {u"Check1"_s, &Check1}, {u"Check3"_s, &Check3}};

    for (const TextField &field : textFields)
        field.box->setObjectName(field.name);
    for (const CheckField &field : checkFields)
        field.box->setObjectName(field.name);
    txtName.setObjectName(u"txtName"_s);
    HScroll1.setObjectName(u"HScroll1"_s);
    SSCommand7.setObjectName(u"SSCommand7"_s);
    Combo2.SetText(u"Business"_s);
    FollowChanges();
}

// Keeps the table current while a person types. During a load the address stays out of it, but the other texts go
// to slot 0: the load fills the slots afterwards.
void ProjectRecord::FollowChanges() {
    connect(&txtURL, &TextBox::TextChanged, this, [this](const QString &text) {
        if (!LoadingProject)
            multiUrlTable.SetCell(HScroll1.Value(), MultiUrlTable::urlColumn, text);
    });
    for (int column = MultiUrlTable::titleColumn; column < MultiUrlTable::columnCount; ++column) {
        connect(&BoxOfColumn(column), &TextBox::TextChanged, this, [this, column](const QString &text) {
            const bool ownTexts = !chkMultiSameDesc.Checked() && !LoadingProject;
            multiUrlTable.SetCell(ownTexts ? HScroll1.Value() : 0, column, text);
        });
    }
}

TextBox &ProjectRecord::BoxOfColumn(int column) {
    switch (column) {
    case MultiUrlTable::urlColumn:
        return txtURL;
    case MultiUrlTable::titleColumn:
        return txtTitle;
    case MultiUrlTable::descColumn:
        return txtDesc;
    default:
        return txtKey.at(static_cast<std::size_t>(column - MultiUrlTable::firstKeyColumn));
    }
}

void ProjectRecord::ShowSlot(int slot) {
    for (int column = 0; column < MultiUrlTable::columnCount; ++column)
        BoxOfColumn(column).SetText(multiUrlTable.Cell(slot, column));
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
