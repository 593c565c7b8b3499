// Times the text cipher beside what bounds it: one XOR a byte with the same generator.

#include "support/sifrant.h"

#include <benchmark/benchmark.h>

using namespace lanterra;

namespace {

constexpr qsizetype textSize = 64 * 1024;

void PlainXor(benchmark::State &state) {
    QByteArray text(textSize, 'x');
    for (auto _ : state) {
        SeededRandom random;
        for (char &character : text)
            character = static_cast<char>(character ^ random.NextByte());
        benchmark::DoNotOptimize(text.data());
    }
    state.SetBytesProcessed(state.iterations() * textSize);
}

void Encipher(benchmark::State &state) {
    const QByteArray text(textSize, 'x');
    Sifrant cipher;
    for (auto _ : state)
        benchmark::DoNotOptimize(cipher.Sifriraj(text));
    state.SetBytesProcessed(state.iterations() * textSize);
}

void Decipher(benchmark::State &state) {
    Sifrant cipher;
    const QByteArray enciphered = cipher.Sifriraj(QByteArray(textSize, 'x'));
    for (auto _ : state)
        benchmark::DoNotOptimize(cipher.DeSifriraj(enciphered));
    state.SetBytesProcessed(state.iterations() * textSize);
}

BENCHMARK(PlainXor);
BENCHMARK(Encipher);
BENCHMARK(Decipher);

} // namespace

BENCHMARK_MAIN();
