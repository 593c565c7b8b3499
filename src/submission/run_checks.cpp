#include "submission/run_checks.h"

#include "submission/entry_corrections.h"
#include "submission/required_fields.h"
#include "support/numbers.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr int firstDescriptionField = 10; ///< by position in the check of required fields

} // namespace

bool RunChecks::Pass() { return FieldsPass() && CategoriesAreChosen(); }

bool RunChecks::FieldsPass() {
    TakeFaxFromPhone(project.record);
    return FieldsAreFilled();
}

// The pane follows the position in the table: phone and fax, 10 and 11, stand among the other data, yet lead
// to the description; and an empty address is found with the first field, so it leads to the other data.
bool RunChecks::FieldsAreFilled() {
    const auto fields = BindRequiredFields(project.record);
    const bool urlMissing = IsBlank(project.record.txtURL.Text());
    for (int i = 1; i <= requiredFieldCount; ++i) {
        if (!urlMissing && !IsBlank(fields.at(static_cast<std::size_t>(i - 1))->Text()))
            continue;
        Refuse(u"You must fill all text fields"_s,
               i >= firstDescriptionField ? Pane::FrameDescription : Pane::FrameOtherData);
        return false;
    }
    return true;
}

// Looked for twice: the first look can yield to the very click that chooses the missing category. The box
// comes all the same, then without a name.
bool RunChecks::CategoriesAreChosen() {
    QString selectedNames;
    const ListBox &sites = project.lists.List1;
    for (int i = 0; i < sites.ListCount(); ++i) {
        if (sites.Selected(i))
            selectedNames += sites.Item(i) + u"\r\n"_s;
    }
    if (collector.data_proveri_selektovane_kategorije(selectedNames).isEmpty())
        return true;
    const QString name = collector.data_proveri_selektovane_kategorije(selectedNames);
    Refuse(u"You must select a valid category for "_s + name, Pane::fraCat);
    return false;
}

void RunChecks::Refuse(const QString &message, Pane pane) {
    dialogs.Show({message, u"Error!"_s, BoxIcon::Exclamation});
    frame.SetPointer(MousePointer::Default);
    frame.ShowPane(pane);
}

} // namespace lanterra
