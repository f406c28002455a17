#include "sound/AnnouncementScan.h"

#include "platform/Numbers.h"
#include "platform/Text.h"
#include "platform/TimeOfDay.h"

#include <algorithm>

namespace gatewise {

namespace {

constexpr int kRowsPerPage = 20;
constexpr std::int32_t kOffPageVolume = -500;
constexpr std::int32_t kOffPagePan = 9000;
constexpr std::int32_t kFrequencies[] = {8000, 7500, 8300};

constexpr int kFadeStep = 180;
constexpr std::int16_t kFadeFloor = -9000;

/// Integer part of a draw x `range`.
int drawBelow(Random& random, int range) {
    return static_cast<int>(random.draw() * range);
}

std::optional<int> rowTime(std::string_view timeText) {
    const auto number = parseInteger(timeText);
    return number ? timeOfDay(*number) : std::nullopt;
}

DueAnnouncement dueAt(const ScanBoard& board, const AnnouncementWindow& window, int row,
                      std::string_view flight) {
    DueAnnouncement due;
    due.row = row;
    due.flightKey = flight;
    due.kind = window.kind;
    const int firstOfPage = board.page * kRowsPerPage;
    if (row < firstOfPage || row > firstOfPage + kRowsPerPage - 1) {
        due.volume = kOffPageVolume;
        due.pan = row < firstOfPage ? -kOffPagePan : kOffPagePan;
    }
    if (board.city) due.city = board.city(row);
    return due;
}

} // namespace

const AnnouncementWindow& windowOf(std::int16_t timer, bool departing) {
    return *std::ranges::find_if(kAnnouncementWindows, [&](const AnnouncementWindow& window) {
        return window.timer == std::clamp<std::int16_t>(timer, 1, 3) && window.departing == departing;
    });
}

AnnouncementDraws drawAnnouncement(Random& random, int BoardRowCount) {
    AnnouncementDraws draws;
    random.reseed();
    draws.echo = static_cast<std::int16_t>(drawBelow(random, 2));
    draws.voice = static_cast<std::int16_t>(drawBelow(random, 20) + 1);
    random.reseed();
    draws.frequency = kFrequencies[std::clamp(drawBelow(random, 3), 0, 2)];
    draws.start = drawBelow(random, BoardRowCount + 1);
    return draws;
}

int drawPlayInterval(Random& random) {
    random.reseed();
    return (drawBelow(random, 31) + 15) * 1000;
}

std::optional<DueAnnouncement> scanForAnnouncement(const ScanBoard& board, const AnnouncementWindow& window,
                                                   int start, bool played, AnnouncementRing& ring) {
    std::shift_right(ring.begin(), ring.end(), 1);
    ring.front() = ring[1];
    const auto now = timeOfDay(board.hours, board.minutes);
    if (!now || played) return std::nullopt;

    const int last = static_cast<int>(board.rows.size()) - 1;
    const auto announce = [&](int from, int to) -> std::optional<DueAnnouncement> {
        for (int i = std::max(from, 0); i <= std::min(to, last); ++i) {
            const ScanRow& row = board.rows[static_cast<std::size_t>(i)];
            const auto time = rowTime(row.TimeText);
            if (!time || *time - *now < window.from || *time - *now > window.to) continue;
            const std::string_view flight = trimmed(row.FlightText);
            if (std::ranges::any_of(ring, [&](const auto& old) { return trimmed(old) == flight; })) continue;
            ring.front() = flight;
            return dueAt(board, window, i, flight);
        }
        return std::nullopt;
    };
    if (auto due = announce(start, last)) return due;
    return announce(0, start);
}

FadeStep stepFade(std::int16_t level, std::int16_t target, const std::string& direction) {
    if (direction == "in") {
        const int louder = level + kFadeStep;
        if (louder >= target) return {target, "out", true, false};
        return {static_cast<std::int16_t>(louder), direction, false, false};
    }
    const int softer = level - kFadeStep;
    if (softer <= kFadeFloor) return {kFadeFloor, "in", true, true};
    return {static_cast<std::int16_t>(softer), direction, false, false};
}

} // namespace gatewise
