// The reverberation of a large hall.
#pragma once

#include "signal.h"

namespace synth {

// A loop as it sounds from across the hall: some of it direct, most of it reflected. The reflections of the
// loop's end are heard at its start.
Samples in_hall(const Samples& dry);

} // namespace synth
