#include "pages/SelectForm.h"

#include "pages/AirlineList.h"
#include "pages/FlightForm.h"
#include "pages/MainBoard.h"
#include "pages/MainDispatch.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/SaveSettings.h"
#include "pages/WaitForm.h"
#include "schedule/FlightTexts.h"
#include "selection/Nearest.h"
#include "work/Departures.h"

#include <algorithm>
#include <utility>

namespace gatewise {

namespace {

struct PickMode {
    const char* mode;
    const char* title;
    Waited (*fill)(Program&);
    Waited (*accept)(Program&);
};

void fill(ListBox& list, const std::vector<PickItem>& items) {
    takeLines(list, items);
    list.select(0);
}

/// The list holds its search already; an empty one says so in the title.
Waited fillSearched(Program& p) {
    auto& f = p.forms.SelectForm;
    if (f.List1.count() == 0) f.Label1.text = "No Airport Found";
    f.List1.select(0);
    return waited(p);
}

Waited fillDestinations(Program& p) {
    const Schedule& schedule = p.session.schedule;
    const std::string text = std::exchange(p.forms.MainForm.arrSearch.text, {});
    fill(p.forms.SelectForm.List1,
         destinationItems(schedule.tables, schedule.airportFinder, schedule.DepartureFlights, text));
    return waited(p);
}

Waited fillAlternates(Program& p) {
    Session& s = p.session;
    auto& list = p.forms.SelectForm.List1;
    auto& box = p.forms.MainForm.altSearch;
    const std::string text(trimmed(box.text));
    if (!text.empty()) {
        box.text.clear();
        fill(list, alternateItems(s.schedule.tables, s.schedule.airportFinder, text));
        return waited(p);
    }
    list.clear();
    list.add("Finding 25 Closet Airports, Standby...");
    p.machine.desktop.paint();
    // Nobody asked for one of these by name: none is picked for the pilot.
    takeLines(list, closestAirportItems(s.schedule.tables, s.dispatch.DestinationIndex,
                                        &s.plan.geometry.lastCourse));
    return waited(p);
}

Waited fillBoardAirlines(Program& p) {
    const Schedule& schedule = p.session.schedule;
    takeLines(p.forms.SelectForm.List1, airlineItems(schedule.tables, schedule.BoardFlights));
    pickFavorite(p);
    return filterByFavorite(p);
}

Waited fillAirlines(Program& p) {
    fill(p.forms.SelectForm.List1,
         homeAirlineItems(p.session.schedule.tables, p.forms.SettingsForm.airlineSearchTEXT.text));
    return waited(p);
}

/// What belonged to the old departure airport goes.
void emptyDispatch(Program& p) {
    auto& f = p.forms.MainForm;
    f.arrSearch.text.clear();
    f.arr_LABEL.text.clear();
    f.altSearch.text.clear();
    f.alt_LABEL.text.clear();
    f.pf2k_LABEL.enabled = false;
    f.export_LABEL.enabled = false;
}

Waited acceptDeparture(Program& p) {
    emptyDispatch(p);
    ClearDispatch(p);
    return PickDeparture(p, p.forms.SelectForm.List1.data());
}

Waited acceptHome(Program& p) {
    Session& s = p.session;
    auto& settings = p.forms.SettingsForm;
    const int airport = p.forms.SelectForm.List1.data();
    s.settings.HomeIndex = airport;
    settings.homeLABEL.text = homeText(s.schedule.tables.airport(airport));
    s.dispatch.SelectMode = "departure";
    emptyDispatch(p);
    settings.searchText.text.clear();
    ClearDispatch(p);
    if (PickDeparture(p, airport) == Waited::Ended) return Waited::Ended;
    hideScreen(p, p.forms.SelectForm);
    saveSettings(p);
    return Waited::Answered;
}

Waited PickDestination(Program& p) {
    Session& s = p.session;
    pickDestination(p.forms.SelectForm.List1.data(), s.dispatch);
    const AirportRecord& airport = s.schedule.tables.airport(s.dispatch.DestinationIndex);
    p.forms.MainForm.arr_LABEL.text = airportText(airport);
    hideScreen(p, p.forms.SelectForm);
    if (SetFlightList(p, airport.Iata.view()) == Waited::Ended) return Waited::Ended;
    p.machine.desktop.setPointer(false); // the picker's work is over
    return showModal(p, p.forms.FlightForm);
}

Waited PickAlternate(Program& p) {
    Session& s = p.session;
    pickAlternate(p.forms.SelectForm.List1.data(), s.dispatch);
    p.forms.MainForm.alt_LABEL.text = airportText(s.schedule.tables.airport(s.dispatch.AlternateIndex));
    hideScreen(p, p.forms.SelectForm);
    return waited(p);
}

Waited acceptAirline(Program& p) {
    p.session.board.FavoriteAirlineName = p.forms.SelectForm.List1.text();
    hideScreen(p, p.forms.SelectForm);
    return RefreshBoard(p);
}

Waited acceptHomeAirline(Program& p) {
    Session& s = p.session;
    const int index = p.forms.SelectForm.List1.data();
    if (index < 0 || index > s.schedule.tables.AirlineLast()) return waited(p);
    auto& f = p.forms.SettingsForm;
    const AirlineRecord& airline = s.schedule.tables.airlines[static_cast<std::size_t>(index)];
    s.settings.FavoriteAirline = std::string(airline.Name.trimmed());
    f.airlineLABEL.text = s.board.FavoriteAirlineName = s.settings.FavoriteAirline;
    if (filterByFavorite(p) == Waited::Ended) return Waited::Ended;
    if (RefreshBoard(p) == Waited::Ended) return Waited::Ended;
    f.airlineSearchTEXT.text.clear();
    ShowPage(p);
    saveSettings(p);
    hideScreen(p, p.forms.SelectForm);
    return Waited::Answered;
}

constexpr PickMode kPickModes[] = {
    {"departure", "Select Departure Airport", fillSearched, acceptDeparture},
    {"home", "Select Home Airport", fillSearched, acceptHome},
    {"arrival", "Select Destination Airport", fillDestinations, PickDestination},
    {"alternate", "Select Alternate Airport", fillAlternates, PickAlternate},
    {"airline", "Select Airline to View", fillBoardAirlines, acceptAirline},
    {"home_airline", "Select Default Airline", fillAirlines, acceptHomeAirline},
};

const PickMode* modeOf(const Program& p) {
    for (const auto& row : kPickModes) {
        if (p.session.dispatch.SelectMode == row.mode) return &row;
    }
    return nullptr;
}

Waited activatePicker(Program& p) {
    auto& f = p.forms.SelectForm;
    CenterOnMain(p, f);
    f.selectButton.State = 0;
    f.selectButton.picture = "select_disabled";
    const PickMode* mode = modeOf(p);
    if (mode == nullptr) return waited(p);
    f.Label1.text = mode->title;
    f.empty_LABEL.visible = false;
    const Waited filled = mode->fill(p);
    f.empty_LABEL.visible = f.List1.count() == 0;
    return filled;
}

/// Searches for the airports that "departure" and "home" offer.
void searchAirports(Program& p, const char* mode, const std::string& text) {
    const Schedule& schedule = p.session.schedule;
    p.session.dispatch.SelectMode = mode;
    takeLines(p.forms.SelectForm.List1, airportItems(schedule.tables, schedule.airportFinder, text));
}

} // namespace

Waited searchDeparture(Program& p) {
    showWait(p, "Finding Airport", 3);
    searchAirports(p, "departure", p.forms.MainForm.departureText.text);
    SetWaitDots(p, 5);
    hideWait(p);
    return showModal(p, p.forms.SelectForm);
}

Waited searchHome(Program& p) {
    showWait(p, "Finding Airport", -1);
    searchAirports(p, "home", p.forms.SettingsForm.searchText.text);
    if (showModal(p, p.forms.SelectForm) == Waited::Ended) return Waited::Ended;
    hideWait(p);
    return Waited::Answered;
}

Waited pick(Program& p, const char* mode) {
    p.session.dispatch.SelectMode = mode;
    return showModal(p, p.forms.SelectForm);
}

Waited acceptPick(Program& p) {
    if (p.forms.SelectForm.List1.picked < 0) return waited(p);
    const PickMode* mode = modeOf(p);
    if (mode == nullptr) return waited(p);
    p.machine.desktop.setPointer(true);
    const Waited answer = mode->accept(p);
    p.machine.desktop.setPointer(false);
    return answer;
}

Waited pickArrival(Program& p, int airport) {
    auto& list = p.forms.SelectForm.List1;
    loadScreen(p.forms.SelectForm);
    p.session.dispatch.SelectMode = "arrival";
    p.forms.MainForm.arrSearch.text.clear();
    if (fillDestinations(p) == Waited::Ended) return Waited::Ended;
    const auto at = std::find(list.itemData.begin(), list.itemData.end(), airport);
    if (at == list.itemData.end()) return waited(p);
    list.select(static_cast<int>(at - list.itemData.begin()));
    return acceptPick(p);
}

void bindSelectForm(Program& p) {
    auto& f = p.forms.SelectForm;
    f.load = [&p] { placeScreen(p, p.forms.SelectForm); };
    f.activate = [&p] { return activatePicker(p); };
    f.List1.on(Event::Click, [&f] {
        f.selectButton.State = 1;
        f.selectButton.picture = "select_regular";
    });
    f.List1.on(Event::DoubleClick, [&p] { return acceptPick(p); });
    f.List1.on(Event::Enter, [&p] { return acceptPick(p); });
    for (Control* ground : {static_cast<Control*>(&f.BG), static_cast<Control*>(&f.List1)}) {
        ground->on(Event::Move, [&f] { restorePictures(f); });
    }
}

} // namespace gatewise
