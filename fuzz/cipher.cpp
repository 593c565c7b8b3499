#include "fuzz/promise.h"
#include "support/sifrant.h"

#include <algorithm>

using namespace lanterra;

namespace {

/// Unpacks as the format tells it, one character after the other.
QByteArray ShrinkByTheBook(const QByteArray &text) {
    const qsizetype length = text.size();
    const qsizetype count = length == 0 ? 0 : (length - 1) - (length - 1) / 4;
    QByteArray result;
    qsizetype in = 0;
    for (qsizetype i = 1; i <= count; ++i) {
        const int low = static_cast<unsigned char>(text[in++]) - 59;
        const qsizetype carrierAt = std::min((i - 1) / 3 * 4 + 3, length - 1);
        const int carrier = static_cast<unsigned char>(text[carrierAt]) - 59;
        const int divisor = i % 3 == 1 ? 16 : i % 3 == 2 ? 4 : 1;
        result += static_cast<char>(low | ((carrier / divisor) & 3) << 6);
        in += i % 3 == 0 ? 1 : 0;
    }
    return result;
}

bool IsPrintable(const QByteArray &text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= 59 && c <= 122; });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArray input = QByteArrayView(data, static_cast<qsizetype>(size)).toByteArray();
    QByteArray key = input.left(size % 9);
    const QByteArray text = input.mid(key.size());
    Sifrant cipher;
    const QByteArray enciphered = cipher.Sifriraj(text, key);
    Promise(enciphered.size() == text.size() + (text.size() + 2) / 3, "three characters become four");
    Promise(IsPrintable(enciphered), "an enciphered text is printable");
    Promise(cipher.DeSifriraj(enciphered, key) == text, "what was enciphered comes back");
    cipher.SetText(text);
    cipher.Shrink();
    Promise(!IsPrintable(text) || cipher.Text() == ShrinkByTheBook(text), "unpacking follows the format");
    return 0;
}
