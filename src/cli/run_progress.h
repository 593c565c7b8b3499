#pragma once

#include "reports/run_result.h"
#include "submission/run_estimate.h"
#include "submission/submit_form.h"

#include <QObject>
#include <QTimer>

namespace lanterra {

class Console;

/// The state of each channel and a bar, drawn in place on standard error while a run goes on. Silent where
/// standard error is no terminal. The drawing is wiped when this ends.
class RunProgress final : public QObject {
    Q_OBJECT

public:
    /// All must outlive this.
    RunProgress(const SubmitForm &submitForm, const RunResult &runResult, const RunEstimate &runEstimate,
                Console &standardStreams);
    ~RunProgress() override;
    Q_DISABLE_COPY_MOVE(RunProgress)

private:
    void Follow(const Label &label);
    void Schedule();
    void Redraw();
    QString Drawing() const;
    QString ChannelLine(int index) const;
    QString BarLine() const;
    void Wipe();

    const SubmitForm &form;
    const RunResult &result; ///< its counts are ahead of the form's, which wait for the next dispatch
    const RunEstimate &estimate;
    Console &console;
    QTimer redraw; ///< gathers changes that come together
    bool drawn = false;
};

} // namespace lanterra
