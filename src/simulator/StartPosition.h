#pragma once

#include "plan/PlanTable.h"
#include "simulator/StoredPositions.h"

#include <string>
#include <string_view>

// Where a flight starts: the entries that the pilot chooses from and what they stand for.

namespace gatewise {

inline constexpr std::string_view kNoPosition = "- Do NOT Position Aircraft -";
inline constexpr std::string_view kStartInflight = "- Start Inflight -";
inline constexpr std::string_view kNoAircraft = "- No Aircraft Assigned -";

/// Degrees, north and east positive.
struct StartPosition {
    float StartLat = 0;
    float StartLon = 0;
    float StartHdg = 0;
};

/// The entries to choose from: none, the airport, in flight, its runways, its stored positions.
std::vector<std::string> startChoices(const PlanAirport& departure, const StoredPositions& stored);

/// What a choice stands for; `last`, the position of the flight before, when it stands for nothing.
StartPosition resolveStart(std::string_view StartChoice, const Plan& plan, const StoredPositions& stored,
                           int pointIndex, const StartPosition& last);

/// A start point as the plan's table can hold it: one that a leg may leave.
int heldPoint(int pointIndex);

} // namespace gatewise
