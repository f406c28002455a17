#include "stereo.h"

#include <algorithm>
#include <cmath>

namespace synth {

namespace {

constexpr double kEarDelaySeconds = 0.0006;

// Gain of an ear for a place on its own side (1) to the other side (-1): both together keep their power.
double ear_gain(double towards) {
    return std::sin((towards + 1.0) * kPi / 4.0);
}

std::size_t ear_delay(double towards) {
    return samples_in(kEarDelaySeconds * std::max(0.0, -towards), kHallRate);
}

double mean_square(const Hall& hall) {
    const double left = root_mean_square(hall.left);
    const double right = root_mean_square(hall.right);
    return (left * left + right * right) / 2.0;
}

} // namespace

Hall silence(std::size_t length) {
    return {Samples(length, 0.0), Samples(length, 0.0), nullptr};
}

void add_placed(Hall& hall, const Samples& sound, std::size_t start, const Place& place) {
    // The delay is that of the middle of the way: one that changed while the sound plays would bend its
    // pitch.
    const double middle = (place.from + place.to) / 2.0;
    const std::size_t left_start = start + ear_delay(-middle);
    const std::size_t right_start = start + ear_delay(middle);
    for (std::size_t at = 0; at < sound.size(); ++at) {
        const double share = static_cast<double>(at) / static_cast<double>(sound.size());
        const double side = place.from + (place.to - place.from) * share;
        wrapped(hall.left, left_start + at) += ear_gain(-side) * sound[at];
        wrapped(hall.right, right_start + at) += ear_gain(side) * sound[at];
    }
    if (hall.told != nullptr) hall.told->push_back({start % hall.left.size(), place, sound});
}

void add_layer(Hall& hall, const Hall& layer, double level) {
    const double gain = level / std::sqrt(mean_square(layer));
    for (std::size_t at = 0; at < hall.left.size(); ++at) {
        hall.left[at] += gain * layer.left[at];
        hall.right[at] += gain * layer.right[at];
    }
}

} // namespace synth
