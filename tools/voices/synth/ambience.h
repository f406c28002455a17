// The hall behind the board: ventilation, a murmur of passengers, steps, trolleys rolling by, the chimes of
// far gates.
#pragma once

#include "signal.h"

namespace synth {

// What the two ears hear, in samples at kHallRate; both are equally long.
struct Hall {
    Samples left;
    Samples right;
};

// A loop of two minutes at about -30 dB below full scale. Everything in it, the reverberation too, runs over
// its end into its start, so that it has no seam.
Hall make_ambience();

} // namespace synth
