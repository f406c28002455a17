#include "Readers.h"

#include <algorithm>
#include <regex>

// The formats that are lines of text.

namespace gatewise::test {

namespace {

std::vector<std::string> fieldsOf(const std::string& line) {
    std::vector<std::string> fields;
    for (std::size_t at = 0; at < line.size();) {
        const std::size_t end = std::min(line.find_first_of(" \t", at), line.size());
        fields.push_back(line.substr(at, end - at));
        at = std::min(line.find_first_not_of(" \t", end), line.size());
    }
    require(!line.empty() && line.back() != ' ' && line.front() != ' ', "blank at an end: " + line);
    return fields;
}

/// The second field of a line that begins with a key.
std::string valueOf(const std::string& line, const std::string& key) {
    const auto fields = fieldsOf(line);
    require(fields.size() == 2 && fields[0] == key, "no " + key + ": " + line);
    return fields[1];
}

ReadPoint xPlanePoint(const std::string& line) {
    static const std::map<std::string, std::string> kinds = {
        {"1", "airport"}, {"2", "ndb"}, {"3", "vor"}, {"11", "fix"}, {"28", "user"}};
    const auto fields = fieldsOf(line);
    require(fields.size() == 6, "not six fields: " + line);
    ReadPoint point;
    point.kind = wordOf(kinds, fields[0]);
    point.ident = fields[1];
    require(point.ident.size() <= 8, "long name: " + line);
    point.airway = fields[2] == "DRCT" ? "" : fields[2];
    require(point.airway.find('-') == std::string::npos, "joined airway: " + line);
    point.altitude = decimalIn(fields[3], -10000, 100000, 6);
    point.latitude = decimalIn(fields[4], -90, 90, 6);
    point.longitude = decimalIn(fields[5], -180, 180, 6);
    return point;
}

} // namespace

ReadPlan readXPlane(const std::string& bytes) {
    const auto lines = linesOf(bytes);
    require(lines.size() >= 8, "too short");
    require(lines[0] == "I" || lines[0] == "A", "no line I");
    require(lines[1] == "1100 Version", "no version");
    require(std::regex_match(lines[2], std::regex("CYCLE [0-9]{2}(0[1-9]|1[0-4])")), "no cycle: " + lines[2]);
    const std::string from = valueOf(lines[3], "ADEP");
    const std::string to = valueOf(lines[4], "ADES");
    require(valueOf(lines[5], "NUMENR") == std::to_string(lines.size() - 6), "wrong count");
    ReadPlan plan;
    for (std::size_t i = 6; i < lines.size(); ++i) plan.points.push_back(xPlanePoint(lines[i]));
    auto& points = plan.points;
    require(points.front().ident == from && points.front().airway == "ADEP", "wrong departure");
    require(points.back().ident == to && points.back().airway == "ADES", "wrong destination");
    points.front().airway.clear();
    points.back().airway.clear();
    for (std::size_t i = 1; i < points.size(); ++i) {
        require(points[i].airway.empty() || points[i - 1].kind != "user", "airway from a user point");
        require(points[i].airway.empty() || points[i - 1].kind != "airport", "airway from an airport");
    }
    return plan;
}

ReadPlan readRouteText(const std::string& bytes) {
    static const std::regex head("N[0-9]{4}F[0-9]{3}");
    static const std::regex point("[A-Z0-9]{1,8}|[0-9]{4}[NS][0-9]{5}[EW]");
    static const std::regex airway("[A-Z0-9]{1,7}");
    const auto lines = linesOf(bytes);
    require(lines.size() == 1, "not one line");
    const auto fields = fieldsOf(lines[0]);
    require(std::regex_match(fields[0], head), "no speed and level");
    ReadPlan plan;
    plan.cruise = 100 * std::stod(fields[0].substr(6));
    plan.points.resize(1);
    if (fields.size() == 2 && fields[1] == "DCT") {
        plan.points.resize(2);
        return plan;
    }
    require(fields.size() % 2 == 0, "point and airway do not alternate");
    for (std::size_t i = 1; i < fields.size(); i += 2) {
        require(std::regex_match(fields[i], point), "no point: " + fields[i]);
        ReadPoint read;
        read.ident = fields[i];
        if (i > 1 && fields[i - 1] != "DCT") read.airway = fields[i - 1];
        require(read.airway.empty() || std::regex_match(read.airway, airway), "no airway: " + read.airway);
        plan.points.push_back(read);
    }
    plan.points.emplace_back();
    return plan;
}

} // namespace gatewise::test
