#include "submission/entry_corrections.h"

#include "support/numbers.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr double longestLimit = 1000; ///< seconds

} // namespace

void TakeFaxFromPhone(ProjectRecord &record) {
    if (IsBlank(record.txtFax.Text()))
        record.txtFax.SetText(record.txtPhone.Text());
}

void CorrectTimeLimit(ProjectRecord &record) {
    if (LeadingNumber(record.txtLimit.Text()) > longestLimit)
        record.txtLimit.SetText(u"1000"_s);
    if (!IsNumeric(record.txtLimit.Text()))
        record.txtLimit.SetText(u"45"_s);
}

void CorrectEntries(ProjectRecord &record) {
    CorrectTimeLimit(record);
    record.txtName.SetText(record.txtName1.Text() + u' ' + record.txtName2.Text());
    // Compared to the letter: "business" is not one of the subjects that sites know.
    if (!record.Combo2.Entries().contains(record.Combo2.Text()))
        record.Combo2.SetText(u"Miscellaneous"_s);
}

} // namespace lanterra
