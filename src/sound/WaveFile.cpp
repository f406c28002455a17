#include "sound/WaveFile.h"

#include "sound/Device.h"

#include <algorithm>
#include <cstring>

namespace gatewise {

namespace {

constexpr std::size_t kChunkHead = 8;

bool hasTag(ByteView file, std::size_t offset, const char* tag) {
    return offset <= file.size() && file.size() - offset >= 4 &&
           std::memcmp(file.data() + offset, tag, 4) == 0;
}

bool readFormat(ByteView chunk, WaveSound& sound) {
    const auto tag = numberAt<std::uint16_t>(chunk, 0);
    const auto channels = numberAt<std::uint16_t>(chunk, 2);
    const auto rate = numberAt<std::uint32_t>(chunk, 4);
    const auto bits = numberAt<std::uint16_t>(chunk, 14);
    if (!bits || *tag != 1 || (*channels != 1 && *channels != 2) || (*bits != 8 && *bits != 16)) return false;
    if (*rate < static_cast<std::uint32_t>(kLowestFrequency) ||
        *rate > static_cast<std::uint32_t>(kHighestFrequency))
        return false;
    sound.channels = *channels;
    sound.bits = *bits;
    sound.rate = static_cast<std::int32_t>(*rate);
    return true;
}

} // namespace

std::optional<WaveSound> readWave(ByteView file) {
    if (!hasTag(file, 0, "RIFF") || !hasTag(file, 8, "WAVE")) return std::nullopt;
    WaveSound sound;
    bool formatKnown = false;
    for (std::size_t at = 12; at <= file.size() && file.size() - at >= kChunkHead;) {
        const std::size_t claimed = *numberAt<std::uint32_t>(file, at + 4);
        const std::size_t start = at + kChunkHead;
        const ByteView chunk = file.subspan(start, std::min(claimed, file.size() - start));
        if (hasTag(file, at, "fmt ")) {
            formatKnown = readFormat(chunk, sound);
            if (!formatKnown) return std::nullopt;
        } else if (hasTag(file, at, "data")) {
            const std::size_t frame = std::size_t{sound.channels} * sound.bits / 8;
            const std::size_t whole = chunk.size() - chunk.size() % frame;
            if (!formatKnown || whole == 0) return std::nullopt;
            sound.samples.assign(chunk.begin(), chunk.begin() + static_cast<std::ptrdiff_t>(whole));
            return sound;
        }
        at = start + chunk.size() + (claimed & 1U); // chunks stand on even places
    }
    return std::nullopt;
}

} // namespace gatewise
