#include "drive/Commands.h"
#include "pages/AirlineList.h"
#include "plan/Coordinates.h"
#include "plan/Geometry.h"
#include "plan/Performance.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/Profile.h"
#include "schedule/Lookups.h"
#include "simulator/SituationTexts.h"
#include "sound/DS_Engine.h"

namespace gatewise::drive {

namespace {

/// The name of a file or folder among the arguments of a function.
struct Path {
    std::string text;
};

template<class Number> bool fromText(std::string_view utf8, Number& value) {
    const auto number = numberText<Number>(utf8);
    value = number.value_or(Number{});
    return number.has_value();
}
bool fromText(std::string_view utf8, std::string& value) {
    value = textFromUtf8(utf8);
    return true;
}
bool fromText(std::string_view utf8, Path& value) {
    value.text = pathText(utf8);
    return true;
}

template<class Argument> bool take(std::string_view& rest, Argument& value) {
    if (rest.empty()) return false; // an empty text is written ""
    const auto utf8 = takeArgument(rest);
    return utf8 && fromText(*utf8, value);
}

/// A function of the program behind a uniform face: its arguments are read by their types, its result is one
/// value.
template<auto Function> struct Call;
template<class Result, class... Arguments, Result (*Function)(Program&, Arguments...)> struct Call<Function> {
    static Outcome run(Session& session, std::string_view rest) {
        std::tuple<std::remove_cvref_t<Arguments>...> values;
        const bool good = std::apply([&](auto&... value) { return (take(rest, value) && ...); }, values);
        if (!good || !rest.empty()) return "expected other arguments";
        JsonWriter json;
        std::apply([&](auto&... value) { write(json, Function(session.program(), value...)); }, values);
        session.print(json);
        return kDone;
    }
};

float distance(Program& p, float lat1, float lon1, float lat2, float lon2) {
    return Distance(lat1, lon1, lat2, lon2, p.session.plan.geometry.lastCourse);
}
double latitudeOffset(Program& p, double lat1, double course) {
    return offsetLatitude(p.session.plan.geometry.offsetDistance, lat1, course);
}
float longitudeOffset(Program& p, double lat1, double lon1, double course, double lat2) {
    return offsetLongitude(p.session.plan.geometry.offsetDistance, lat1, lon1, course, lat2);
}
float magnetic(Program& p, float lat, float lon, float trueHeading) {
    return MagneticTable(p.session.settings.FsPath).magneticHeading(lat, lon, trueHeading);
}

std::int32_t level(Program& p, std::int32_t altitude) {
    return legalAltitude(p.session.plan.plan, altitude);
}
float climbRate(Program& p, float rate, float altitude) {
    return effectiveClimbRate(p.session.plan.plan, rate, altitude);
}
double airspeed(Program&, double altitude, double speed) {
    return trueAirspeed(altitude, speed);
}

template<std::string (*Text)(float, const NumberLocale&)> std::string placeText(Program& p, float value) {
    return Text(value, p.session.locale.numbers);
}
std::string filedAltitude(Program& p, std::int32_t altitude) {
    return altitudeText(altitude, p.session.locale.numbers);
}

template<std::string (*Find)(const Tables&, std::string_view)>
std::string lookUp(Program& p, const std::string& code) {
    return Find(p.session.schedule.tables, code);
}
std::string airlineCode(Program& p, const std::string& name) {
    return find_airline_code(p, name).value_or(std::string());
}
std::string meal(Program&, int mask) {
    return get_meal(mask);
}
int day(Program&, int mask, int bit) {
    return get_day(mask, bit) ? kTrue : kFalse;
}
std::string readableVolume(Program& p, std::int32_t volume) {
    std::string text;
    SilentDevice unheard; // a question is no sound operation of the program's
    DS_Engine(unheard, p.machine.loop).GetReadableVolume(volume, text);
    return text;
}

std::string readText(Program&, const std::string& section, const std::string& key, const Path& file) {
    return ReadText(section, key, file.text);
}
int readNumber(Program&, const std::string& section, const std::string& key, const Path& file) {
    return ReadNumber(section, key, file.text);
}
/// True when the value was written.
bool writeValue(Program&, const std::string& section, const std::string& key, const std::string& value,
                const Path& file) {
    return !WriteValue(section, key, value, file.text);
}

std::string formatted(Program& p, const std::string& format, double value) {
    return p.session.locale.numbers.format(format, value);
}
std::string formattedSingle(Program& p, const std::string& format, float value) {
    return p.session.locale.numbers.formatSingle(format, value);
}
std::string doubleText(Program& p, double value) {
    return p.session.locale.numbers.plainDouble(value);
}
std::string singleText(Program& p, float value) {
    return p.session.locale.numbers.plainSingle(value);
}

struct Function {
    const char* name;
    Outcome (*run)(Session& session, std::string_view rest);
};

constexpr Function kFunctions[] = {
    {"Distance", Call<distance>::run},
    {"offsetLatitude", Call<latitudeOffset>::run},
    {"offsetLongitude", Call<longitudeOffset>::run},
    {"magneticHeading", Call<magnetic>::run},
    {"latitudeText", Call<placeText<latitudeText>>::run},
    {"longitudeText", Call<placeText<longitudeText>>::run},
    {"altitudeText", Call<filedAltitude>::run},
    {"latitudeTicket", Call<placeText<latitudeTicket>>::run},
    {"longitudeTicket", Call<placeText<longitudeTicket>>::run},
    {"FormatLatitude", Call<placeText<FormatLatitude>>::run},
    {"FormatLongitude", Call<placeText<FormatLongitude>>::run},
    {"FormatAltitude", Call<placeText<FormatAltitude>>::run},
    {"FormatHeading", Call<placeText<FormatHeading>>::run},
    {"legalAltitude", Call<level>::run},
    {"effectiveClimbRate", Call<climbRate>::run},
    {"trueAirspeed", Call<airspeed>::run},
    {"find_origin_name", Call<lookUp<find_origin_name>>::run},
    {"find_arrival_name", Call<lookUp<find_arrival_name>>::run},
    {"find_airline_code", Call<airlineCode>::run},
    {"find_airline", Call<lookUp<find_airline>>::run},
    {"find_aircraft", Call<lookUp<find_aircraft>>::run},
    {"find_pf_compnay", Call<lookUp<find_pf_compnay>>::run},
    {"find_pf_aircraft", Call<lookUp<find_pf_aircraft>>::run},
    {"find_pf_callsign", Call<lookUp<find_pf_callsign>>::run},
    {"get_meal", Call<meal>::run},
    {"get_day", Call<day>::run},
    {"GetReadableVolume", Call<readableVolume>::run},
    {"ReadText", Call<readText>::run},
    {"ReadNumber", Call<readNumber>::run},
    {"WriteValue", Call<writeValue>::run},
    {"Format", Call<formatted>::run},
    {"FormatSingle", Call<formattedSingle>::run},
    {"PlainDouble", Call<doubleText>::run},
    {"PlainSingle", Call<singleText>::run},
};

Outcome call(Session& session, std::string_view rest) {
    const std::string_view name = takeWord(rest);
    for (const Function& function : kFunctions) {
        if (function.name == name) return function.run(session, rest);
    }
    return "no function " + std::string(name);
}

constexpr Command kCallCommands[] = {
    {"call", "FUNCTION ARG ...", "shows the result of one function without side effects", call, true}};

} // namespace

std::span<const Command> callCommands() {
    return kCallCommands;
}

} // namespace gatewise::drive
