#pragma once

#include "session/Hall.h"
#include "session/Schedule.h"
#include "session/Settings.h"
#include "session/StatusBoard.h"

#include <optional>
#include <string>
#include <string_view>

namespace gatewise {

/// "vol_up", "vol_dn": the ambience's target in steps of 90, -9000 to 0.
void stepAmbience(Settings& settings, std::string_view type);

/// "ann_up", "ann_dn": the announcements' volume in the same steps and the same range.
void stepAnnouncements(Settings& settings, std::string_view type);

/// What an announcement of that volume (hundredths of a decibel, -10000 to 0) is turned down to.
std::int32_t announcementVolume(const Settings& settings, std::int32_t volume);

/// One step of the ambience's fade.
FadeStep fadeAmbience(const Settings& settings, Hall& hall);

/// Whether the settings ask for announcements of a kind, 1 to 6.
bool announces(const Settings& settings, int kind);

/// The flight that is due for an announcement, as the board's clock shows hours and minutes; it is entered in
/// the ring of its timer.
std::optional<DueAnnouncement> dueAnnouncement(const StatusBoard& board, const Schedule& schedule,
                                               const AnnouncementWindow& window, int start,
                                               std::string_view hours, std::string_view minutes, Hall& hall);

} // namespace gatewise
