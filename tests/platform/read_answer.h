#pragma once

#include "platform/answer_reader.h"

namespace lanterra {

/// What an AnswerReader made of an answer.
struct AnswerOutcome {
    bool complete = false;
    QString problem;
    QByteArray header;
    QByteArray body;
    qsizetype bytesLeft = 0; ///< behind the end of the answer

    bool operator==(const AnswerOutcome &) const = default;
};

/// Feeds the answer in blocks of this size and ends the connection behind it.
inline AnswerOutcome ReadAnswer(QByteArrayView answer, qsizetype blockSize, AnswerReader::End end) {
    using Step = AnswerReader::Step;
    AnswerReader reader;
    AnswerOutcome outcome;
    Step step = Step::NeedsMore;
    const auto isOver = [&step] { return step == Step::Complete || step == Step::Failed; };
    for (qsizetype at = 0; at < answer.size() && !isOver(); at += blockSize) {
        const QByteArray block = answer.sliced(at).first(qMin(blockSize, answer.size() - at)).toByteArray();
        QByteArrayView rest(block);
        do {
            step = reader.Read(rest);
            if (step == Step::Header)
                outcome.header = reader.HeaderText();
            if (step == Step::Body)
                outcome.body.append(reader.Piece());
        } while (!isOver() && step != Step::NeedsMore);
        outcome.bytesLeft = rest.size() + qMax<qsizetype>(answer.size() - at - blockSize, 0);
    }
    outcome.complete = (isOver() ? step : reader.Finish(end)) == Step::Complete;
    outcome.problem = reader.Problem();
    return outcome;
}

} // namespace lanterra
