#pragma once

#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <vector>

// Strict readers of the plan formats, made from what is published about each: they take what their programs
// take and throw std::runtime_error on anything else. They know nothing of the writers.

namespace gatewise::test {

inline constexpr double kUnsaid = std::numeric_limits<double>::quiet_NaN();

struct ReadPoint {
    std::string ident;
    std::string kind;           // "airport", "vor", "ndb", "fix", "user"; empty where the format has none
    std::string airway;         // empty: direct, or the format has none
    std::string region;         // empty: unknown, or the format has none
    double latitude = kUnsaid;  // degrees
    double longitude = kUnsaid; // degrees
    double altitude = kUnsaid;  // feet
};

struct ReadPlan {
    std::vector<ReadPoint> points; // the airports first and last
    double cruise = kUnsaid;       // feet
};

using Reader = ReadPlan(const std::string& bytes);
Reader readXPlane, readFsx, readMsfs2020, readMsfs2024, readFlightGear, readLittleNavmap, readGarmin, readGpx,
    readKml, readGeoJson, readRouteText;

// What the readers share.

void require(bool holds, const std::string& what);
std::vector<std::string> linesOf(const std::string& text);
/// Whether a text is so many upper-case letters and digits, or one of `also`.
bool isCode(const std::string& text, std::size_t longest, const std::string& also = {});
/// A plain decimal without exponent in [low, high], with just so many places where `places` is not negative.
double decimalIn(const std::string& text, double low, double high, int places = -1);
/// A region: two capital letters or digits, and only for what has one in other programs' data.
std::string regionOf(const std::string& text, const std::string& kind);
/// The word that a table has for another.
std::string wordOf(const std::map<std::string, std::string>& words, const std::string& word);

} // namespace gatewise::test
