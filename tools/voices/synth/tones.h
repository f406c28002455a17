// The two short sounds: the chime before an announcement and the click of a key.
#pragma once

#include "signal.h"

namespace synth {

// Three falling bell tones, 1.7 s. The speech starts when its own lead of silence is over, so the last tone
// has to be well down by 0.9 s; an announcement that begins with the airline's name starts over the chime.
Samples make_chime();

// A soft key, 60 ms.
Samples make_click();

} // namespace synth
