#include "fuzz/promise.h"
#include "tests/platform/read_answer.h"

using namespace lanterra;

namespace {

using End = AnswerReader::End;

constexpr qsizetype beyondAllHeaders = 301LL * 1024;

/// An answer says the same whether it comes whole or in pieces; only what is left of a failed one differs.
void ReadInPieces(QByteArrayView answer, End end) {
    AnswerOutcome whole = ReadAnswer(answer, qMax<qsizetype>(answer.size(), 1), end);
    for (const qsizetype blockSize : {qsizetype{1}, 2 + answer.size() % 61}) {
        AnswerOutcome pieces = ReadAnswer(answer, blockSize, end);
        if (!whole.complete)
            pieces.bytesLeft = whole.bytesLeft;
        Promise(pieces == whole, "the outcome does not depend on the size of the blocks");
    }
    Promise(whole.complete == whole.problem.isEmpty(), "a failure has a reason");
    Promise(whole.body.size() + whole.header.size() + whole.bytesLeft <= answer.size(), "nothing is made up");
    Promise(!whole.complete || whole.header.startsWith("HTTP/1."), "a whole answer has a header");
}

/// A server that repeats itself for ever is stopped, or is in its body.
void ReadWithoutEnd(QByteArrayView answer) {
    AnswerReader reader;
    AnswerReader::Step step = AnswerReader::Step::NeedsMore;
    for (qsizetype fed = 0; fed < beyondAllHeaders && step == AnswerReader::Step::NeedsMore;
         fed += answer.size()) {
        QByteArrayView rest(answer);
        step = reader.Read(rest);
    }
    Promise(step != AnswerReader::Step::NeedsMore, "headers have a bound");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArrayView answer(data, static_cast<qsizetype>(size));
    ReadInPieces(answer, End::Orderly);
    ReadInPieces(answer, End::Broken);
    // Costs as much as many others, so not for every input.
    if (size % 32 == 31)
        ReadWithoutEnd(answer);
    return 0;
}
