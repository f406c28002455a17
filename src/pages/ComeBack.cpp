#include "pages/ComeBack.h"

#include "pages/MainDispatch.h"
#include "pages/MainTabs.h"

#include <cmath>

namespace gatewise {

namespace {

enum Page { kMain, kBoard, kLog };

Page shownPage(const forms::MainForm& f) {
    return f.status_pic.visible ? kBoard : f.log_pic.visible ? kLog : kMain;
}

std::optional<int> airportOf(const Tables& tables, std::string_view icao) {
    for (int i = 0; i <= tables.AirportCount(); ++i) {
        if (!icao.empty() && tables.airport(i).Icao.trimmed() == icao) return i;
    }
    return std::nullopt;
}

} // namespace

void rememberPlace(Program& p) {
    if (p.session.desk.StartupDone == kFalse) return; // what was kept is not yet in force
    Settings& s = p.session.settings;
    const auto& f = p.forms.MainForm;
    const bool wanted = s.ComeBack == 1;
    const Tables& tables = p.session.schedule.tables;
    const int airport = p.session.dispatch.DepartureIndex;
    s.LastLeft = wanted ? static_cast<int>(std::lround(f.left)) : 0;
    s.LastTop = wanted ? static_cast<int>(std::lround(f.top)) : 0;
    s.LastPage = wanted ? shownPage(f) : kMain;
    s.LastAirport =
        wanted && tables.hasAirport(airport) ? std::string(tables.airport(airport).Icao.trimmed()) : "";
}

Waited comeBackToAirport(Program& p) {
    const Settings& s = p.session.settings;
    if (s.ComeBack != 1) return waited(p);
    p.forms.MainForm.left = s.LastLeft;
    p.forms.MainForm.top = s.LastTop;
    const auto airport = airportOf(p.session.schedule.tables, s.LastAirport);
    if (!airport || *airport == p.session.dispatch.DepartureIndex) return waited(p);
    return PickDeparture(p, *airport);
}

Waited comeBackToPage(Program& p) {
    const Settings& s = p.session.settings;
    if (s.ComeBack != 1) return waited(p);
    if (s.LastPage == kBoard && p.forms.MainForm.statusboard_LABEL.enabled) return ShowBoard(p);
    if (s.LastPage == kLog) ShowLog(p);
    return waited(p);
}

} // namespace gatewise
