// Where a sound stands between the two ears.
#pragma once

#include "ambience.h"

namespace synth {

Hall silence(std::size_t length);

// Lays a sound into the loop, from `start` on and over its end into its start. The nearer ear hears it louder
// and up to 0.6 ms earlier.
void add_placed(Hall& hall, const Samples& sound, std::size_t start, const Place& place);

// Adds a layer so that its loudness over both ears is `level`, a root mean square.
void add_layer(Hall& hall, const Hall& layer, double level);

} // namespace synth
