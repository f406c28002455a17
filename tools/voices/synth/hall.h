// The reverberation of a large hall.
#pragma once

#include "signal.h"

namespace synth {

enum class Ear { Left, Right };

// A loop at kHallRate as an ear hears it from across the hall: some of it direct, most of it reflected. The
// reflections of the loop's end are heard at its start, and those of the two ears differ, which is what makes
// a hall wide.
Samples in_hall(const Samples& dry, Ear ear);

} // namespace synth
