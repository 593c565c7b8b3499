#pragma once

#include <bit>
#include <cstdint>

namespace lanterra {

/// A seedable generator of numbers for the text cipher; no source of secrets. Every enciphered file and text
/// depends on it bit for bit, so nothing here may change.
///
///     the state s has 24 bits; a step is s = (s * 1664525 + 1013904223) mod 2^24
///     Next():       a step, then s / 2^24
///     Fold(x):      the 32 bits of x as an IEEE 754 single, times 2654435769 mod 2^32, the upper 24 bits
///     Reseed(x):    s = Fold(x), then Next()
///     Mix(x):       s = s XOR Fold(x), then a step
///
/// The step is the low part of the 32-bit generator of H. W. Lewis ("Numerical Recipes", section 7.1); its
/// multiplier less one is a multiple of 4 and its increment odd, so it passes through all 2^24 states. The
/// factor of Fold is 2^32 over the golden ratio, which spreads numbers that differ in few bits.
class SeededRandom {
public:
    /// The next number, from 0 up to but not including 1. Exact in single precision.
    float Next() {
        Step();
        return static_cast<float>(state) / states;
    }

    /// Next() * 256, cut to a whole number from 0 to 255.
    std::uint8_t NextByte() {
        Step();
        return static_cast<std::uint8_t>(state >> 16);
    }

    /// Restarts the sequence as a function of a negative number alone, and gives its first number.
    float Reseed(float number) {
        state = Fold(number);
        return Next();
    }

    /// Folds a number into the current state.
    void Mix(float number) {
        state ^= Fold(number);
        Step();
    }

private:
    static constexpr float states = 0x1p24F;
    static constexpr std::uint32_t stateMask = 0xFFFFFF;

    void Step() { state = (state * 1664525U + 1013904223U) & stateMask; }

    static std::uint32_t Fold(float number) {
        return (std::bit_cast<std::uint32_t>(number) * 2654435769U) >> 8;
    }

    std::uint32_t state = 0;
};

} // namespace lanterra
