#pragma once

#include "sound/DS_Engine.h"

#include <array>
#include <cstdint>
#include <string>

namespace gatewise {

inline constexpr std::int16_t kAnnouncementKinds = 6;
inline constexpr std::int16_t kWelcomeKind = 99;

/// The channel of the welcome aboard.
inline constexpr std::int16_t kWelcomeChannel = 9;

/// The hall's own channel; an announcement of kind N speaks on channel N.
inline constexpr std::int16_t kAmbienceChannel = 8;

/// What a gate announcement is about and how it is to sound.
struct Announcement {
    std::string flightKey;         // airline code in the first 3 characters, flight number from the fourth
    std::int16_t kind = 1;         // 1 to 6
    std::string city;              // 3-letter key of the other end of the flight
    std::int32_t pan = 0;          // -10000 to 10000
    std::int32_t volume = 0;       // hundredths of a decibel, -10000 to 0
    std::int16_t echo = 0;         // 1 plays through the echo
    std::int32_t frequency = 8000; // playback rate in hertz
    std::int16_t voice = 1;        // 11 and above is the male one
};

/// The flags of kinds 1 to 6: -1 for an announcement that was started, 0 otherwise.
using AnnouncementFlags = std::array<std::int16_t, kAnnouncementKinds>;

/// Plays the chime, joins the recordings below `appDir` + "\Wavs\" into "tmpN.wav" for kind N, plays that on
/// channel N and sets the kind's flag. Ends silently, the flag untouched, on any failure; a recording that is
/// missing then exists as an empty file.
void PlayAnnouncement(DS_Engine& engine, const std::string& appDir, const Announcement& announcement,
                      AnnouncementFlags& PlayedFlags);

/// Greets the flight `flightKey` to `city` on channel 9 through "\Wavs\tmp.wav". Does nothing for
/// another `kind` than 99. Fails silently as above.
void PlayWelcome(DS_Engine& engine, const std::string& appDir, const std::string& flightKey,
                 std::int16_t kind, const std::string& city);

} // namespace gatewise
