#include "sound_openal/OpenAlReader.h"

#include "platform/Files.h"
#include "platform/InFile.h"
#include "sound/LongWave.h"

#include <new>
#include <optional>
#include <system_error>
#include <utility>

namespace gatewise {

namespace {

constexpr std::size_t kBeginning = 4096;

std::shared_ptr<OpenAlSound> soundOf(WaveSound wave, std::uint64_t size) {
    auto sound = std::make_shared<OpenAlSound>();
    sound->frames = static_cast<std::int64_t>(size / wave.frameSize());
    sound->wave = std::move(wave);
    return sound;
}

/// Null when the file is short, or its samples lie too far behind its begin.
std::shared_ptr<OpenAlSound> openLong(const std::string& path) {
    const files::InFile file(files::resolve(path));
    if (file.length() < LongWave::kLong || file.length() > files::kLongestFile) return nullptr;
    Bytes beginning(kBeginning);
    std::error_code error;
    beginning.resize(file.read(0, beginning, error));
    const auto head = readWaveHead(beginning, static_cast<std::uint64_t>(file.length()));
    if (error || !head) return nullptr;
    const WaveForm& form = *head;
    auto sound = soundOf({form, {}}, head->size);
    sound->path = path;
    return sound;
}

std::optional<WaveSound> readFile(const std::string& path) {
    const auto file = files::readAll(path);
    return file ? readWave(*file) : std::nullopt;
}

OpenAlBuffers buffersOf(const OpenAlSound& sound) {
    try {
        const auto wave = readFile(sound.path);
        const WaveForm& form = sound.wave;
        if (wave && static_cast<const WaveForm&>(*wave) == form) return makeBuffers(*wave);
    } catch (const std::bad_alloc&) {
        // Without memory for it the sound is silent.
    }
    return {};
}

} // namespace

std::shared_ptr<OpenAlSound> openSound(const std::string& path) {
    if (auto sound = openLong(path)) return sound;
    auto wave = readFile(path);
    if (!wave) return nullptr;
    const std::size_t size = wave->samples.size();
    return soundOf(std::move(*wave), size);
}

void OpenAlReader::order(const Sound& sound) {
    const std::lock_guard lock(guard_);
    if (!std::exchange(sound->ordered, true)) orders_.push_back(sound);
    if (working_ || orders_.empty()) return;
    if (thread_.joinable()) thread_.join(); // it has found nothing more to do
    try {
        thread_ = std::thread([this] { run(); });
        working_ = true;
    } catch (const std::system_error&) {
        // The next order tries again.
    }
}

void OpenAlReader::stop() {
    {
        const std::lock_guard lock(guard_);
        for (const Sound& sound : orders_) sound->ordered = false;
        orders_.clear();
    }
    if (thread_.joinable()) thread_.join();
}

bool OpenAlReader::busy() const {
    const std::lock_guard lock(guard_);
    return working_;
}

OpenAlReader::Sound OpenAlReader::next() {
    const std::lock_guard lock(guard_);
    working_ = !orders_.empty();
    if (!working_) return nullptr;
    Sound sound = std::move(orders_.front());
    orders_.pop_front();
    return sound;
}

void OpenAlReader::run() {
    while (Sound sound = next()) {
        const OpenAlBuffers buffers = buffersOf(*sound);
        ready_(std::move(sound), buffers);
    }
}

} // namespace gatewise
