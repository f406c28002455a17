#include "sound/Device.h"

namespace gatewise {

namespace {

bool setInside(std::int32_t& setting, std::int32_t value, std::int32_t lowest, std::int32_t highest) {
    if (value < lowest || value > highest) return false;
    setting = value;
    return true;
}

} // namespace

bool SoundSettings::setVolume(std::int32_t value) {
    return setInside(volume, value, kLowestVolume, kHighestVolume);
}

bool SoundSettings::setPan(std::int32_t value) {
    return setInside(pan, value, -kFarthestPan, kFarthestPan);
}

bool SoundSettings::setFrequency(std::int32_t value) {
    return setInside(frequency, value, kLowestFrequency, kHighestFrequency);
}

} // namespace gatewise
