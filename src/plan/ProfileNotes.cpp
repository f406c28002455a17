#include "plan/PlanCharts.h"
#include "plan/ProfileSheet.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace gatewise {

namespace {

constexpr int kTimeSteps[] = {5, 10, 15, 30, 60, 120, 180}; // minutes
constexpr int kMostTimes = 8;
constexpr int kLongest = 48 * 60;            // minutes of a flight, beyond which no time stands there
constexpr double kLongLevel = 0.12;          // share of the way that a level with a word of its own lasts
constexpr double kTimesAt = kProfileTop / 2; // height of the times on the sheet

std::string timeText(int minutes) {
    return std::to_string(minutes / 60) + ":" + formatInteger("00", minutes % 60);
}

/// The way flown after so many minutes, between the points that have a time.
double milesAt(const Plan& plan, int minutes) {
    for (int i = 1; i <= plan.planLast; ++i) {
        const PlanPoint& from = plan.at(i - 1);
        const PlanPoint& to = plan.at(i);
        if (to.pointMinutes < minutes || to.pointMinutes <= from.pointMinutes) continue;
        const double share = static_cast<double>(minutes - from.pointMinutes) /
                             static_cast<double>(to.pointMinutes - from.pointMinutes);
        return static_cast<double>(from.pointTotalDistance) +
               std::clamp(share, 0.0, 1.0) *
                   static_cast<double>(to.pointTotalDistance - from.pointTotalDistance);
    }
    return static_cast<double>(plan.totalDistance);
}

/// Hours and minutes along the upper edge.
void addTimes(Drawing& out, const Plan& plan, const ProfileSheet& place) {
    const int last = plan.at(plan.planLast).pointMinutes;
    if (last < 1 || last > kLongest) return;
    const int* step = std::find_if(std::begin(kTimeSteps), std::end(kTimeSteps) - 1,
                                   [&](int s) { return last / s <= kMostTimes; });
    for (int minutes = *step; minutes <= last; minutes += *step) {
        const double x = place(milesAt(plan, minutes), 0).x;
        out.lines.push_back({{{x, kProfileTop}, {x, kProfileTop + 0.02}}, Tone::Level});
        out.texts.push_back({{x, kTimesAt}, timeText(minutes), false, Tone::Level});
    }
}

/// A part of the way, in miles.
struct Stretch {
    double from = 0, to = 0;
    [[nodiscard]] double length() const { return to - from; }
};

Stretch stretchOf(const Plan& plan, int first, int last) {
    return {static_cast<double>(plan.at(first).pointTotalDistance),
            static_cast<double>(plan.at(last).pointTotalDistance)};
}

/// Where the word of a level that is held from point to point stands: at the first leg that is long enough,
/// else at all of them together.
std::optional<Stretch> wordedStretch(const Plan& plan, int first, int last, double least) {
    for (int i = first + 1; i <= last; ++i) {
        const Stretch leg = stretchOf(plan, i - 1, i);
        if (leg.length() > least) return leg;
    }
    const Stretch all = stretchOf(plan, first, last);
    return all.length() > least ? std::optional(all) : std::nullopt;
}

/// The levels that are held, once for each.
void addLevels(Drawing& out, const Plan& plan, const ProfileSheet& place) {
    int said = -1;
    for (int first = 1, last = 1; first < plan.planLast; first = last + 1) {
        const int level = plan.at(first).pointAltitude;
        for (last = first; last + 1 < plan.planLast && plan.at(last + 1).pointAltitude == level;) ++last;
        const auto stretch = wordedStretch(plan, first, last, kLongLevel * place.length);
        if (!stretch || level == said) continue;
        said = level;
        const DrawingPoint at = place(stretch->from + stretch->length() / 2, level);
        out.texts.push_back(
            {{at.x, at.y + 0.07}, "FL" + formatInteger("000", level / 100), false, Tone::Level});
    }
}

/// Computed points keep whatever frequency stood in their place of the table.
bool hasFrequency(const Plan& plan, int i) {
    const Tone tone = pointTone(plan, i);
    const auto frequency = plan.at(i).pointFrequency.trimmed();
    return tone != Tone::Top && tone != Tone::Step && !frequency.empty() && frequency != "000.00";
}

} // namespace

std::string pointWords(const Plan& plan, int i) {
    const PlanPoint& point = plan.at(i);
    std::string out(point.pointName.trimmed());
    const auto description = point.pointDescription.trimmed();
    if (!description.empty()) out.append(" ").append(description);
    if (hasFrequency(plan, i)) out.append(", ").append(point.pointFrequency.trimmed());
    return out + ", " + formatNumber("#####0", altitudeAt(plan, i)) + " ft, " +
           timeText(std::max<int>(point.pointMinutes, 0));
}

Drawing profileNotes(const Plan& plan) {
    Drawing out;
    if (!isDrawable(plan)) return out;
    const ProfileSheet place(plan);
    addLevels(out, plan, place);
    addTimes(out, plan, place);
    for (int i = 0; i <= plan.planLast; ++i)
        out.marks.push_back({place(plan, i), pointTone(plan, i), "", i, pointWords(plan, i)});
    return out;
}

} // namespace gatewise
