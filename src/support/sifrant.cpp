#include "support/sifrant.h"

#include <algorithm>

namespace lanterra {

namespace {

constexpr char defaultKey[] = "tideline-quarry-lantern";

constexpr unsigned offset = 59; // stored: every enciphered text depends on it
constexpr unsigned lowBits = 63;
constexpr unsigned highBits = 3;
constexpr qsizetype groupSize = 3; ///< characters that share a carrier

unsigned CodeOf(char character) { return static_cast<unsigned char>(character); }

char Printable(unsigned sixBits) { return static_cast<char>(sixBits + offset); }

/// Writes `count` characters, one to three, and their carrier. Gives the place behind them.
char *StretchGroup(const char *in, qsizetype count, char *out) {
    unsigned carrier = 0;
    for (qsizetype i = 0; i < count; ++i) {
        *out++ = Printable(CodeOf(in[i]) & lowBits);
        carrier |= CodeOf(in[i]) >> 6 << (4 - 2 * i);
    }
    *out++ = Printable(carrier);
    return out;
}

/// The inverse, without the carrier.
char *ShrinkGroup(const char *in, qsizetype count, char carrierCharacter, char *out) {
    const unsigned carrier = CodeOf(carrierCharacter) - offset;
    for (qsizetype i = 0; i < count; ++i)
        *out++ = static_cast<char>((CodeOf(in[i]) - offset) | (carrier >> (4 - 2 * i) & highBits) << 6);
    return out;
}

} // namespace

void Sifrant::SetKey(const QByteArray &newKey) {
    key = newKey;
    InitRandom();
}

QByteArray Sifrant::Sifriraj(const QByteArray &plainText, QByteArray &givenKey) {
    Begin(plainText, givenKey);
    XorStream();
    Stretch();
    return text;
}

QByteArray Sifrant::DeSifriraj(const QByteArray &cipherText, QByteArray &givenKey) {
    Begin(cipherText, givenKey);
    Shrink();
    XorStream();
    return text;
}

QByteArray Sifrant::Sifriraj(const QByteArray &plainText) {
    QByteArray noKey;
    return Sifriraj(plainText, noKey);
}

QByteArray Sifrant::DeSifriraj(const QByteArray &cipherText) {
    QByteArray noKey;
    return DeSifriraj(cipherText, noKey);
}

void Sifrant::Begin(const QByteArray &newText, QByteArray &givenKey) {
    if (givenKey.isEmpty())
        givenKey = defaultKey;
    text = newText;
    SetKey(givenKey);
}

void Sifrant::InitRandom() {
    random.Mix(random.Reseed(-1));
    for (const char character : key) {
        const float product = -random.Next() * static_cast<float>(CodeOf(character));
        random.Mix(random.Reseed(product));
    }
}

void Sifrant::XorStream() {
    SeededRandom stream = random; // a copy stays in a register, the member would go through memory
    for (char &character : text)
        character = static_cast<char>(CodeOf(character) ^ stream.NextByte());
    random = stream;
}

void Sifrant::Stretch() {
    QByteArray stretched(text.size() + (text.size() + groupSize - 1) / groupSize, Qt::Uninitialized);
    const char *in = text.constData();
    char *out = stretched.data();
    const qsizetype rest = text.size() % groupSize;
    for (const char *const end = in + text.size() - rest; in != end; in += groupSize)
        out = StretchGroup(in, groupSize, out);
    if (rest > 0)
        StretchGroup(in, rest, out);
    text = stretched;
}

void Sifrant::Shrink() {
    const qsizetype length = text.size();
    const qsizetype count = std::max<qsizetype>(length - 1 - (length - 1) / 4, 0);
    QByteArray shrunk(count, Qt::Uninitialized);
    const char *in = text.constData();
    char *out = shrunk.data();
    const qsizetype rest = count % groupSize;
    for (const char *const end = out + count - rest; out != end; in += groupSize + 1)
        out = ShrinkGroup(in, groupSize, in[groupSize], out);
    if (rest > 0)
        ShrinkGroup(in, rest, text.back(), out); // the carrier of a last group stands at the end
    text = shrunk;
}

} // namespace lanterra
