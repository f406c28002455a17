#include "work/HallWork.h"

#include <algorithm>
#include <vector>

namespace gatewise {

namespace {

constexpr int kVolumeStep = 90;
constexpr int kLowestAnnouncement = -9000;

/// Kinds 1 to 6. Now Arriving and Landing Soon stand crossed.
constexpr int Settings::*kBoxes[] = {&Settings::Dept1, &Settings::Dept2, &Settings::Dept3,
                                     &Settings::Arr2,  &Settings::Arr1,  &Settings::Arr3};

std::vector<ScanRow> scanRows(const BoardLists& board) {
    std::vector<ScanRow> rows;
    const auto count = std::min(board.BoardRows.size(), static_cast<std::size_t>(board.BoardRowCount + 1));
    rows.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        rows.push_back({board.BoardRows[i].FlightText, board.BoardRows[i].TimeText});
    return rows;
}

/// The other end of a row's flight. Departures are looked up in the dispatch list, even when the board shows
/// another airport.
std::string cityOfRow(const StatusBoard& board, const Schedule& schedule, int row, bool departing) {
    const auto& flights = departing ? schedule.DepartureFlights : schedule.BoardFlights;
    const auto index =
        static_cast<std::size_t>(board.board.BoardRows[static_cast<std::size_t>(row)].FlightIndex);
    if (index >= flights.size()) return {};
    return departing ? flights[index].DestinationIata.str() : flights[index].OriginIata.str();
}

} // namespace

void stepAmbience(Settings& settings, std::string_view type) {
    if (type == "vol_dn" && settings.AmbienceVolume >= -8910) settings.AmbienceVolume -= kVolumeStep;
    if (type == "vol_up" && settings.AmbienceVolume <= -90) settings.AmbienceVolume += kVolumeStep;
}

void stepAnnouncements(Settings& settings, std::string_view type) {
    const int step = type == "ann_up" ? kVolumeStep : type == "ann_dn" ? -kVolumeStep : 0;
    settings.AnnouncementVolume = std::clamp(settings.AnnouncementVolume + step, kLowestAnnouncement, 0);
}

std::int32_t announcementVolume(const Settings& settings, std::int32_t volume) {
    return std::max(volume + std::clamp(settings.AnnouncementVolume, kLowestAnnouncement, 0), -10000);
}

FadeStep fadeAmbience(const Settings& settings, Hall& hall) {
    FadeStep step =
        stepFade(hall.AmbienceLevel, static_cast<std::int16_t>(settings.AmbienceVolume), hall.FadeDirection);
    hall.AmbienceLevel = step.level;
    hall.FadeDirection = step.direction;
    return step;
}

bool announces(const Settings& settings, int kind) {
    return settings.*kBoxes[kind - 1] == 1;
}

std::optional<DueAnnouncement> dueAnnouncement(const StatusBoard& board, const Schedule& schedule,
                                               const AnnouncementWindow& window, int start,
                                               std::string_view hours, std::string_view minutes, Hall& hall) {
    const auto rows = scanRows(board.board);
    auto& rings = window.departing ? hall.AnnouncedDepartures : hall.AnnouncedArrivals;
    const ScanBoard scan{rows, board.BoardPage, hours, minutes,
                         [&](int row) { return cityOfRow(board, schedule, row, window.departing); }};
    const bool played = hall.PlayedFlags[static_cast<std::size_t>(window.kind - 1)] != kFalse;
    return scanForAnnouncement(scan, window, start, played,
                               rings[static_cast<std::size_t>(window.timer - 1)]);
}

} // namespace gatewise
