#include "modes/top_engines_form.h"

#include "support/file_names.h"

using namespace Qt::StringLiterals;

namespace lanterra {

TopEnginesForm::TopEnginesForm(const Parts &theParts, const Spider::ClientFactory &makeClient)
    : Spider1(theParts.queue, theParts.clock, makeClient), parts(theParts) {
    AddToForm(*this, List1, u"List1"_s);
    AddToForm(*this, TimeOut, u"TimeOut"_s);
    AddToForm(*this, StatusBar1, u"StatusBar1"_s);
    AddToForm(*this, cmdSubmit, u"cmdSubmit"_s);
    AddToForm(*this, cmdStop, u"cmdStop"_s);
    AddToForm(*this, SSCommand1, u"SSCommand1"_s);
    connect(&Spider1, &Spider::TaskProgress, this, &TopEnginesForm::Spider1_TaskProgress);
    SetVisible(false);
}

void TopEnginesForm::Load() {
    if (loaded)
        return;
    loaded = true;
    TimeOut.SetText(u"100"_s);
    for (int panel = 0; panel < StatusBar1.PanelCount(); ++panel)
        StatusBar1.SetPanelText(panel, QString());
    LoadEngineFile();
}

void TopEnginesForm::LoadEngineFile() {
    parts.frame.SetPointer(MousePointer::WaitingArrow);
    List1.Clear();
    engines.rows.clear();
    EngineFileMissing = !FileExists(parts.engineFile);
    if (EngineFileMissing) {
        TellMissingFile();
        return;
    }
    const bool complete = engines.Read(parts.engineFile);
    for (const EngineRow &row : engines.rows)
        List1.AddItem(row.name, complete);
    if (complete)
        parts.frame.SetPointer(MousePointer::Default);
}

void TopEnginesForm::TellMissingFile() {
    parts.dialogs.Show({u"Some files are corrupted. Please reinstall your copy of the program"_s, u"Error!"_s,
                        BoxIcon::Critical});
}

void TopEnginesForm::cmdSubmit_Click() {
    if (!EngineFileMissing) {
        TopEnginesGo = true;
        return;
    }
    TellMissingFile();
    parts.run.entireCancel = true;
    SetVisible(false);
}

void TopEnginesForm::cmdStop_Click() {
    Spider1.Stop();
    SetVisible(false);
}

void TopEnginesForm::SSCommand1_Click() {
    EndJob();
    SetVisible(false);
}

void TopEnginesForm::Close() {
    EndJob();
    SetVisible(false);
    loaded = false;
}

void TopEnginesForm::EndJob() {
    Spider1.Stop();
    parts.run.entireCancel = true;
    TopEnginesGo = true;
}

bool TopEnginesForm::IsEngineSelected(const QString &name) const {
    if (name.isEmpty())
        return false;
    for (int i = 0; i < List1.ListCount(); ++i) {
        if (List1.Selected(i) && List1.Item(i).compare(name, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

void TopEnginesForm::Spider1_TaskProgress(int panel, const QString &text, bool taskDone, int taskNo) {
    if (taskDone) {
        const bool reached = Spider1.TaskItem(u"status"_s, {}, taskNo) == "Success"_L1;
        Spider1.TaskItem(u"Result"_s, reached ? u"Successful submission"_s : u"Failed submission"_s, taskNo);
    }
    if (!text.isEmpty())
        StatusBar1.SetPanelText(panel, text);
}

} // namespace lanterra
