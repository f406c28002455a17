#include "pages/RoutesForm.h"

#include "map/RoutesMap.h"
#include "map/Sight.h"
#include "pages/Maps.h"
#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/SelectForm.h"
#include "platform/Text.h"

namespace gatewise {

namespace {

int numberIn(std::string_view text) {
    return parseInteger(text).value_or(0);
}

std::vector<map::Destination> destinations(const Program& p) {
    const auto& f = p.forms.MainForm;
    const map::RoutesFilter filter{f.dayCombo.data(), p.session.board.BoardAirlineCode.view(),
                                   numberIn(f.gt_hoursLABEL.text) * 100 + numberIn(f.gt_minutesLABEL.text)};
    return map::destinationsOf(p.session.schedule.tables, p.session.schedule.DepartureFlights, filter);
}

void pointOut(forms::RoutesForm& f, int row) {
    f.map.chosen = row;
    f.hover_LABEL.text = f.map.scene.summary;
    for (const auto& route : f.map.scene.routes) {
        if (row >= 0 && route.id == row) f.hover_LABEL.text = route.words;
    }
}

/// What stands out goes on to do so where the same places are left; true then.
bool fillRoutes(Program& p) {
    auto& f = p.forms.RoutesForm;
    const auto list = destinations(p);
    // An airport that nobody serves may have been picked since: the flights are still those of the board.
    const int from = p.session.board.BoardAirportIndex;
    MapScene scene = map::routesScene(p.session.schedule.tables, from, list, shownLand(p));
    if (scene == f.map.scene && !f.routesList.rows.empty()) return true;
    const bool same = map::samePlaces(scene, f.map.scene);
    const int chosen = same ? f.map.chosen : -1;
    setScene(f.map, std::move(scene));
    f.routesList.clear();
    for (const auto& d : list) {
        const std::string next = d.next < 0 ? "-" : map::nextText(d);
        f.routesList.rows.push_back({std::to_string(d.airport),
                                     {" " + d.city, std::to_string(d.miles), std::to_string(d.flights), next},
                                     false});
    }
    pointOut(f, chosen);
    return same;
}

/// Clock, day, airline and airport may have changed while the map is open: what the pointer is told is true.
void pointAtRoute(Program& p, int id) {
    pointOut(p.forms.RoutesForm, fillRoutes(p) ? id : -1);
}

Waited takeRoute(Program& p, int row) {
    auto& f = p.forms.RoutesForm;
    if (row < 0 || row >= static_cast<int>(f.routesList.rows.size())) return waited(p);
    const int airport = numberIn(f.routesList.rows[static_cast<std::size_t>(row)].key);
    hideScreen(p, f);
    return pickArrival(p, airport);
}

} // namespace

Waited showRoutes(Program& p) {
    if (p.session.schedule.DepartureFlights.empty())
        return ShowMessage(p, Heading::Warning, Message::NoFlights);
    fillRoutes(p);
    pointOut(p.forms.RoutesForm, -1);
    showScreen(p, p.forms.RoutesForm);
    return waited(p);
}

void bindRoutesForm(Program& p) {
    auto& f = p.forms.RoutesForm;
    f.load = [&p] { placeScreen(p, p.forms.RoutesForm); };
    f.activate = [&p] { CenterOnMain(p, p.forms.RoutesForm); };
    f.map.on(Event::Pick, [&p](const EventArgs& args) { return takeRoute(p, args.value); });
    f.map.on(Event::Hover, [&p](const EventArgs& args) { pointAtRoute(p, args.value); });
    f.routesList.on(Event::Click, [&p, &f] { pointAtRoute(p, f.routesList.picked); });
    f.routesList.on(Event::DoubleClick, [&p, &f] { return takeRoute(p, f.routesList.picked); });
    f.routesList.on(Event::Enter, [&p, &f] { return takeRoute(p, f.routesList.picked); });
    f.routesList.on(Event::Column, [&f](const EventArgs& args) { f.routesList.resetColumn(args.value); });
    f.BG.on(Event::Move, [&f] { restorePictures(f); });
}

} // namespace gatewise
