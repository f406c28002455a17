#pragma once

#include "platform/Machine.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// What the board's timers decide, without the timers: the draws of a tick, the row that is due for an
// announcement, the steps of the ambience fade.

namespace gatewise {

/// When a kind of announcement is due: `from` to `to` whole minutes, both included, before the row's time.
struct AnnouncementWindow {
    std::int16_t timer; // 1 to 3, the play timer
    bool departing;     // board: departures or arrivals
    std::int16_t kind;  // 1 to 6
    int from, to;       // minutes
};
inline constexpr std::array<AnnouncementWindow, 6> kAnnouncementWindows = {{
    {1, true, 1, 15, 19},  // Now Boarding
    {2, true, 2, 5, 10},   // Final Call
    {3, true, 3, 0, 3},    // Departing
    {1, false, 4, 3, 8},   // Now Arriving
    {3, false, 5, 11, 15}, // Landing Soon
    {2, false, 6, 0, 2},   // Gate Attendant
}};

/// The row of the table for a play timer, 1 to 3.
const AnnouncementWindow& windowOf(std::int16_t timer, bool departing);

/// What a play timer draws, in this order, with a fresh seed before the first and the third.
struct AnnouncementDraws {
    std::int16_t echo = 0;         // 0 or 1
    std::int16_t voice = 1;        // 1 to 20
    std::int32_t frequency = 8000; // 8000, 7500, 8300
    int start = 0;                 // row with which the scan begins, 0 to BoardRowCount
};
AnnouncementDraws drawAnnouncement(Random& random, int BoardRowCount);

/// A play timer's next interval, 15000 to 45000 ms in whole seconds, after a fresh seed.
int drawPlayInterval(Random& random);

inline constexpr int kPlayHeldBackInterval = 5000; // ms, while another announcement sounds

/// Flight texts that were announced, the newest first.
using AnnouncementRing = std::array<std::string, 10>;

/// One row of the board as the scan sees it.
struct ScanRow {
    std::string_view FlightText;
    std::string_view TimeText; // HHMM
};

struct ScanBoard {
    std::span<const ScanRow> rows; // 0 to BoardRowCount
    int page = 0;                  // BoardPage
    std::string_view hours;        // gt_hoursLABEL
    std::string_view minutes;      // gt_minutesLABEL
    /// The 3-letter key of the other end of a row's flight; asked for the announced row alone.
    std::function<std::string(int row)> city;
};

/// A flight to announce. waitPlayTimer is to be enabled before it is announced.
struct DueAnnouncement {
    int row = 0;
    std::string flightKey; // the row's trimmed FlightText
    std::int16_t kind = 1;
    std::string city;
    std::int32_t pan = 0;    // -9000 a page before the one in view, 9000 a page behind
    std::int32_t volume = 0; // -500 off the page in view
};

/// Looks for a flight of the window, from row `start` to the end and then from the first to `start`. Shifts
/// the ring in any case and puts the flight found in front; flights in the ring are passed over, and so is
/// every flight when `played` is set. Rows and clocks that are no time of day are never due.
std::optional<DueAnnouncement> scanForAnnouncement(const ScanBoard& board, const AnnouncementWindow& window,
                                                   int start, bool played, AnnouncementRing& ring);

/// One tick of fade_timer.
struct FadeStep {
    std::int16_t level;    // hundredths of a decibel, -9000 to 0: the loudness that channel 8 takes now
    std::string direction; // of the next fade once this one is over
    bool finished = false; // the timer stops
    bool silence = false;  // channel 8 is stopped before it takes the level
};
/// From `level` a step louder towards `target` ("in") or softer towards silence ("out"), both in hundredths
/// of a decibel.
FadeStep stepFade(std::int16_t level, std::int16_t target, const std::string& direction);

} // namespace gatewise
