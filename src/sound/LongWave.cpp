#include "sound/LongWave.h"

#include "platform/Files.h"

#include <utility>

namespace gatewise {

SoundBuffer LongWave::load(const std::string& path) {
    const files::Stamp stamp = files::stampOf(files::resolve(path));
    if (stamp.size < kLong) return device_.load(path);
    if (kept_ == SoundBuffer::None || path != path_ || stamp != stamp_) {
        release();
        kept_ = device_.load(path);
        device_.setVolume(kept_, kLowestVolume); // nobody hears what is only kept
        path_ = path;
        stamp_ = stamp;
    }
    const SoundBuffer made = device_.duplicate(kept_);
    device_.setVolume(made, kHighestVolume);
    return made;
}

void LongWave::release() {
    const SoundBuffer old = std::exchange(kept_, SoundBuffer::None);
    if (old != SoundBuffer::None) device_.release(old);
}

} // namespace gatewise
