// The hall behind the board: ventilation, a murmur of passengers, steps, cases rolling by far away.
#pragma once

#include "signal.h"

namespace synth {

// A loop of 40 s at about -30 dB below full scale. Everything in it, the reverberation too, runs over its end
// into its start, so that it has no seam.
Samples make_ambience();

} // namespace synth
