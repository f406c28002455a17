// Makes the sounds of the terminal that are not speech: synth FOLDER writes them into that folder.

#include "ambience.h"
#include "tones.h"
#include "wave_file.h"

#include <cstdio>
#include <filesystem>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: synth FOLDER\n", stderr);
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    const synth::Hall hall = synth::make_ambience();
    const bool written = synth::write_speech_wave(folder / "Announcements.wav", synth::make_chime()) &&
                         synth::write_speech_wave(folder / "click.wav", synth::make_click()) &&
                         synth::write_hall_wave(folder / "Ambience.wav", hall.left, hall.right);
    if (!written) {
        std::fprintf(stderr, "cannot write into %s\n", folder.string().c_str());
        return 1;
    }
    return 0;
}
