// check_directsound FOLDER: plays made-up waves through the DirectSound device and looks at what it answers,
// with and without a sound card. Needs no test library: it runs where there is none for this system.

#include "sound_directsound/DirectSoundDevice.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace {

using namespace gatewise;

int failures = 0;

void expect(bool holds, const char* what) {
    if (holds) return;
    ++failures;
    std::printf("FAILED: %s\n", what);
}

std::string wave(const std::filesystem::path& file, std::uint16_t channels, std::uint16_t bits,
                 std::uint32_t rate) {
    const std::uint32_t frame = channels * bits / 8U;
    const std::uint32_t size = rate / 10 * frame;
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
    bytes.append(size, bits == 8 ? '\x80' : '\0');
    std::ofstream(file, std::ios::binary) << bytes;
    return file.string();
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
    device.play(SoundBuffer::None, true);
    device.stop(static_cast<SoundBuffer>(9999));
    expect(device.duplicate(SoundBuffer::None) == SoundBuffer::None, "nothing has no duplicate");
}

} // namespace

int main(int count, char** arguments) {
    if (count != 2) return 2;
    const std::filesystem::path folder = arguments[1];
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
