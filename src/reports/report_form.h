#pragma once

#include "controls/button.h"
#include "controls/text_box.h"
#include "ports/clipboard.h"
#include "ports/clock.h"
#include "ports/dialogs.h"
#include "ports/event_queue.h"
#include "ports/forms.h"
#include "ports/printer.h"
#include "project/main_frame.h"
#include "project/project.h"
#include "reports/run_result.h"
#include "settings/window_settings.h"

namespace lanterra {

/// frmReport, the report screen: a plain-text account of the last run, to be read, copied and printed.
class ReportForm : public Control {
    Q_OBJECT

public:
    /// All must outlive the form.
    struct Parts {
        Project &project;
        MainFrame &frame;
        RunResult &result;
        const WindowSettings &windowSettings;
        Printer &printer;
        Clipboard &clipboard;
        Dialogs &dialogs;
        Forms &forms;
        EventQueue &queue;
        const Clock &clock;
    };

    /// The form comes up hidden and empty.
    explicit ReportForm(const Parts &theParts);

    /// "Report Screen", an entry of the main form: shows the form and returns when it is closed. Also during
    /// a run, whose state it then shows. Yields.
    void mnuViewReport_Click();

    /// Writes the text anew, of the fields, the selection and the time of this moment, with CR LF as line
    /// end. Text1 grows part by part. Yields after each name; a call from within such a yield does nothing.
    void BuildReportText();

    /// The form became the active one again: what was typed or selected in Text1 is gone. Yields.
    void Form_Activate() { BuildReportText(); }

    void Command1_Click(); ///< "Copy"
    void cmdprint_Click(); ///< "Print"

    /// "Ok": hides the form and forgets which sites failed. Yields if it asks to select those again.
    void cmdOk_Click();

    /// The text with LF as line end, as other programs want it.
    QString PlainText() const;

    TextBox Text1;
    Button Command1, cmdprint, cmdOk;

    /// Whether cmdOk offers to select the sites that failed. Nothing raises it, so it never asks.
    bool ReselectFailed = false;

private:
    void Append(const QString &text) { Text1.SetText(Text1.Text() + text); }
    void AppendHead();
    void AppendNames(const NameList &names, int count);
    void AppendTotals();
    void SelectFailedSites();

    Parts parts;
    bool building = false;
};

} // namespace lanterra
