#include "platform/Files.h"
#include "sound/Announcements.h"
#include "sound/GateSpeech.h"
#include "sound/WaveJoiner.h"

#include <array>

namespace gatewise {

void PlayWelcome(DS_Engine& engine, const std::string& appDir, const std::string& flightKey,
                 std::int16_t kind, const std::string& city) {
    if (kind != kWelcomeKind) return;
    const auto flight = splitFlight(flightKey);
    if (!flight) return;
    const std::string folder = appDir + "\\Wavs\\Female\\";
    const std::string target = appDir + "\\Wavs\\tmp.wav";
    if (files::remove(target)) return;
    const SpokenCity spoken = cityRecordings(folder, "ann10.wav", city);
    const std::array<std::string, 6> pieces = {
        folder + "welcome.wav",
        airlineRecording(folder, flight->airline),
        folder + flight->firstDigits + ".wav",
        folder + flight->lastDigits + ".wav",
        spoken.link,
        spoken.city,
    };
    if (!joinWaves(pieces, target)) return;
    engine.ClearBuffer(kWelcomeChannel);
    engine.LoadWavToChannel(kWelcomeChannel, target);
    engine.PlayDXSound(kWelcomeChannel, false);
}

} // namespace gatewise
