#include "screens/FlightScreens.h"

#include "screens/Dispatch.h"
#include "screens/LocaleFix.h"
#include "screens/Messages.h"
#include "screens/Screens.h"
#include "screens/SkinnedButtons.h"
#include "selection/FlightPicks.h"

namespace gatewise {

namespace {

void setButtonStates(forms::FlightForm& f, int state) {
    f.infoButton.State = f.flightButton.State = state;
}

/// Position in DepartureFlights behind the selected row, as text; empty without one.
std::string pickedPosition(const forms::FlightForm& f) {
    const auto* row = f.FlightList.selected();
    const std::int32_t position = row != nullptr ? positionOfKey(row->key) : -1;
    return position < 0 ? std::string() : std::to_string(position);
}

/// What setting FlightInfo's pointer does.
void drawFlight(Program& p, forms::FlightInfo& info) {
    const auto& flights = info.State == 0 ? p.g.DepartureFlights : p.g.BoardFlights;
    int index = 0;
    if (!parseInteger(info.pointer, index) || index < 0 || index >= static_cast<int>(flights.size())) return;
    const FlightInfoTexts texts = flightInfoTexts(p.g.tables, flights[static_cast<std::size_t>(index)]);
    info.origin.text = texts.origin;
    info.arrival.text = texts.arrival;
    info.flight_info.text = texts.flight_info;
    info.dept_time.text = texts.dept_time;
    info.arr_time.text = texts.arr_time;
    info.miles.text = texts.miles;
    info.Class.text = texts.Class;
    info.meal.text = texts.meal;
    Label* days[] = {&info.monday_label, &info.tuesday_label,  &info.wednesday_label, &info.thursday_label,
                     &info.friday_label, &info.saturday_label, &info.sunday_label};
    for (std::size_t i = 0; i < texts.days.size(); ++i) days[i]->text = texts.days[i];
}

void loadFlightForm(Program& p) {
    auto& f = p.forms.FlightForm;
    placeScreen(p, f);
    for (int i = 0; i < static_cast<int>(f.FlightList.columns.size()); ++i) f.FlightList.resetColumn(i);
    restorePictures(f);
}

void bindInfoForm(Program& p) {
    auto& f = p.forms.InfoForm;
    f.load = [&p] {
        placeScreen(p, p.forms.InfoForm);
        p.forms.InfoForm.closeButton.State = 1;
    };
    f.activate = [&p] {
        CenterOnMain(p, p.forms.InfoForm);
        p.forms.InfoForm.closeButton.State = 1;
        p.forms.InfoForm.closeButton.picture = "bclose_regular";
    };
    const auto rest = [&f] { f.closeButton.picture = "bclose_regular"; };
    f.BG.on(Event::Move, rest);
    f.FlightInfo1.mouseover.on(Event::Move, rest);
}

} // namespace

void SetFlightList(Program& p, std::string_view destinationIata) {
    auto& form = p.forms.FlightForm;
    loadScreen(form);
    auto& list = form.FlightList;
    const FlightPickList picks =
        pickFlights(p.g.DepartureFlights, destinationIata, p.forms.MainForm.dayCombo.data());
    p.g.FlightPicks = picks.FlightPicks;
    if (picks.overflow) {
        ShowFailure(p, kSubscriptOutOfRange, "Subscript out of range", "SetFlightList");
        return;
    }
    p.g.FlightPickCount = picks.FlightPickCount;
    list.clear();
    for (int i = 0; i <= picks.FlightPickCount; ++i) {
        const FlightLine line =
            flightLine(p.g.tables, p.g.DepartureFlights, picks.FlightPicks[static_cast<std::size_t>(i)]);
        list.rows.push_back({line.key, {line.text, line.equipment, line.departs, line.arrives}, false});
    }
    setButtonStates(form, 1);
    restorePictures(form);
}

void showFlightInfo(Program& p, int state, const std::string& pointer) {
    auto& info = p.forms.InfoForm.FlightInfo1;
    info.State = state;
    info.pointer = pointer;
    drawFlight(p, info);
    showModal(p, p.forms.InfoForm);
}

void showPickedInfo(Program& p) {
    const std::string position = pickedPosition(p.forms.FlightForm);
    if (!position.empty()) showFlightInfo(p, 0, position);
}

void takePickedFlight(Program& p) {
    const std::string position = pickedPosition(p.forms.FlightForm);
    if (position.empty()) return;
    hideScreen(p, p.forms.FlightForm);
    p.machine.desktop.paint();
    SelectFlight(p, position, 0);
}

void showFlightsAgain(Program& p) {
    SetFlightList(p, p.g.tables.airport(p.g.DestinationIndex).Iata.view());
    showScreen(p, p.forms.FlightForm);
}

void bindFlightScreens(Program& p) {
    auto& f = p.forms.FlightForm;
    f.load = [&p] { loadFlightForm(p); };
    f.activate = [&p] { CenterOnMain(p, p.forms.FlightForm); };
    const auto rest = [&f] { restorePictures(f); };
    f.FlightList.on(Event::Click, [&f] {
        setButtonStates(f, 1);
        restorePictures(f);
    });
    for (const Event event : {Event::DoubleClick, Event::Enter}) {
        f.FlightList.on(event, [&p] { takePickedFlight(p); });
    }
    for (const Event event : {Event::RightPress, Event::Space}) {
        f.FlightList.on(event, [&p] { showPickedInfo(p); });
    }
    f.FlightList.on(Event::Column, [&f](const EventArgs& args) { f.FlightList.resetColumn(args.value); });
    f.FlightList.on(Event::Move, rest);
    f.BG.on(Event::Move, rest);
    bindInfoForm(p);
}

} // namespace gatewise
