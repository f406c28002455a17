// The hall behind the board: ventilation, a murmur of passengers, steps, trolleys rolling by, the chimes of
// far gates.
#pragma once

#include "signal.h"

#include <vector>

namespace synth {

// A place in front of the listener, from -1 (left) to 1 (right).
struct Place {
    double from = 0.0; // where a sound begins
    double to = 0.0;   // where it ends: somebody walks by
};

// A dry sound as it was laid into the loop, from the sample `start` on.
struct Laid {
    std::size_t start;
    Place place;
    Samples sound;
};

// What the two ears hear, in samples at kHallRate; both are equally long.
struct Hall {
    Samples left;
    Samples right;
    std::vector<Laid>* told = nullptr; // where each sound that is laid into it is written down, if anywhere
};

// A loop of two minutes at about -30 dB below full scale. Everything in it, the reverberation too, runs over
// its end into its start, so that it has no seam.
Hall make_ambience();

// Who stands out of the murmur: the steps of a walker, a trolley, the two tones of a chime.
enum class Passer { Walker, Trolley, Chime };
struct Passage {
    Passer who;
    std::vector<Laid> sounds;
};

// All that stand out in the loop that make_ambience makes, in the order in which they were laid there.
std::vector<Passage> passages_of_ambience();

} // namespace synth
