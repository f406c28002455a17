#pragma once

#include "gt1/DataSet.h"
#include "gt1/Report.h"
#include "gt1/Tables.h"

namespace gatewise::gt1 {

/// The most points that a plan may have: the program's plan table has room for 200 with the two airports.
inline constexpr int mostPlanPoints = 198;

/// The route entries of each plan, every fix resolved; checks that the plans are numbered and ordered without
/// gaps, that each flight has its plan and that origin and destination are those of its flights.
std::vector<std::vector<RouteEntry>> linkPlans(const Table<PlanRow>& plans, const Table<FlightRow>& flights,
                                               const World& world, Report& report);

/// The airports that the flights with each plan run between: blank for a plan that no flight has, or flights
/// between different airports.
struct PlanEnds {
    FixedText<3> origin;
    FixedText<3> destination;
    bool used = false;
    bool mixed = false;

    void add(const FlightRecord& flight);
};

/// The rows of the plans of a data set; an error for an entry that points at no record.
std::vector<PlanRow> planRows(const DataSet& set, const World& world, Report& report);

} // namespace gatewise::gt1
