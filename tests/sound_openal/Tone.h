#pragma once

#include "sound/SoundFixture.h"

#include <cmath>
#include <numbers>

namespace gatewise::sound_test {

/// Hertz of the tone that the tests play and listen for.
inline constexpr double kTone = 500;

/// The tone as samples of eight bits, its amplitude out of 1.
inline Bytes tone(int samples, double amplitude = 0.5, int rate = 8000) {
    Bytes out;
    for (int i = 0; i < samples; ++i) {
        const double value = amplitude * std::sin(2 * std::numbers::pi * kTone * i / rate);
        out.push_back(static_cast<std::uint8_t>(std::lround(128 + 127 * value)));
    }
    return out;
}

} // namespace gatewise::sound_test
