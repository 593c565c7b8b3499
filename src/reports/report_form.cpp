#include "reports/report_form.h"

#include "reports/date_texts.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const QString lineEnd = u"\r\n"_s;
constexpr int reselectSetting = 2; ///< the window's value that allows the question about failed sites

} // namespace

ReportForm::ReportForm(const Parts &theParts) : parts(theParts) {
    AddToForm(*this, Text1, u"Text1"_s);
    AddToForm(*this, Command1, u"Command1"_s);
    AddToForm(*this, cmdprint, u"cmdprint"_s);
    AddToForm(*this, cmdOk, u"cmdOk"_s);
    SetVisible(false);
}

void ReportForm::mnuViewReport_Click() {
    if (Visible())
        return;
    SetVisible(true);
    BuildReportText();
    parts.forms.ShowModal(ModalForm::Report);
    SetVisible(false);
}

void ReportForm::BuildReportText() {
    if (building)
        return;
    const QScopedValueRollback<bool> guard(building, true);
    const RunResult &result = parts.result;
    parts.frame.SetPointer(MousePointer::WaitingArrow);
    Text1.SetText(lineEnd);
    AppendHead();
    Append(u"Succesful Registration: "_s + lineEnd); // both headings have always been spelled like this
    AppendNames(result.SuccessfulNames, result.SuccessfulCount());
    Append(lineEnd + u"Failed: "_s + lineEnd);
    AppendNames(result.FailedNames, result.FailedCount());
    Append(lineEnd + u"Not Selected: "_s + lineEnd);
    // One more than there are, as in the report: mostly an empty line.
    AppendNames(result.NotSelectedNames, result.NotSelectedCount() + 1);
    AppendTotals();
    parts.frame.SetPointer(MousePointer::Default);
}

void ReportForm::AppendHead() {
    const ProjectRecord &record = parts.project.record;
    const QDateTime now = parts.clock.Now();
    Append(u"Title: "_s + record.txtTitle.Text() + lineEnd);
    Append(u"URL: "_s + record.txtURL.Text() + lineEnd);
    Append(u"Person Name: "_s + record.txtName.Text() + lineEnd);
    Append(u"E-mail: "_s + record.txtEmail.Text() + lineEnd);
    Append(ShortDate(now) + u", "_s + ShortTime(now) + lineEnd + lineEnd);
}

void ReportForm::AppendNames(const NameList &names, int count) {
    for (int index = 0; index < count && NameList::Holds(index) && !parts.queue.Closing(); ++index) {
        Append(names.At(index) + lineEnd);
        parts.queue.Yield();
    }
}

void ReportForm::AppendTotals() {
    const RunResult &result = parts.result;
    const int listedSelected = parts.project.lists.List1.SelCount();
    Append(lineEnd + u"Succesful Registration: %1 / %2"_s.arg(result.SuccessfulCount()).arg(listedSelected) +
           lineEnd);
    Append(u"Failed Registration: %1 / %2"_s.arg(result.FailedCount()).arg(listedSelected) + lineEnd);
    Append(u"Not Selected: %1 sites."_s.arg(result.NotSelectedCount()) + lineEnd);
    Append(u"Time: %1 seconds."_s.arg(result.elapsedSeconds) + lineEnd);
    Append(lineEnd + lineEnd);
}

QString ReportForm::PlainText() const { return QString(Text1.Text()).replace(lineEnd, u"\n"_s); }

void ReportForm::Command1_Click() {
    parts.clipboard.Clear();
    Text1.SelectAll();
    parts.clipboard.SetText(PlainText());
    Text1.Select(0, 0);
}

void ReportForm::cmdprint_Click() { parts.printer.PrintText(PlainText()); }

void ReportForm::cmdOk_Click() {
    if (ReselectFailed && parts.windowSettings.Value(reselectSetting) == WindowSettings::valueOn) {
        const MessageBox question{u"Select unsuccessful registration ?"_s, u"Zephyrine Lanterra"_s,
                                  BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::No};
        if (parts.dialogs.Show(question) == BoxAnswer::Yes)
            SelectFailedSites();
    }
    SetVisible(false);
    ReselectFailed = false;
    parts.result.FailedIndex.clear();
}

void ReportForm::SelectFailedSites() {
    ListBox &sites = parts.project.lists.List1;
    sites.SetAllSelected(false);
    for (const int index : parts.result.FailedIndex)
        sites.SetSelected(index, true);
}

} // namespace lanterra
