#include "sound/WaveJoiner.h"

#include "platform/Binary.h"
#include "platform/Files.h"

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <limits>
#include <optional>
#include <system_error>
#include <utility>
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

/// Written as it goes, without a flush to the disk: the next announcement makes the file anew.
bool write(const std::string& path, ByteView bytes) {
    std::ofstream file(files::resolve(path), std::ios::binary | std::ios::trunc);
    file << asText(bytes);
    file.close();
    return file.good();
}

/// Opening makes the file when there is none.
std::optional<Bytes> openRecording(const std::string& path) {
    std::error_code error;
    auto bytes = files::readAll(path, &error);
    if (!bytes && error == std::errc::no_such_file_or_directory && write(path, {})) bytes.emplace();
    return bytes;
}

} // namespace

bool joinWaves(std::span<const std::string> pieces, const std::string& target) {
    // All are opened before the first is weighed, so that every missing one leaves its empty file.
    std::vector<Bytes> recordings;
    for (const std::string& piece : pieces) {
        auto bytes = openRecording(piece);
        if (!bytes) return false;
        recordings.push_back(std::move(*bytes));
    }
    std::size_t size = 0;
    for (const Bytes& recording : recordings) {
        if (recording.size() <= kHeaderSize) return false;
        size += recording.size() - kNotCounted;
    }
    if (size > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()) - kHeaderSize) return false;

    Bytes wave = headerFor(static_cast<std::int32_t>(size));
    wave.reserve(kHeaderSize + size + 1);
    for (const Bytes& recording : recordings) {
        if (wave.size() > kHeaderSize) wave.pop_back();
        wave.insert(wave.end(), recording.begin() + kHeaderSize, recording.end());
    }
    if (write(target, wave)) return true;
    (void)files::remove(target); // what could not be written need not be there
    return false;
}

} // namespace gatewise
