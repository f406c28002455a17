#include "Readers.h"
#include "XmlTree.h"

#include <algorithm>

// The .pln forms of Microsoft's simulators.

namespace gatewise::test {

namespace {

/// Steps over a text that must stand here.
void step(const std::string& text, std::size_t& at, const std::string& what) {
    require(text.compare(at, what.size(), what) == 0, "no position: " + text);
    at += what.size();
}

/// Digits with at least `least` and at most `most` of them.
double digits(const std::string& text, std::size_t& at, std::size_t least, std::size_t most) {
    const std::size_t end = std::min(text.find_first_not_of("0123456789", at), text.size());
    require(end - at >= least && end - at <= most, "no position: " + text);
    const double value = std::stod(text.substr(at, end - at));
    at = end;
    return value;
}

double angle(const std::string& text, std::size_t& at, const std::string& letters, double highest) {
    const std::size_t letter = letters.find(text.at(at++));
    require(letter != std::string::npos, "no position: " + text);
    double value = digits(text, at, 1, highest > 90 ? 3 : 2);
    step(text, at, "\xC2\xB0 ");
    const double minutes = digits(text, at, 1, 2);
    step(text, at, "' ");
    const double seconds = digits(text, at, 1, 2);
    step(text, at, ".");
    const double hundredths = digits(text, at, 2, 2);
    step(text, at, "\"");
    require(minutes < 60 && seconds < 60, "sixty minutes or seconds");
    value += minutes / 60 + (seconds + hundredths / 100) / 3600;
    require(value <= highest, "angle out of range");
    return letter == 0 ? value : -value;
}

/// N53 degrees 38' 1.22",E9 degrees 59' 6.80",+000040.75
void readPosition(const std::string& text, ReadPoint& point) {
    std::size_t at = 0;
    point.latitude = angle(text, at, "NS", 90);
    step(text, at, ",");
    point.longitude = angle(text, at, "EW", 180);
    step(text, at, ",");
    const char sign = text.at(at++);
    require(sign == '+' || sign == '-', "no sign: " + text);
    const double feet = digits(text, at, 6, 6);
    step(text, at, ".00");
    require(at == text.size(), "text behind the position");
    point.altitude = sign == '-' ? -feet : feet;
}

/// Readers tell the versions apart by lines that begin with these tags.
void requireOwnLines(const std::string& bytes) {
    for (const char* tag : {"<SimBase.Document", "<FlightPlan.FlightPlan>", "<AppVersionMajor>"}) {
        bool found = false;
        for (const std::string& line : linesOf(bytes)) {
            const auto at = line.find_first_not_of(' ');
            found = found || (at != std::string::npos && line.compare(at, std::string(tag).size(), tag) == 0);
        }
        require(found, std::string(tag) + " begins no line");
    }
    require(bytes.starts_with("<?xml version"), "no declaration");
    require(bytes.find("&quot;") == std::string::npos, "an escaped quotation mark");
}

const std::map<std::string, std::string> kKinds = {
    {"Airport", "airport"}, {"Intersection", "fix"}, {"VOR", "vor"}, {"NDB", "ndb"}, {"User", "user"}};

ReadPoint readWaypoint(const XmlNode& node, std::size_t longestUser) {
    node.inOrder("ATCWaypointType WorldPosition ATCAirway? ICAO?");
    ReadPoint point;
    point.kind = wordOf(kKinds, node.one("ATCWaypointType").text);
    readPosition(node.one("WorldPosition").text, point);
    if (const XmlNode* airway = node.maybe("ATCAirway")) {
        point.airway = airway->text;
        require(isCode(point.airway, 7), "no airway: " + point.airway);
    }
    if (const XmlNode* icao = node.maybe("ICAO")) {
        icao->inOrder("ICAORegion? ICAOIdent");
        if (const XmlNode* region = icao->maybe("ICAORegion"))
            point.region = regionOf(region->text, point.kind);
        point.ident = icao->one("ICAOIdent").text;
    }
    require(point.kind == "user" || !point.ident.empty(), "a fix without ICAO");
    if (node.attributes.contains("id")) {
        const std::string& id = node.attribute("id");
        require(point.ident.empty() || point.ident == id, "two names");
        require(isCode(id, longestUser, "abcdefghijklmnopqrstuvwxyz_ "), "name: " + id);
        point.ident = id;
    }
    require(!point.ident.empty(), "no name");
    return point;
}

void readEnds(const XmlNode& head, const ReadPlan& plan) {
    const ReadPoint& from = plan.points.front();
    const ReadPoint& to = plan.points.back();
    require(from.kind == "airport" && to.kind == "airport", "the ends are no airports");
    require(head.one("DepartureID").text == from.ident && head.one("DestinationID").text == to.ident, "ends");
    ReadPoint named;
    readPosition(head.one("DepartureLLA").text, named);
    require(named.latitude == from.latitude && named.altitude == from.altitude, "departure elsewhere");
    readPosition(head.one("DestinationLLA").text, named);
    require(named.longitude == to.longitude && named.altitude == to.altitude, "destination elsewhere");
    for (const char* name : {"DepartureName", "DestinationName"}) {
        for (const char c : head.one(name).text) require(c >= ' ' && c <= '~', "accents in a name");
    }
    for (const std::size_t direct : {std::size_t{0}, std::size_t{1}, plan.points.size() - 1})
        require(plan.points[direct].airway.empty(), "an airway where none may be");
}

ReadPlan readVersion(const std::string& bytes, const char* major, const char* build,
                     std::size_t longestUser) {
    requireOwnLines(bytes);
    const XmlNode root = parseXml(bytes);
    require(root.name == "SimBase.Document", "root");
    root.onlyAttributes("Type version");
    require(root.attribute("Type") == "AceXML" && root.attribute("version") == "1,0", "root attributes");
    root.inOrder("Descr FlightPlan.FlightPlan");
    require(root.one("Descr").text == "AceXML Document", "description");
    const XmlNode& head = root.one("FlightPlan.FlightPlan");
    head.inOrder(
        "Title FPType RouteType? CruisingAlt DepartureID DepartureLLA DestinationID DestinationLLA Descr "
        "DeparturePosition? DepartureName DestinationName AppVersion ATCWaypoint+");
    require(head.one("FPType").text == "IFR", "rules");
    wordOf({{"LowAlt", ""}, {"HighAlt", ""}, {"VOR", ""}, {"Direct", ""}}, head.one("RouteType").text);
    head.one("AppVersion").inOrder("AppVersionMajor AppVersionBuild");
    require(head.one("AppVersion").one("AppVersionMajor").text == major, "major");
    require(head.one("AppVersion").one("AppVersionBuild").text == build, "build");
    ReadPlan plan;
    plan.cruise = decimalIn(head.one("CruisingAlt").text, 0, 100000, std::string(major) == "10" ? 0 : 3);
    for (const XmlNode* node : head.all("ATCWaypoint")) {
        node->onlyAttributes("id");
        plan.points.push_back(readWaypoint(*node, longestUser));
    }
    readEnds(head, plan);
    return plan;
}

} // namespace

ReadPlan readFsx(const std::string& bytes) {
    return readVersion(bytes, "10", "61472", 10);
}

ReadPlan readMsfs2020(const std::string& bytes) {
    return readVersion(bytes, "11", "282174", 80);
}

ReadPlan readMsfs2024(const std::string& bytes) {
    requireOwnLines(bytes);
    const XmlNode root = parseXml(bytes);
    require(root.name == "SimBase.Document" && root.attributes.empty(), "root");
    root.inOrder("FlightPlan.FlightPlan");
    const XmlNode& head = root.one("FlightPlan.FlightPlan");
    head.inOrder(
        "DepartureID DestinationID Title Descr FPType CruisingAlt? AppVersion DepartureDetails? ATCWaypoint* "
        "ArrivalDetails? ApproachDetails?");
    require(head.one("AppVersion").one("AppVersionMajor").text == "12", "major");
    ReadPlan plan;
    plan.cruise = decimalIn(head.one("CruisingAlt").text, 0, 100000);
    plan.points.resize(1);
    plan.points.front().ident = head.one("DepartureID").text;
    for (const XmlNode* node : head.all("ATCWaypoint")) {
        plan.points.push_back(readWaypoint(*node, 80));
        const bool user = plan.points.back().kind == "user";
        require(user == node->attributes.contains("id"), "a name where none may be, or none");
        require(node->maybe("ICAO") != nullptr, "no ICAO");
        require(plan.points.back().kind != "airport", "an airport en route");
    }
    plan.points.emplace_back();
    plan.points.back().ident = head.one("DestinationID").text;
    for (ReadPoint* end : {&plan.points.front(), &plan.points.back()}) end->kind = "airport";
    return plan;
}

} // namespace gatewise::test
