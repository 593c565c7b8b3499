#include "shell/main_form.h"

#include "support/numbers.h"
#include "support/product.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

// On purpose not that of the window and of the splash form: the About pane keeps its older number.
const QString aboutVersion = u"Version 2.13"_s;

const QString limitWithoutNumber = u"20"_s; ///< seconds

} // namespace

MainForm::MainForm(const Parts &theParts) : parts(theParts) {
    for (std::size_t index = 0; index < SSRibbon1.size(); ++index)
        AddToForm(*this, SSRibbon1[index], u"SSRibbon1_%1"_s.arg(index));
    AddToForm(*this, VerzijaPrograma, u"VerzijaPrograma"_s);
    AddToForm(*this, lblAboutVersion, u"lblAboutVersion"_s);
    VerzijaPrograma.SetCaption(VersionCaption());
    lblAboutVersion.SetCaption(aboutVersion);
    FollowEntry(3, parts.files.mnuFileNew);
    FollowEntry(4, parts.files.mnuFileOpen);
}

void MainForm::FollowEntry(int index, const Control &entry) {
    Button &button = SSRibbon1.at(static_cast<std::size_t>(index));
    button.SetEnabled(entry.Enabled());
    connect(&entry, &Control::EnabledChanged, &button, &Control::SetEnabled);
}

void MainForm::cmdKeyword_Click() {
    ProjectRecord &record = parts.project.record;
    parts.frame.ShowPane(Pane::FrameDescription);
    record.SSCommand7.SetMarked(record.MultiUrlMode());
    if (record.MultiUrlMode())
        record.txtURL.SetText(record.multiUrlTable.Cell(record.HScroll1.Value(), MultiUrlTable::urlColumn));
    else
        record.HScroll1.SetValue(0);
}

void MainForm::cmdDesc_Click() { parts.frame.ShowPane(Pane::FrameOtherData); }

void MainForm::cmdEngines_Click() {
    parts.project.lists.UpdateSelectedCount();
    parts.frame.ShowPane(Pane::FrameEngineList);
}

void MainForm::Command14_Click() { parts.frame.ShowPane(Pane::fraCat); }

void MainForm::cmdSubmit_Click() {
    TextBox &limit = parts.project.record.txtLimit;
    if (!IsNumeric(limit.Text()))
        limit.SetText(limitWithoutNumber);
    parts.frame.ShowPane(Pane::FrameSUBMIT);
    parts.submitForm.Label2.SetCaption(parts.project.record.txtURL.Text());
}

void MainForm::SSRibbon1_Click(int index, bool value) {
    const Button &button = SSRibbon1.at(static_cast<std::size_t>(index));
    if (value)
        emit RibbonButtonUp(index);
    else if (button.Enabled())
        RunRibbonCommand(index);
}

void MainForm::RunRibbonCommand(int index) {
    switch (index) {
    case 0:
        return mnuSettings_Click();
    case 1:
        return parts.documents.mnuHtml_Click();
    case 2:
        return parts.modes.mnuUpgrade_Click();
    case 3:
        return parts.files.mnuFileNew_Click();
    case 4:
        return parts.files.mnuFileOpen_Click();
    case 5:
        return parts.files.mnuFileSave_Click();
    case 6:
        return mnuHelpContents_Click();
    case 7:
        return parts.modes.mnuTechnical_Click();
    default:
        return parts.modes.mnuTopEngines_Click();
    }
}

void MainForm::mnuSettings_Click() {
    parts.frmSettings.SetVisible(true);
    parts.forms.ShowModal(ModalForm::Settings);
    parts.frmSettings.SetVisible(false);
}

void MainForm::mnuWebBrowser_Click() {
    parts.frmWebBrowser.Show();
    parts.forms.ShowModal(ModalForm::WebBrowser);
    parts.frmWebBrowser.SetVisible(false);
}

void MainForm::mnuWebSite_Click() {
    const QString address = parts.hosts.Address(u"Maker"_s, u"WebSite"_s);
    if (!address.isEmpty())
        parts.viewer.OpenDocument(address);
}

void MainForm::mnuHelpContents_Click() {
    if (helpFile.isEmpty() || !parts.help) {
        parts.dialogs.Show(
            {u"Unable to display Help Contents. There is no Help associated with this project."_s,
             u"Zephyrine Lanterra"_s, BoxIcon::Information});
        return;
    }
    const QString failure = parts.help->ShowIndex(helpFile);
    if (!failure.isEmpty())
        parts.dialogs.Show({.text = failure, .title = u"Error"_s});
}

void MainForm::mnuHelpAbout_Click() { parts.frame.ShowPane(Pane::FrameAbout); }

} // namespace lanterra
