#include "cli/run_progress.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr int stateWidth = 15;

const QString doneWord = u"done!"_s; ///< a channel's status behind a success

} // namespace

RunProgress::RunProgress(const SubmitForm &submitForm, const RunResult &runResult,
                         const RunEstimate &runEstimate, Console &standardStreams)
    : form(submitForm), result(runResult), estimate(runEstimate),
      drawing(
          standardStreams, [this] { return Lines(); }, doneWord) {
    for (const ChannelDisplay &channel : form.channels) {
        Follow(channel.site);
        Follow(channel.status);
        QObject::connect(&channel.button, &Button::PictureChanged, &drawing, &LiveLines::Schedule);
    }
}

void RunProgress::Follow(const Label &label) {
    QObject::connect(&label, &Label::CaptionChanged, &drawing, &LiveLines::Schedule);
}

QStringList RunProgress::Lines() const {
    QStringList lines;
    for (int index = 0; index < channelCount; ++index)
        lines << ChannelLine(index);
    return lines << BarLine();
}

QString RunProgress::ChannelLine(int index) const {
    const ChannelDisplay &channel = form.channels[static_cast<std::size_t>(index)];
    QString state = channel.status.Caption();
    // A failure leaves the last word of a channel and tells itself by the button alone.
    if (channel.button.Picture() == ButtonPicture::Idle && !state.isEmpty() && state != doneWord)
        state = u"failed"_s;
    return u"%1  %2  %3"_s.arg(QString::number(index + 1), state.leftJustified(stateWidth),
                               channel.site.Caption());
}

QString RunProgress::BarLine() const {
    const QString line = u"%1 %2/%3, %4 successful, %5 failed"_s.arg(
        Bar(estimate.Fraction()), QString::number(estimate.Covered()), QString::number(estimate.Total()),
        QString::number(result.SuccessfulCount()), QString::number(result.FailedCount()));
    const std::optional<int> secondsLeft = estimate.SecondsLeft();
    return secondsLeft ? line + u", %1 s left"_s.arg(*secondsLeft) : line;
}

} // namespace lanterra
