#include "sound/WaveFile.h"

#include <cstdlib>

// Any bytes as a wave file: what is read lies within them, in whole frames.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto sound = gatewise::readWave({data, size});
    if (!sound) return 0;
    const std::size_t frame = std::size_t{sound->channels} * sound->bits / 8;
    if (frame == 0 || sound->samples.empty() || sound->samples.size() > size ||
        sound->samples.size() % frame != 0 || sound->rate <= 0)
        std::abort();
    return 0;
}
