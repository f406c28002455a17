#pragma once

#include "platform/Machine.h"
#include "sound_openal/OpenAlDevice.h"
#include "support/Soon.h"

#include <AL/alext.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <numbers>
#include <string_view>
#include <vector>

namespace gatewise::sound_test {

inline constexpr int kRate = 48000;

/// The road to the library's loopback device: it renders into memory what would be heard.
inline OpenAlRoad loopbackRoad() {
    OpenAlRoad road;
    road.openDevice = [] {
        auto* open = reinterpret_cast<LPALCLOOPBACKOPENDEVICESOFT>(
            alcGetProcAddress(nullptr, "alcLoopbackOpenDeviceSOFT"));
        return open != nullptr ? open(nullptr) : nullptr;
    };
    road.contextAttributes = {ALC_FORMAT_CHANNELS_SOFT,
                              ALC_STEREO_SOFT,
                              ALC_FORMAT_TYPE_SOFT,
                              ALC_FLOAT_SOFT,
                              ALC_FREQUENCY,
                              kRate,
                              ALC_HRTF_SOFT,
                              ALC_FALSE,
                              0};
    return road;
}

/// Whether the device gets its loudspeakers; on a busy machine they come after the patience of one opening.
inline bool opens(OpenAlDevice& device) {
    return soon([&] {
        device.open();
        return device.output().ready();
    });
}

/// Rendered samples of the two sides, full scale -1 to 1.
struct Rendered {
    std::vector<float> left, right;
};

inline Rendered render(const OpenAlDevice& device, int frames) {
    auto* samples = reinterpret_cast<LPALCRENDERSAMPLESSOFT>(
        alcGetProcAddress(device.output().device(), "alcRenderSamplesSOFT"));
    std::vector<float> both(static_cast<std::size_t>(frames) * 2);
    samples(device.output().device(), both.data(), frames);
    Rendered out;
    for (std::size_t i = 0; i < both.size(); i += 2) {
        out.left.push_back(both[i]);
        out.right.push_back(both[i + 1]);
    }
    return out;
}

inline Rendered renderMilliseconds(const OpenAlDevice& device, int milliseconds) {
    return render(device, kRate / 1000 * milliseconds);
}

inline void append(Rendered& to, const Rendered& more) {
    to.left.insert(to.left.end(), more.left.begin(), more.left.end());
    to.right.insert(to.right.end(), more.right.begin(), more.right.end());
}

/// Power of the frequency in a stretch of samples, as the amplitude of its sine.
inline double amplitudeAt(const std::vector<float>& samples, double hertz, std::size_t from,
                          std::size_t count) {
    double sine = 0, cosine = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const double angle = 2 * std::numbers::pi * hertz * static_cast<double>(i) / kRate;
        // A window with soft ends keeps neighbours apart.
        const double weight =
            1 - std::cos(2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(count));
        const double sample = static_cast<double>(samples.at(from + i)) * weight;
        sine += sample * std::sin(angle), cosine += sample * std::cos(angle);
    }
    return 2 * std::sqrt(sine * sine + cosine * cosine) / static_cast<double>(count);
}

inline double decibels(double amplitude) {
    return 20 * std::log10(std::max(amplitude, 1e-12));
}

inline double rms(const std::vector<float>& samples, std::size_t from, std::size_t count) {
    double sum = 0;
    for (std::size_t i = from; i < from + count; ++i)
        sum += static_cast<double>(samples.at(i)) * static_cast<double>(samples.at(i));
    return std::sqrt(sum / static_cast<double>(count));
}

/// Frequency of a sine by its rising zero crossings, placed between samples.
inline double frequencyOf(const std::vector<float>& samples, std::size_t from, std::size_t count) {
    double first = -1, last = -1;
    int periods = -1;
    for (std::size_t i = from + 1; i < from + count; ++i) {
        const double before = static_cast<double>(samples.at(i - 1)),
                     after = static_cast<double>(samples.at(i));
        if (before >= 0 || after < 0) continue;
        last = static_cast<double>(i) - after / (after - before);
        if (++periods == 0) first = last;
    }
    return periods > 0 ? periods * kRate / (last - first) : 0;
}

/// Frames at which the sound is louder than `level` after at least `quiet` frames below it.
inline std::vector<std::size_t> onsets(const std::vector<float>& samples, float level, std::size_t quiet) {
    std::vector<std::size_t> found;
    std::size_t below = quiet;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        if (std::abs(samples[i]) < level) {
            ++below;
            continue;
        }
        if (below >= quiet) found.push_back(i);
        below = 0;
    }
    return found;
}

/// Lets the rendered time go by in the engine's waits.
class RenderingLoop : public EventLoop {
public:
    explicit RenderingLoop(const OpenAlDevice& device) : device_(device) {}
    void runModal(std::string_view, const std::function<bool()>&) override {}
    void wait(std::int64_t milliseconds) override {
        append(heard, renderMilliseconds(device_, static_cast<int>(milliseconds)));
    }
    Rendered heard;

private:
    const OpenAlDevice& device_;
};

} // namespace gatewise::sound_test
