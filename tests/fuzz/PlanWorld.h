#pragma once

#include "OutsideFile.h"
#include "plan/Editing.h"
#include "plan/GetFlightPlan.h"
#include "plan/PlanList.h"
#include "plan/PrintPlan.h"
#include "schedule/Readers.h"

#include <array>

// A small world of navigation files, one of which is replaced by any bytes: the plan that comes out must be
// whole and must print, list and take edits.

namespace gatewise::fuzz {

enum class NavFile { Plans, APT, VOR, NDB, ISC, JRT };

class PlanWorld {
public:
    PlanWorld() {
        for (const auto& [code, icao, latitude, longitude] :
             {std::tuple{"AAA", "KAAA", 33.6F, -84.4F}, {"BBB", "EBBB", 50.0F, 8.5F}}) {
            AirportRecord airport;
            airport.Iata = code;
            airport.Icao = icao;
            airport.Name = "Airport";
            airport.Latitude = latitude;
            airport.Longitude = longitude;
            airport.RunwayCount = 2;
            airport.RunwayOffset = 1;
            tables_.airports.insert(tables_.airports.end() - 1, airport);
        }
        AircraftRecord aircraft;
        aircraft.Code = "744";
        aircraft.ClimbRate = 1800;
        aircraft.DescentRate = 2000;
        aircraft.CruiseAltitude = 37000;
        aircraft.CruiseSpeedTAS = 300;
        tables_.aircraft.push_back(aircraft);
        indexTables(tables_);
        flight_.OriginIata = "AAA";
        flight_.DestinationIata = "BBB";
        flight_.AircraftCode = "744";
        flight_.PlanNumber = 1;
        for (std::size_t i = 0; i < files_.size(); ++i) files_[i].fill(sound(static_cast<NavFile>(i)));
    }

    /// Plans over a file of these bytes.
    void run(NavFile which, ByteView bytes) {
        files_[static_cast<std::size_t>(which)].fill(bytes);
        Plan plan;
        for (const std::int32_t number : {2, 1}) {
            loadFlightPlan(plan, number, input());
            check(plan);
        }
        (void)removePlanPoint(plan, input(), 3, 33000);
        check(plan);
    }

private:
    [[nodiscard]] PlanInput input() const {
        return {tables_,
                flight_,
                true,
                1,
                {files_[0].path(), files_[1].path(), files_[2].path(), files_[3].path(), files_[4].path(),
                 files_[5].path()}};
    }

    void check(const Plan& plan) const {
        expect(plan.planLast >= 0 && plan.planLast < kPlanPoints);
        expect(plan.routeString.size() <= 1000);
        const NumberLocale locale;
        const auto rows = planListRows(plan, tables_, 1, {}, locale);
        expect(rows.size() == static_cast<std::size_t>(plan.planLast) + 5);
        expect(!printFlightPlan(plan, flight_, {}, "6/15/2002", {}, locale).empty());
    }

    /// Good bytes of a file: a route over all four kinds, and two records of each.
    static Bytes sound(NavFile which) {
        Bytes out;
        const auto two = [&](auto record) {
            record.latitude = 40;
            record.longitude = -60;
            appendRecord(out, record);
            record.longitude = -20;
            appendRecord(out, record);
        };
        switch (which) {
        case NavFile::Plans:
            appendField(out, std::int32_t{9});
            appendField(out, std::int32_t{9});
            appendField(out, std::int16_t{4});
            for (const char* kind : {"V", "N", "I", "H"}) {
                RouteEntry entry;
                entry.entryKind = kind;
                entry.entryRecord = 1;
                appendRecord(out, entry);
            }
            break;
        case NavFile::APT:
            for (int i = 0; i < 2; ++i) appendRecord(out, RunwayRecord());
            appendRecord(out, RadioRecord());
            break;
        case NavFile::VOR:
        case NavFile::NDB:
            two(NavaidRecord());
            break;
        case NavFile::ISC:
            two(FixRecord());
            break;
        case NavFile::JRT:
            two(JetRecord());
            break;
        }
        return out;
    }

    Tables tables_;
    FlightRecord flight_;
    std::array<OutsideFile, 6> files_ = {OutsideFile("Plans.gt1"), OutsideFile("APT.gt1"),
                                         OutsideFile("VOR.gt1"),   OutsideFile("NDB.gt1"),
                                         OutsideFile("ISC.gt1"),   OutsideFile("JRT.gt1")};
};

inline int runPlan(NavFile which, const std::uint8_t* data, std::size_t size) {
    static PlanWorld world;
    world.run(which, {data, size});
    return 0;
}

} // namespace gatewise::fuzz
