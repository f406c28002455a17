#include "pages/FlightForm.h"

#include "pages/InfoForm.h"
#include "pages/MainPass.h"
#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/Screens.h"
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

void loadFlightForm(Program& p) {
    auto& f = p.forms.FlightForm;
    placeScreen(p, f);
    for (int i = 0; i < static_cast<int>(f.FlightList.columns.size()); ++i) f.FlightList.resetColumn(i);
    restorePictures(f);
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

void bindFlightForm(Program& p) {
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
}

} // namespace gatewise
