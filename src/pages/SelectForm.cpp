#include "pages/SelectForm.h"

#include "pages/ConfigFile.h"
#include "pages/FlightForm.h"
#include "pages/MainBoard.h"
#include "pages/MainPass.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/Screens.h"
#include "schedule/FlightTexts.h"
#include "selection/Nearest.h"
#include "selection/Picks.h"

#include <utility>

namespace gatewise {

namespace {

struct PickMode {
    const char* mode;
    const char* title;
    void (*fill)(Program&);
    void (*accept)(Program&);
};

void selectFirst(ListBox& list) {
    if (list.count() > 0) list.select(0);
}

/// Takes lines over, already in the list's own order.
void takeLines(ListBox& list, const std::vector<PickItem>& items) {
    list.clear();
    for (const PickItem& item : items) list.add(item.text, item.data);
}

void fill(ListBox& list, const std::vector<PickItem>& items) {
    takeLines(list, items);
    selectFirst(list);
}

/// The list holds its search already; an empty one says so in the title.
void fillSearched(Program& p) {
    auto& f = p.forms.SelectForm;
    if (f.List1.count() == 0) f.Label1.text = "No Airport Found";
    selectFirst(f.List1);
}

void fillDestinations(Program& p) {
    auto& box = p.forms.MainForm.arrSearch;
    const std::string text = std::exchange(box.text, {});
    fill(p.forms.SelectForm.List1,
         destinationItems(p.g.tables, p.g.airportFinder, p.g.DepartureFlights, text));
}

void fillAlternates(Program& p) {
    auto& list = p.forms.SelectForm.List1;
    auto& box = p.forms.MainForm.altSearch;
    const std::string text(trimmed(box.text));
    if (!text.empty()) {
        box.text.clear();
        fill(list, alternateItems(p.g.tables, p.g.airportFinder, text));
        return;
    }
    list.clear();
    list.add("Finding 25 Closet Airports, Standby...");
    p.machine.desktop.paint();
    // Nobody asked for one of these by name: none is picked for the pilot.
    takeLines(list, closestAirportItems(p.g.tables, p.g.DestinationIndex, &p.g.geometry.lastCourse));
}

void fillBoardAirlines(Program& p) {
    auto& list = p.forms.SelectForm.List1;
    list.clear();
    for (const PickItem& item : airlineItems(p.g.tables, p.g.BoardFlights)) list.add(item.text, item.data);
    pickFavorite(p);
    p.g.BoardAirlineCode = find_airline_code(p, p.g.FavoriteAirlineName);
}

void fillAirlines(Program& p) {
    fill(p.forms.SelectForm.List1, homeAirlineItems(p.g.tables, p.forms.SettingsForm.airlineSearchTEXT.text));
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

void PickDestination(Program& p) {
    p.g.HaveDestination = kTrue;
    p.g.DestinationIndex = p.forms.SelectForm.List1.data();
    const AirportRecord& airport = p.g.tables.airport(p.g.DestinationIndex);
    p.forms.MainForm.arr_LABEL.text = airportText(airport);
    hideScreen(p, p.forms.SelectForm);
    SetFlightList(p, airport.Iata.view());
    p.machine.desktop.setPointer(false); // the picker's work is over
    showModal(p, p.forms.FlightForm);
}

void PickAlternate(Program& p) {
    p.g.HaveAlternate = kTrue;
    p.g.AlternateIndex = p.forms.SelectForm.List1.data();
    p.forms.MainForm.alt_LABEL.text = airportText(p.g.tables.airport(p.g.AlternateIndex));
    hideScreen(p, p.forms.SelectForm);
}

void PickAirlineFilter(Program& p) {
    hideScreen(p, p.forms.SelectForm);
    RefreshBoard(p);
}

void acceptDeparture(Program& p) {
    emptyDispatch(p);
    ClearDispatch(p);
    PickDeparture(p);
}

void acceptHome(Program& p) {
    p.g.HomeIndex = p.forms.SelectForm.List1.data();
    p.forms.SettingsForm.homeLABEL.text = homeText(p.g.tables.airport(p.g.HomeIndex));
    p.g.SelectMode = "departure";
    emptyDispatch(p);
    p.forms.SettingsForm.searchText.text.clear();
    ClearDispatch(p);
    PickDeparture(p);
    hideScreen(p, p.forms.SelectForm);
    WriteConfig(p);
}

void acceptAirline(Program& p) {
    p.g.FavoriteAirlineName = p.forms.SelectForm.List1.text();
    PickAirlineFilter(p);
}

void acceptHomeAirline(Program& p) {
    const int index = p.forms.SelectForm.List1.data();
    if (index < 0 || index > p.g.tables.AirlineLast()) return;
    auto& s = p.forms.SettingsForm;
    s.airlineLABEL.text = std::string(p.g.tables.airlines[static_cast<std::size_t>(index)].Name.trimmed());
    p.g.FavoriteAirlineName = s.airlineLABEL.text;
    p.g.BoardAirlineCode = find_airline_code(p, p.g.FavoriteAirlineName);
    RefreshBoard(p);
    s.airlineSearchTEXT.text.clear();
    ShowPage(p);
    WriteConfig(p);
    hideScreen(p, p.forms.SelectForm);
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
        if (p.g.SelectMode == row.mode) return &row;
    }
    return nullptr;
}

void activatePicker(Program& p) {
    auto& f = p.forms.SelectForm;
    CenterOnMain(p, f);
    f.selectButton.State = 0;
    f.selectButton.picture = "select_disabled";
    const PickMode* mode = modeOf(p);
    if (mode == nullptr) return;
    f.Label1.text = mode->title;
    mode->fill(p);
}

/// Searches the box of the mode for the airports that "departure" and "home" offer, then opens the picker.
void SearchAirports(Program& p) {
    auto& list = p.forms.SelectForm.List1;
    const bool home = p.g.SelectMode == "home";
    const std::string text =
        home ? p.forms.SettingsForm.searchText.text : p.forms.MainForm.departureText.text;
    list.clear();
    for (const PickItem& item : airportItems(p.g.tables, p.g.airportFinder, text))
        list.add(item.text, item.data);
    if (!home) {
        SetWaitDots(p, 5);
        hideWait(p);
    }
    showModal(p, p.forms.SelectForm);
}

} // namespace

void searchDeparture(Program& p) {
    showWait(p, "Finding Airport", 3);
    p.g.SelectMode = "departure";
    SearchAirports(p);
}

void searchHome(Program& p) {
    showWait(p, "Finding Airport", -1);
    p.g.SelectMode = "home";
    SearchAirports(p);
    hideWait(p);
}

void acceptPick(Program& p) {
    if (p.forms.SelectForm.List1.picked < 0) return;
    const PickMode* mode = modeOf(p);
    if (mode == nullptr) return;
    p.machine.desktop.setPointer(true);
    mode->accept(p);
    p.machine.desktop.setPointer(false);
}

void bindSelectForm(Program& p) {
    auto& f = p.forms.SelectForm;
    f.load = [&p] { placeScreen(p, p.forms.SelectForm); };
    f.activate = [&p] { activatePicker(p); };
    f.List1.on(Event::Click, [&f] {
        f.selectButton.State = 1;
        f.selectButton.picture = "select_regular";
    });
    f.List1.on(Event::DoubleClick, [&p] { acceptPick(p); });
    f.List1.on(Event::Enter, [&p] { acceptPick(p); });
    for (Control* ground : {static_cast<Control*>(&f.BG), static_cast<Control*>(&f.List1)}) {
        ground->on(Event::Move, [&f] { restorePictures(f); });
    }
}

} // namespace gatewise
