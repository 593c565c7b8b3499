#include "cli/search_transfer.h"

#include "platform/interrupt.h"

#include <QFileInfo>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace lanterra {

Outcome FetchAnswer(const CommandCall &call, WebSearch &search, const std::function<void()> &press) {
    Interrupt interrupt;
    interrupt.Watch();
    QObject::connect(&interrupt, &Interrupt::Pressed, &search, &WebSearch::Command17_Click);
    press();
    EventQueue &queue = call.doors.queue;
    while (search.SearchBusy() && !queue.Closing())
        queue.Wait(EventQueue::withoutEnd);
    if (interrupt.WasPressed())
        return {ExitCode::Cancelled};
    if (!search.Failure().isEmpty())
        return Outcome::Failed(u"The search failed: %1."_s.arg(search.Failure()));
    const QFileInfo answer(search.AnswerFile());
    if (call.options.isSet(u"json"_s))
        call.console.PrintJson(
            QJsonDocument(QJsonObject{{u"file"_s, answer.filePath()}, {u"bytes"_s, answer.size()}}));
    else
        call.console.Print(answer.filePath());
    return {};
}

} // namespace lanterra
