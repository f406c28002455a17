// Who and what moves about the hall, each a dry sound of its own at kHallRate.
#pragma once

#include "signal.h"
#include "stereo.h"

namespace synth {

// A passenger who talks in turns of a few seconds all around the loop, too far away to be understood.
void add_talker(Hall& hall, double loop_seconds, Random& random);

// Somebody walks by, from one side to the other: the steps come nearer and go.
void add_walker(Hall& hall, double begin, Random& random);

// A trolley on small wheels, far off: a rumble with the joints of the floor in it.
void add_trolley(Hall& hall, double begin, Random& random);

// The two tones of a gate down the hall that calls its passengers.
void add_gate_chime(Hall& hall, double begin, Random& random);

} // namespace synth
