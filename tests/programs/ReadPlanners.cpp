#include "Readers.h"
#include "XmlTree.h"

#include <regex>

// FlightGear, Little Navmap and Garmin's units.

namespace gatewise::test {

namespace {

void requireTyped(const XmlNode& node) {
    for (const XmlNode& child : node.children) {
        if (child.children.empty())
            wordOf({{"string", ""}, {"int", ""}, {"double", ""}, {"bool", ""}}, child.attribute("type"));
        else
            requireTyped(child);
    }
}

const std::string& typed(const XmlNode& node, const char* name, const char* type) {
    const XmlNode& leaf = node.one(name);
    require(leaf.attribute("type") == type, std::string(name) + " is no " + type);
    return leaf.text;
}

ReadPoint gearPoint(const XmlNode& wp, std::size_t number) {
    wp.onlyAttributes("n");
    require(wp.attribute("n") == std::to_string(number), "wrong number");
    ReadPoint point;
    const std::string& type = typed(wp, "type", "string");
    require(type == "navaid" || type == "basic", "type " + type);
    point.kind = type == "basic" ? "user" : "";
    point.ident = typed(wp, "ident", "string");
    require(!point.ident.empty(), "no ident");
    point.longitude = decimalIn(typed(wp, "lon", "double"), -180, 180);
    point.latitude = decimalIn(typed(wp, "lat", "double"), -90, 90);
    if (wp.maybe("alt-restrict") != nullptr) {
        require(typed(wp, "alt-restrict", "string") == "at", "restriction");
        point.altitude = decimalIn(typed(wp, "altitude-ft", "double"), -10000, 100000);
    } else {
        require(wp.maybe("altitude-ft") == nullptr, "altitude without restriction");
    }
    if (wp.maybe("airway") != nullptr) {
        point.airway = typed(wp, "airway", "string");
        decimalIn(typed(wp, "network", "int"), 0, 3, 0);
    }
    return point;
}

ReadPoint navmapPoint(const XmlNode& node) {
    static const std::map<std::string, std::string> kinds = {
        {"AIRPORT", "airport"}, {"WAYPOINT", "fix"}, {"VOR", "vor"}, {"NDB", "ndb"}, {"USER", "user"}};
    node.inOrder("Name? Ident Region? Airway? Type Comment? Pos");
    for (const XmlNode& child : node.children)
        require(child.name == "Pos" || !child.text.empty(), "an empty " + child.name);
    ReadPoint point;
    point.ident = node.one("Ident").text;
    require(isCode(point.ident, 10, "_"), "ident " + point.ident);
    if (const XmlNode* airway = node.maybe("Airway")) point.airway = airway->text;
    point.kind = wordOf(kinds, node.one("Type").text);
    if (const XmlNode* region = node.maybe("Region")) point.region = regionOf(region->text, point.kind);
    const XmlNode& pos = node.one("Pos");
    pos.onlyAttributes("Lon Lat Alt");
    point.longitude = decimalIn(pos.attribute("Lon"), -180, 180, 6);
    point.latitude = decimalIn(pos.attribute("Lat"), -90, 90, 6);
    point.altitude = decimalIn(pos.attribute("Alt"), -10000, 100000, 2);
    return point;
}

} // namespace

ReadPlan readFlightGear(const std::string& bytes) {
    const XmlNode root = parseXml(bytes);
    require(root.name == "PropertyList", "root");
    require(typed(root, "version", "int") == "2", "version");
    requireTyped(root);
    require(std::string("VIYZ").find(typed(root, "flight-rules", "string")) != std::string::npos, "rules");
    require(std::string("SNGMX").find(typed(root, "flight-type", "string")) != std::string::npos,
            "flight type");
    decimalIn(typed(root, "estimated-duration-minutes", "int"), 0, 1e6, 0);
    ReadPlan plan;
    const XmlNode& cruise = root.one("cruise");
    plan.cruise = cruise.maybe("flight-level") != nullptr
                      ? 100 * decimalIn(typed(cruise, "flight-level", "int"), 0, 1000, 0)
                      : decimalIn(typed(cruise, "altitude-ft", "int"), 0, 100000, 0);
    decimalIn(typed(cruise, "knots", "int"), 0, 9999, 0);
    const XmlNode& route = root.one("route");
    route.inOrder("wp+");
    for (std::size_t i = 0; i < route.children.size(); ++i)
        plan.points.push_back(gearPoint(route.children[i], i));
    require(typed(route.children.front(), "departure", "bool") == "true", "departure flag");
    require(typed(route.children.back(), "approach", "bool") == "true", "approach flag");
    require(typed(root.one("departure"), "airport", "string") == plan.points.front().ident, "departure");
    require(typed(root.one("destination"), "airport", "string") == plan.points.back().ident, "destination");
    return plan;
}

ReadPlan readLittleNavmap(const std::string& bytes) {
    const auto lines = linesOf(bytes);
    require(lines.size() > 3 && lines[0].starts_with("<?xml version"), "first line");
    require(lines[1].starts_with("<LittleNavmap"), "second line");
    require(lines[2].find("<Flightplan>") == lines[2].find_first_not_of(' '), "third line");
    const XmlNode root = parseXml(bytes);
    root.inOrder("Flightplan");
    const XmlNode& flightplan = root.one("Flightplan");
    flightplan.inOrder("Header SimData NavData Waypoints");
    const XmlNode& header = flightplan.one("Header");
    header.inOrder("FlightplanType CruisingAlt CruisingAltF Comment CreationDate FileVersion ProgramName");
    wordOf({{"IFR", ""}, {"VFR", ""}}, header.one("FlightplanType").text);
    ReadPlan plan;
    plan.cruise = decimalIn(header.one("CruisingAlt").text, 0, 100000, 0);
    require(decimalIn(header.one("CruisingAltF").text, 0, 100000, 8) == plan.cruise, "two levels");
    static const std::regex date(
        "[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2}[+-][0-9]{2}:[0-9]{2}");
    require(std::regex_match(header.one("CreationDate").text, date), "date");
    require(header.one("FileVersion").text == "1.2", "file version");
    flightplan.one("Waypoints").inOrder("Waypoint+");
    for (const XmlNode& node : flightplan.one("Waypoints").children) plan.points.push_back(navmapPoint(node));
    require(plan.points.front().kind == "airport" && plan.points.back().kind == "airport", "ends");
    return plan;
}

ReadPlan readGarmin(const std::string& bytes) {
    const std::string faults = schemaFaults(bytes, "garmin.xsd");
    require(faults.empty(), faults);
    static const std::map<std::string, std::string> kinds = {
        {"AIRPORT", "airport"}, {"INT", "fix"}, {"VOR", "vor"}, {"NDB", "ndb"}, {"USER WAYPOINT", "user"}};
    const XmlNode root = parseXml(bytes);
    std::map<std::pair<std::string, std::string>, ReadPoint> table;
    for (const XmlNode& node : root.one("waypoint-table").children) {
        ReadPoint point;
        point.ident = node.one("identifier").text;
        point.kind = wordOf(kinds, node.one("type").text);
        point.latitude = decimalIn(node.one("lat").text, -90, 90);
        point.longitude = decimalIn(node.one("lon").text, -180, 180);
        const std::string& region = node.one("country-code").text;
        if (!region.empty()) point.region = regionOf(region, point.kind);
        require(table.emplace(std::pair(point.ident, node.one("type").text), point).second,
                "twice in the table");
    }
    ReadPlan plan;
    for (const XmlNode* node : root.one("route").all("route-point")) {
        const auto found =
            table.find({node->one("waypoint-identifier").text, node->one("waypoint-type").text});
        require(found != table.end() && found->second.region == node->one("waypoint-country-code").text,
                "a point outside the table");
        plan.points.push_back(found->second);
    }
    return plan;
}

} // namespace gatewise::test
