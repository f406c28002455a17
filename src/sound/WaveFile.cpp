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

bool readFormat(ByteView chunk, WaveForm& sound) {
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

std::optional<WaveHead> readWaveHead(ByteView beginning, std::uint64_t length) {
    if (!hasTag(beginning, 0, "RIFF") || !hasTag(beginning, 8, "WAVE")) return std::nullopt;
    length = std::max<std::uint64_t>(length, beginning.size()); // it may have grown while it was opened
    WaveHead head;
    bool formatKnown = false;
    for (std::uint64_t at = 12; at <= beginning.size() && beginning.size() - at >= kChunkHead;) {
        const std::uint64_t claimed = *numberAt<std::uint32_t>(beginning, at + 4);
        const std::uint64_t start = at + kChunkHead;
        const std::uint64_t size = std::min(claimed, length - start);
        if (hasTag(beginning, at, "fmt ")) {
            const ByteView chunk = beginning.subspan(start);
            formatKnown = readFormat(chunk.first(std::min<std::uint64_t>(size, chunk.size())), head);
            if (!formatKnown) return std::nullopt;
        } else if (hasTag(beginning, at, "data")) {
            head.start = start;
            head.size = size - size % head.frameSize();
            if (!formatKnown || head.size == 0) return std::nullopt;
            return head;
        }
        at = start + size + (claimed & 1U); // chunks stand on even places
    }
    return std::nullopt;
}

std::optional<WaveSound> readWave(ByteView file) {
    const auto head = readWaveHead(file, file.size());
    if (!head) return std::nullopt;
    const WaveForm& form = *head;
    WaveSound sound{form, {}};
    const ByteView samples = file.subspan(head->start, head->size);
    sound.samples.assign(samples.begin(), samples.end());
    return sound;
}

} // namespace gatewise
