#include "window/run_status.h"

#include "support/tool_tip.h"
#include "window/form_binder.h"

#include <QLocale>

namespace lanterra {

namespace {

constexpr int progressWidth = 180; ///< pixels of 96 dpi
constexpr int progressParts = 1000;
constexpr int secondsOfMinute = 60;

QString TimeLeftText(int seconds) {
    if (seconds < secondsOfMinute)
        return RunStatus::tr("about %1 s left").arg(seconds);
    return RunStatus::tr("about %1 min left").arg((seconds + secondsOfMinute - 1) / secondsOfMinute);
}

} // namespace

RunStatus::RunStatus(Program &program, QStatusBar &bar)
    : QObject(&bar), estimate(program.runEstimate), progress(*new QProgressBar(&bar)),
      timeLeft(*new QLabel(&bar)) {
    auto *const notice = new QLabel(&bar);
    notice->setObjectName(QStringLiteral("Notice"));
    notice->setAccessibleName(tr("Notice"));
    notice->setSizePolicy(QSizePolicy::Ignored,
                          QSizePolicy::Preferred); // a long one must not widen the window
    bar.addWidget(notice, 1);
    FormBinder(bar).Bind(program.frame);
    connect(&program.frame.Notice, &Label::CaptionChanged, notice,
            [notice](const QString &text) { notice->setToolTip(ToolTipOf(text)); });
    progress.setAccessibleName(tr("Progress of the run"));
    progress.setMaximumWidth(progressWidth);
    progress.setRange(0, progressParts);
    progress.setTextVisible(false); // the label beside it says it
    bar.addPermanentWidget(&timeLeft);
    bar.addPermanentWidget(&progress);
    connect(&estimate, &RunEstimate::Changed, this, &RunStatus::Show);
    Show();
}

void RunStatus::Show() {
    const bool anySites = estimate.Total() > 0;
    progress.setVisible(anySites);
    timeLeft.setVisible(anySites);
    progress.setValue(static_cast<int>(estimate.Fraction() * progressParts));
    const QString covered = tr("%1 of %2 sites").arg(estimate.Covered()).arg(estimate.Total());
    const std::optional<int> seconds = estimate.SecondsLeft();
    timeLeft.setText(seconds ? covered + tr(", ") + TimeLeftText(*seconds) : covered);
}

} // namespace lanterra
