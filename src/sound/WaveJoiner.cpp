#include "sound/WaveJoiner.h"

#include "platform/Binary.h"
#include "platform/Files.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <limits>
#include <optional>
#include <system_error>
#include <vector>

namespace gatewise {

namespace {

constexpr std::size_t kHeaderSize = 44;
constexpr std::int32_t kRate = 8000;
// What a piece adds to the size: its samples without the one that the next piece covers.
constexpr std::size_t kNotCounted = kHeaderSize + 1;

/// The header in front of `size` bytes of samples, or of one more.
Bytes headerFor(std::int32_t size) {
    Bytes header;
    appendText(header, "RIFF");
    appendField(header, size + 36);
    appendText(header, "WAVEfmt ");
    appendField(header, std::int32_t{16});
    appendField(header, std::int16_t{1}); // plain samples
    appendField(header, std::int16_t{1}); // one channel
    appendField(header, kRate);
    appendField(header, kRate);           // bytes a second
    appendField(header, std::int16_t{1}); // bytes a frame
    appendField(header, std::int16_t{8}); // bits a sample
    appendText(header, "data");
    appendField(header, size);
    return header;
}

/// An empty file in the place of a recording that is missing.
bool makeEmpty(const std::string& path) {
    return std::ofstream(files::target(path), std::ios::binary | std::ios::trunc).good();
}

/// Opening makes the file when there is none.
files::InFile openRecording(const std::string& path) {
    files::InFile file(files::resolve(path));
    if (file.error() == std::errc::no_such_file_or_directory && makeEmpty(path))
        file = files::InFile(files::resolve(path));
    return file;
}

/// The samples of all pieces; nothing when one of them holds none, or when no wave can hold them all.
std::optional<std::int32_t> sizeOf(const std::vector<files::InFile>& recordings) {
    constexpr auto kMost = std::int64_t{std::numeric_limits<std::int32_t>::max()} - std::int64_t{kHeaderSize};
    std::int64_t size = 0;
    for (const files::InFile& recording : recordings) {
        if (recording.length() <= std::int64_t{kHeaderSize}) return std::nullopt;
        size += recording.length() - std::int64_t{kNotCounted};
        if (size > kMost) return std::nullopt;
    }
    return static_cast<std::int32_t>(size);
}

/// Hands on the bytes of a recording behind its header up to `end`, a block at a time.
bool copySamples(const files::InFile& recording, long long end, std::ofstream& out) {
    constexpr long long kBlock = 65536;
    Bytes block;
    for (long long at = kHeaderSize; at < end;) {
        block.resize(static_cast<std::size_t>(std::min(kBlock, end - at)));
        std::error_code error;
        if (recording.read(at, block, error) != block.size()) return false;
        out << asText(block);
        at += static_cast<long long>(block.size());
    }
    return out.good();
}

/// Written as it goes, without a flush to the disk: the next announcement makes the file anew.
bool writeJoined(const std::vector<files::InFile>& recordings, std::int32_t size, const std::string& target) {
    std::ofstream out(files::target(target), std::ios::binary | std::ios::trunc);
    out << asText(headerFor(size));
    for (const files::InFile& recording : recordings) {
        const bool last = &recording == &recordings.back();
        if (!copySamples(recording, recording.length() - (last ? 0 : 1), out)) return false;
    }
    out.close();
    return out.good();
}

} // namespace

bool joinWaves(std::span<const std::string> pieces, const std::string& target) {
    // All are opened before the first is weighed, so that every missing one leaves its empty file.
    std::vector<files::InFile> recordings;
    for (const std::string& piece : pieces) {
        recordings.push_back(openRecording(piece));
        if (!recordings.back().isOpen()) return false;
    }
    const auto size = sizeOf(recordings);
    if (!size) return false;
    if (writeJoined(recordings, *size, target)) return true;
    (void)files::remove(target); // what could not be written need not be there
    return false;
}

} // namespace gatewise
