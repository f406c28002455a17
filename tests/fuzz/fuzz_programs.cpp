#include "platform/FileNames.h"
#include "programs/Send.h"

#include <algorithm>
#include <cstdlib>

using namespace gatewise;

namespace {

void expect(bool holds) {
    if (!holds) std::abort();
}

/// A plan whose records are the bytes, one after the other; what is missing stays blank.
Plan planOf(ByteView bytes) {
    Plan plan;
    std::size_t at = 0;
    const auto take = [&](auto& record) {
        using Record = std::remove_cvref_t<decltype(record)>;
        if (const auto read = recordAt<Record>(bytes, at)) record = *read;
        at += recordSize<Record>();
    };
    int last = 0;
    while (last < kPlanPoints - 1 && at + recordSize<PlanPoint>() <= bytes.size()) take(plan.at(last++));
    plan.planLast = static_cast<std::int16_t>(last);
    for (PlanAirport* airport : {&plan.departureAirport, &plan.destinationAirport}) {
        const PlanPoint& end = plan.at(airport == &plan.departureAirport ? 0 : last);
        airport->Icao = end.pointName.view();
        airport->Name = end.pointDescription;
        airport->Latitude = end.pointLatitude;
        airport->Longitude = end.pointLongitude;
        airport->Elevation = end.pointAltitude;
    }
    plan.peakAltitude = plan.at(0).pointAltitude;
    return plan;
}

/// Tags open and close in pairs, and nothing that XML forbids stands in the text.
void checkXml(std::string_view text) {
    std::vector<std::string_view> open;
    while (true) {
        const auto tag = text.find('<');
        if (tag == std::string_view::npos) break;
        text.remove_prefix(tag + 1);
        const auto end = text.find('>');
        expect(end != std::string_view::npos && text.substr(0, end).find('<') == std::string_view::npos);
        const std::string_view inside = text.substr(0, end);
        if (inside.starts_with('/')) {
            expect(!open.empty() && open.back() == inside.substr(1));
            open.pop_back();
        } else if (!inside.starts_with('?') && !inside.ends_with('/')) {
            open.push_back(inside.substr(0, inside.find(' ')));
        }
        text.remove_prefix(end + 1);
    }
    expect(open.empty());
}

} // namespace

/// A plan of any bytes becomes files that are whole, in every format: lines stay lines, elements close, the
/// files' names are names.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Plan plan = planOf({data, size});
    const std::string stem(reinterpret_cast<const char*>(data), std::min<std::size_t>(size, 90));
    for (const bool computed : {false, true}) {
        const auto route = programs::routeOf(plan, stem, {}, computed);
        for (const auto& format : programs::formats()) {
            const std::string text = format.write(route);
            expect(std::ranges::none_of(
                text, [](char c) { return (c >= 0 && c < ' ' && c != '\n') || c == 0x7F; }));
            if (text.starts_with("<?xml")) checkXml(text);
            const auto lines = static_cast<std::size_t>(std::ranges::count(text, '\n'));
            if (format.write == programs::formats()[0].write) expect(lines == route.points.size() + 6);
            if (format.toClipboard) expect(lines == 1);
            expect(files::isFileName(programs::fileNameOf(format, stem)));
        }
    }
    return 0;
}
