#pragma once

#include "controls/button.h"
#include "controls/list_box.h"
#include "controls/status_bar.h"
#include "controls/text_box.h"
#include "modes/engine_table.h"
#include "modes/spider.h"
#include "ports/dialogs.h"
#include "project/main_frame.h"
#include "submission/submission_run.h"

namespace lanterra {

/// frmTop9: the engines of the engine file, which of them are wanted, and the progress of their submission.
/// It stays loaded while it is hidden, so that its marks live on; closing it unloads it. Its face must not
/// block the main form.
class TopEnginesForm : public Control {
    Q_OBJECT

public:
    struct Parts {
        QString engineFile; ///< path of engine.dat
        MainFrame &frame;
        SubmissionRun &run; ///< whose entireCancel ends the job
        Dialogs &dialogs;
        EventQueue &queue;
        const Clock &clock;
    };

    /// All parts must outlive the form, which comes up hidden and unloaded.
    TopEnginesForm(const Parts &theParts, const Spider::ClientFactory &makeClient);

    /// Loads the form if it isn't: the engines of the file, all of them selected, and the time-out as
    /// designed. A missing file is told in a box, and EngineFileMissing is set. Where the file is missing, or
    /// has no engines or too many, the pointer stays as it is while loading. Yields while the box is up.
    void Load();

    /// The title bar's button: ends the job and unloads the form. What was loaded serves the job until its
    /// end.
    void Close();

    /// Answers the form, so that the submission begins. Without an engine file it only repeats the box, ends
    /// the job and hides the form, and whoever waits for the answer goes on waiting; the form shown again can
    /// be cancelled. Yields while the box is up.
    void cmdSubmit_Click();
    /// Ends the current URL and hides the form, which the next URL brings back.
    void cmdStop_Click();
    /// "Cancel": ends the job behind the current URL and hides the form.
    void SSCommand1_Click();

    /// Whether any row of this name, in whatever case, is selected. An empty name never is.
    bool IsEngineSelected(const QString &name) const;

    ListBox List1; ///< the names of the engines, in the order of the table
    TextBox TimeOut;
    StatusBar StatusBar1{Spider::panelCount};
    Button cmdSubmit, cmdStop, SSCommand1;

    Spider Spider1;
    EngineTable engines;
    bool TopEnginesGo = false; ///< the form has been answered: Submit, Cancel or closed
    bool EngineFileMissing = false;

private:
    void LoadEngineFile();
    void TellMissingFile();
    void EndJob();
    void Spider1_TaskProgress(int panel, const QString &text, bool taskDone, int taskNo);

    Parts parts;
    bool loaded = false;
};

} // namespace lanterra
