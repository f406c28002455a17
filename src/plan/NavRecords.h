#pragma once

#include "platform/Binary.h"

#include <cstdint>

// Records of the navigation files. Each field list is the layout on disk.

namespace gatewise {

/// A route entry of Plans.gt1, behind the index of 32-bit positions and each plan's 16-bit count.
struct RouteEntry {
    FixedText<1> entryKind;       // V, N, I or H
    std::int32_t entryRecord = 0; // from 0 in VOR, NDB and ISC, from 1 in JRT
    FixedText<5> entryAirway;

    static constexpr void fields(auto& r, auto&& f) {
        f("entryKind", r.entryKind), f("entryRecord", r.entryRecord), f("entryAirway", r.entryAirway);
    }
};
static_assert(recordSize<RouteEntry>() == 10);

/// VOR.gt1 and NDB.gt1
struct NavaidRecord {
    FixedText<3> navaidId;
    FixedText<29> navaidName;
    float latitude = 0;
    float longitude = 0;
    FixedText<6> frequency;

    static constexpr void fields(auto& r, auto&& f) {
        f("navaidId", r.navaidId), f("navaidName", r.navaidName);
        f("latitude", r.latitude), f("longitude", r.longitude), f("frequency", r.frequency);
    }
};
static_assert(recordSize<NavaidRecord>() == 46);

/// ISC.gt1
struct FixRecord {
    FixedText<5> fixName;
    FixedText<7> fixId;
    float latitude = 0;
    float longitude = 0;

    static constexpr void fields(auto& r, auto&& f) {
        f("fixName", r.fixName), f("fixId", r.fixId), f("latitude", r.latitude), f("longitude", r.longitude);
    }
};
static_assert(recordSize<FixRecord>() == 20);

/// JRT.gt1
struct JetRecord {
    FixedText<7> jetId;
    FixedText<5> jetName;
    FixedText<29> jetDescription;
    float latitude = 0;
    float longitude = 0;
    FixedText<1> jetKind; // V, N or I
    FixedText<6> frequency;

    static constexpr void fields(auto& r, auto&& f) {
        f("jetId", r.jetId), f("jetName", r.jetName), f("jetDescription", r.jetDescription);
        f("latitude", r.latitude), f("longitude", r.longitude);
        f("jetKind", r.jetKind), f("frequency", r.frequency);
    }
};
static_assert(recordSize<JetRecord>() == 56);

/// APT.gt1: an airport's block is its runways, then one radio record.
struct RunwayRecord {
    FixedText<5> runwayId;
    float runwayLatitude = 0;  // degrees, north positive
    float runwayLongitude = 0; // degrees, east positive
    float runwayHeading = 0;   // degrees, for a start on the runway
    float runwayCourse = 0;    // degrees, the second heading: exports name it
    FixedText<7> ilsId;        // or "NO ILS "
    FixedText<6> ilsFrequency;

    static constexpr void fields(auto& r, auto&& f) {
        f("runwayId", r.runwayId), f("runwayLatitude", r.runwayLatitude),
            f("runwayLongitude", r.runwayLongitude);
        f("runwayHeading", r.runwayHeading), f("runwayCourse", r.runwayCourse);
        f("ilsId", r.ilsId), f("ilsFrequency", r.ilsFrequency);
    }
};
static_assert(recordSize<RunwayRecord>() == 34);

struct RadioRecord {
    FixedText<6> approachFreq;
    FixedText<6> deliveryFreq;
    FixedText<6> departureFreq;
    FixedText<6> groundFreq;
    FixedText<6> radioFreq5;
    FixedText<6> towerFreq;
    FixedText<6> radioFreq7;

    static constexpr void fields(auto& r, auto&& f) {
        f("approachFreq", r.approachFreq), f("deliveryFreq", r.deliveryFreq),
            f("departureFreq", r.departureFreq);
        f("groundFreq", r.groundFreq), f("radioFreq5", r.radioFreq5), f("towerFreq", r.towerFreq);
        f("radioFreq7", r.radioFreq7);
    }
};
static_assert(recordSize<RadioRecord>() == 42);

} // namespace gatewise
