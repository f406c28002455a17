// Plays made-up waves through the DirectSound device. Needs no test library: it runs where there is none for
// this system.
//     check_directsound FOLDER
//         looks at what the device answers, with and without a sound card
//     check_directsound FOLDER HEARD
//         plays a tone for each operation on a sound card that writes what it gets into the file HEARD, which
//         tests/windows/heard.py looks at
//     check_directsound FOLDER HEARD click
//         the same of the sound of the keys, from a folder that is deep below

#include "platform/Files.h"
#include "platform/NativePath.h"
#include "sound_directsound/DirectSoundDevice.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <numbers>
#include <thread>

namespace {

using namespace gatewise;

int failures = 0;

void expect(bool holds, const char* what) {
    if (holds) return;
    ++failures;
    std::printf("FAILED: %s\n", what);
}

std::string header(std::uint16_t channels, std::uint16_t bits, std::uint32_t rate, std::uint32_t size) {
    const std::uint32_t frame = channels * bits / 8U;
    std::string bytes = "RIFF";
    const auto number = [&bytes](std::uint32_t value, int width) {
        for (int i = 0; i < width; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    };
    number(size + 36, 4);
    bytes += "WAVEfmt ";
    number(16, 4), number(1, 2), number(channels, 2), number(rate, 4), number(rate * frame, 4);
    number(frame, 2), number(bits, 2);
    bytes += "data";
    number(size, 4);
    return bytes;
}

/// A tenth of a second of silence.
std::string wave(const std::filesystem::path& file, std::uint16_t channels, std::uint16_t bits,
                 std::uint32_t rate) {
    const std::uint32_t size = rate / 10 * channels * bits / 8U;
    std::string bytes = header(channels, bits, rate, size);
    bytes.append(size, bits == 8 ? '\x80' : '\0');
    std::ofstream(file, std::ios::binary) << bytes;
    return file.string();
}

constexpr int kRate = 22050; // of the tones

/// A third of a second of a pure tone at half of the full scale.
std::string tone(const std::filesystem::path& file, int pitch) {
    constexpr int kSamples = kRate / 3;
    std::string bytes = header(1, 16, kRate, 2 * kSamples);
    for (int i = 0; i < kSamples; ++i) {
        const auto sample = std::lround(16384 * std::sin(2 * std::numbers::pi * pitch * i / kRate));
        bytes += static_cast<char>(sample & 0xFF);
        bytes += static_cast<char>(sample >> 8 & 0xFF);
    }
    std::ofstream(files::reachable(file), std::ios::binary) << bytes;
    return files::textOf(file);
}

void settingsAreKept(DirectSoundDevice& device, const std::string& path) {
    const SoundBuffer buffer = device.load(path);
    expect(buffer != SoundBuffer::None, "a wave is loaded");
    expect(device.volume(buffer) == 0 && device.pan(buffer) == 0, "a new buffer is loud and in the middle");
    device.setVolume(buffer, -1800);
    device.setPan(buffer, -9000);
    device.setFrequency(buffer, 7500);
    device.setVolume(buffer, 1);
    device.setPan(buffer, 10001);
    device.setFrequency(buffer, 99);
    expect(device.volume(buffer) == -1800, "the volume of the range is kept, another ignored");
    expect(device.pan(buffer) == -9000, "the pan of the range is kept, another ignored");
    expect(device.frequency(buffer) == 7500, "the rate of the range is kept, another ignored");
    device.play(buffer, true);
    const SoundBuffer echo = device.duplicate(buffer);
    device.release(buffer);
    expect(!device.volume(buffer), "a released buffer is gone");
    expect(device.volume(echo) == -1800 && device.frequency(echo) == 7500,
           "a duplicate has the settings and outlives it");
    device.play(echo, false);
    device.stop(echo);
    device.release(echo);
}

void hostileFilesAreNone(DirectSoundDevice& device, const std::filesystem::path& folder) {
    expect(device.load((folder / "missing.wav").string()) == SoundBuffer::None, "a missing file is none");
    std::ofstream(folder / "no.wav") << "no wave";
    expect(device.load((folder / "no.wav").string()) == SoundBuffer::None, "what is no wave is none");
    device.playOnce((folder / "missing.wav").string());
    device.playOnce((folder / "no.wav").string());
    std::ofstream(folder / "lies.wav", std::ios::binary) << header(1, 8, 8000, 0x70000000) << "short";
    device.playOnce((folder / "lies.wav").string());
    device.play(SoundBuffer::None, true);
    device.stop(static_cast<SoundBuffer>(9999));
    expect(device.duplicate(SoundBuffer::None) == SoundBuffer::None, "nothing has no duplicate");
}

/// The sound card that writes down what it gets; how much that is tells how far it is, however busy the
/// machine.
class Listener {
public:
    /// `rate` is in bytes a second.
    Listener(std::filesystem::path file, int rate) : file_(std::move(file)), rate_(rate) {}
    /// Waits until so many seconds more were heard.
    void hears(double seconds) const { hearsFrom(size(), seconds); }
    void hearsFromTheBeginning(double seconds) const { hearsFrom(0, seconds); }

private:
    void hearsFrom(std::uintmax_t bytes, double seconds) const {
        const std::uintmax_t until = bytes + static_cast<std::uintmax_t>(seconds * rate_);
        for (int i = 0; i < 6000 && size() < until; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        expect(size() >= until, "the sound card goes on");
    }
    [[nodiscard]] std::uintmax_t size() const {
        std::error_code none;
        const std::uintmax_t bytes = std::filesystem::file_size(file_, none);
        return none ? 0 : bytes;
    }

    std::filesystem::path file_;
    int rate_;
};

/// One tone after the other, each of a pitch of its own, by which it is found in what was heard.
void playTones(DirectSoundDevice& device, const std::filesystem::path& folder, const Listener& card) {
    const auto load = [&](int pitch) { return device.load(tone(folder / "tone.wav", pitch)); };
    const auto play = [&](SoundBuffer buffer, bool loop = false) {
        device.play(buffer, loop);
        card.hears(1);
    };
    play(load(600));
    const SoundBuffer quiet = load(800);
    device.setVolume(quiet, -2000);
    play(quiet);
    const SoundBuffer right = load(1000);
    device.setPan(right, 10000);
    play(right);
    const SoundBuffer left = load(1200);
    device.setPan(left, -1000);
    play(left);
    const SoundBuffer faster = load(700); // heard at 1400
    device.setFrequency(faster, 44100);
    play(faster);
    const SoundBuffer first = load(1600);
    device.setVolume(first, -1000);
    play(device.duplicate(first));
    const SoundBuffer endless = load(1800);
    play(endless, true);
    card.hears(1);
    device.stop(endless);
    play(load(2000));
}

/// A tone as it is.
void playClick(DirectSoundDevice& device, std::filesystem::path folder, const Listener& card) {
    constexpr int kClick = 2200;        // Hz
    tone(folder / "click.wav", kClick); // to be compared with
    while (folder.native().size() < 300) folder /= "a folder that goes on";
    std::error_code error;
    std::filesystem::create_directories(files::reachable(folder), error);
    expect(!error, "a folder deeper than 260 characters is made");
    device.playOnce(tone(folder / "click.wav", kClick));
    card.hearsFromTheBeginning(0.333);
}

/// `file` is where the sound card writes.
int heard(const std::filesystem::path& folder, const std::filesystem::path& file, bool click) {
    constexpr int kMixedRate = 48000 * 2 * 4; // as the system sends what it has mixed
    std::filesystem::create_directories(folder);
    DirectSoundDevice device;
    device.open();
    expect(device.heard(), "there is a sound card");
    if (click) {
        device.close(); // it would write into the same file
        playClick(device, folder, Listener(file, kRate * 2));
    } else {
        playTones(device, folder, Listener(file, kMixedRate));
    }
    return failures == 0 ? 0 : 1;
}

} // namespace

int main(int count, char** arguments) {
    if (count < 2) return 2;
    const std::filesystem::path folder = arguments[1];
    if (count > 2) return heard(folder, arguments[2], count > 3);
    std::filesystem::create_directories(folder);
    const std::string speech = wave(folder / "speech.wav", 1, 8, 8000);
    const std::string hall = wave(folder / "hall.wav", 2, 16, 44100);

    DirectSoundDevice device;
    settingsAreKept(device, speech); // before it is opened it pretends
    for (int round = 0; round < 3; ++round) {
        expect(device.open(), "opening never fails");
        expect(device.open(), "and may be repeated");
        device.setSpeakers(kStereoSpeakers);
        expect(device.speakers() == kStereoSpeakers, "the speakers are as asked");
        settingsAreKept(device, speech);
        settingsAreKept(device, hall);
        hostileFilesAreNone(device, folder);
        device.playOnce(speech);
        device.close();
    }
    std::printf("%s, %s\n", failures == 0 ? "fine" : "not fine",
                device.open() && device.heard() ? "with a sound card" : "without a sound card");
    return failures == 0 ? 0 : 1;
}
