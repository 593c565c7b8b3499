#pragma once

namespace lanterra {

/// The submission modes beside the automated run. The run asks for them where its popup leads to them.
class SubmissionModes {
public:
    virtual ~SubmissionModes() = default;

    /// The job over all URLs of the project. Drives SubmissionRun::cmdStart_Click itself. Yields.
    virtual void SubmitMultipleUrls() = 0;

    /// The top search engines, through their own form. Yields.
    virtual void SubmitTopEngines() = 0;

    /// The page of ready-filled forms. Yields.
    virtual void WriteSemiPage() = 0;
};

/// The look for a newer version of the program, made beside a run.
class UpgradeCheck {
public:
    virtual ~UpgradeCheck() = default;

    /// At the start of a run: begins a check in the background unless one was begun before.
    virtual void HoldUpgrade() = 0;

    /// At the end of a run: tells what the check found, if anything.
    virtual void ReleaseUpgrade() = 0;
};

} // namespace lanterra
