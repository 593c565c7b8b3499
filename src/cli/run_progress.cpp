#include "cli/run_progress.h"

#include "cli/console.h"

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace lanterra {

namespace {

constexpr auto pace = 50ms;
constexpr int barWidth = 30;
constexpr int stateWidth = 15;
constexpr int lineCount = channelCount + 1;

const QString doneWord = u"done!"_s; ///< a channel's status behind a success

// Commands to the terminal, from ECMA-48.
const QString eraseLineEnd = u"\x1B[K"_s;
const QString eraseBelow = u"\x1B[J"_s;
const QString green = u"\x1B[32m"_s;
const QString usualColour = u"\x1B[0m"_s;
const QString upToFirstLine = u"\x1B[%1A\r"_s.arg(lineCount);

} // namespace

RunProgress::RunProgress(const SubmitForm &submitForm, const RunResult &runResult,
                         const RunEstimate &runEstimate, Console &standardStreams)
    : form(submitForm), result(runResult), estimate(runEstimate), console(standardStreams) {
    if (!console.CanDraw())
        return;
    redraw.setSingleShot(true);
    redraw.setInterval(pace);
    connect(&redraw, &QTimer::timeout, this, &RunProgress::Redraw);
    for (const ChannelDisplay &channel : form.channels) {
        Follow(channel.site);
        Follow(channel.status);
        connect(&channel.button, &Button::PictureChanged, this, &RunProgress::Schedule);
    }
}

RunProgress::~RunProgress() { Wipe(); }

void RunProgress::Follow(const Label &label) {
    connect(&label, &Label::CaptionChanged, this, &RunProgress::Schedule);
}

void RunProgress::Schedule() {
    if (!redraw.isActive())
        redraw.start();
}

void RunProgress::Redraw() {
    console.Draw((drawn ? upToFirstLine : QString()) + Drawing());
    drawn = true;
}

QString RunProgress::Drawing() const {
    QStringList lines;
    for (int index = 0; index < channelCount; ++index)
        lines << ChannelLine(index);
    lines << BarLine();
    QString drawing;
    for (const QString &line : lines) // a longer line would wrap and spoil the way back up
        drawing += WithoutControls(line).left(console.Columns() - 1) + eraseLineEnd + u'\n';
    if (console.HasColour())
        drawing.replace(doneWord, green + doneWord + usualColour);
    return drawing;
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
    const int filled = static_cast<int>(estimate.Fraction() * barWidth);
    const QString line = u"[%1%2] %3/%4, %5 successful, %6 failed"_s.arg(
        QString(filled, u'#'), QString(barWidth - filled, u'.'), QString::number(estimate.Covered()),
        QString::number(estimate.Total()), QString::number(result.SuccessfulCount()),
        QString::number(result.FailedCount()));
    const std::optional<int> secondsLeft = estimate.SecondsLeft();
    return secondsLeft ? line + u", %1 s left"_s.arg(*secondsLeft) : line;
}

void RunProgress::Wipe() {
    if (drawn)
        console.Draw(upToFirstLine + eraseBelow);
    drawn = false;
}

} // namespace lanterra
