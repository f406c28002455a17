#include "simulator/StartPosition.h"

#include <algorithm>

namespace gatewise {

namespace {

std::string runwayChoice(const RunwayRecord& runway) {
    return "Rwy - " + std::string(runway.runwayId.trimmed());
}

} // namespace

std::vector<std::string> startChoices(const PlanAirport& departure, const StoredPositions& stored) {
    std::vector<std::string> out;
    out.emplace_back(kNoPosition);
    out.push_back("- " + std::string(departure.Icao.trimmed()) + " Default -");
    out.emplace_back(kStartInflight);
    for (const RunwayRecord& runway : departure.runways) out.push_back(runwayChoice(runway));
    for (const StoredPosition& slot : stored) {
        if (!slot.empty() && !slot.name.trimmed().empty()) out.emplace_back(slot.name.trimmed());
    }
    return out;
}

StartPosition resolveStart(std::string_view StartChoice, const Plan& plan, const StoredPositions& stored,
                           int pointIndex, const StartPosition& last) {
    const PlanAirport& departure = plan.departureAirport;
    // The code counts with its width: a code of three letters brings the blank before "Default".
    if (StartChoice.substr(0, 6) == "- " + departure.Icao.str())
        return {departure.Latitude, departure.Longitude, 0};
    if (StartChoice == kStartInflight) {
        const int i = heldPoint(pointIndex);
        return {plan.at(i).pointLatitude, plan.at(i).pointLongitude, plan.at(i + 1).pointHeading};
    }
    for (const RunwayRecord& runway : departure.runways) {
        if (runwayChoice(runway) == StartChoice)
            return {runway.runwayLatitude, runway.runwayLongitude, runway.runwayHeading};
    }
    for (const StoredPosition& slot : stored) {
        if (slot.name.trimmed() == trimmed(StartChoice)) return {slot.latitude, slot.longitude, slot.heading};
    }
    return last;
}

int heldPoint(int pointIndex) {
    return std::clamp(pointIndex, 0, kPlanPoints - 2);
}

} // namespace gatewise
