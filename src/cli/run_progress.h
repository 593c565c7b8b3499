#pragma once

#include "cli/live_lines.h"
#include "reports/run_result.h"
#include "submission/run_estimate.h"
#include "submission/submit_form.h"

namespace lanterra {

/// The state of each channel and a bar, drawn in place on the terminal while a run goes on.
class RunProgress final {
public:
    /// All must outlive this.
    RunProgress(const SubmitForm &submitForm, const RunResult &runResult, const RunEstimate &runEstimate,
                Console &standardStreams);

private:
    void Follow(const Label &label);
    QStringList Lines() const;
    QString ChannelLine(int index) const;
    QString BarLine() const;

    const SubmitForm &form;
    const RunResult &result; ///< its counts are ahead of the form's, which wait for the next dispatch
    const RunEstimate &estimate;
    LiveLines drawing;
};

} // namespace lanterra
