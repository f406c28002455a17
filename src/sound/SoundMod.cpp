#include "sound/Announcements.h"

#include "platform/Files.h"
#include "sound/GateSpeech.h"
#include "sound/WaveJoiner.h"

#include <string_view>
#include <vector>

namespace gatewise {

namespace {

constexpr std::int16_t kChimeChannel = 7;
constexpr std::int16_t kFirstMaleVoice = 11;
constexpr std::int16_t kEchoed = 1;
constexpr std::int16_t kEchoCount = 2;
constexpr std::int32_t kEchoDelay = 5; // milliseconds

/// The sentence of a kind: what stands before the flight, the word before the city, what stands after it.
struct Sentence {
    std::string_view opening, link, closing; // empty: nothing
};
constexpr Sentence kSentences[kAnnouncementKinds] = {
    {"ann1.wav", "ann10.wav", "ann3.wav"}, // now boarding
    {"ann4.wav", "ann10.wav", ""},         // final call
    {"ann5.wav", "ann10.wav", ""},         // departing
    {"ann1.wav", "ann11.wav", "ann7.wav"}, // now arriving
    {"", "ann11.wav", "ann6.wav"},         // landing soon
    {"ann8.wav", "ann11.wav", "ann9.wav"}, // gate attendant
};

void playChime(DS_Engine& engine, const std::string& wavs, const Announcement& announcement) {
    engine.ClearBuffer(kChimeChannel);
    engine.LoadWavToChannel(kChimeChannel, wavs + "Announcements.wav");
    engine.SetPan(kChimeChannel, announcement.pan);
    engine.SetVolume(kChimeChannel, announcement.volume);
    engine.PlayDXSound(kChimeChannel, false);
}

std::vector<std::string> piecesOf(const std::string& folder, const Sentence& sentence,
                                  const SpokenFlight& flight, const std::string& city) {
    std::vector<std::string> pieces;
    const auto add = [&](std::string_view name) {
        if (!name.empty()) pieces.push_back(folder + std::string(name));
    };
    add(sentence.opening);
    pieces.push_back(airlineRecording(folder, flight.airline));
    add(flight.firstDigits + ".wav");
    add(flight.lastDigits + ".wav");
    const SpokenCity spoken = cityRecordings(folder, std::string(sentence.link), city);
    pieces.push_back(spoken.link);
    pieces.push_back(spoken.city);
    add(sentence.closing);
    return pieces;
}

} // namespace

void PlayAnnouncement(DS_Engine& engine, const std::string& appDir, const Announcement& announcement,
                      AnnouncementFlags& PlayedFlags) {
    const std::int16_t kind = announcement.kind;
    if (kind < 1 || kind > kAnnouncementKinds) return;
    const auto row = static_cast<std::size_t>(kind - 1);
    const std::string wavs = appDir + "\\Wavs\\";
    const std::string folder = wavs + (announcement.voice >= kFirstMaleVoice ? "Male\\" : "Female\\");
    // The chime sounds while the sentence is put together.
    playChime(engine, wavs, announcement);

    const auto flight = splitFlight(announcement.flightKey);
    if (!flight) return;
    const std::string target = wavs + "tmp" + std::to_string(kind) + ".wav";
    if (files::remove(target)) return;
    if (!joinWaves(piecesOf(folder, kSentences[row], *flight, announcement.city), target)) return;

    engine.ClearBuffer(kind);
    engine.LoadWavToChannel(kind, target);
    engine.SetPan(kind, announcement.pan);
    engine.SetVolume(kind, announcement.volume);
    engine.SetFrequency(kind, announcement.frequency);
    if (announcement.echo == kEchoed)
        engine.PlayEcho(kind, kEchoCount, kEchoDelay);
    else
        engine.PlayDXSound(kind, false);
    PlayedFlags[row] = -1;
}

} // namespace gatewise
