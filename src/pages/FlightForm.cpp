#include "pages/FlightForm.h"

#include "pages/InfoForm.h"
#include "pages/MainPass.h"
#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "selection/FlightPicks.h"

namespace gatewise {

namespace {

void setButtonStates(forms::FlightForm& f, int state) {
    f.infoButton.State = f.flightButton.State = state;
}

/// Position in DepartureFlights behind the selected row.
std::optional<int> pickedPosition(const forms::FlightForm& f) {
    const auto* row = f.FlightList.selected();
    const auto position = row != nullptr ? positionOfKey(row->key) : std::nullopt;
    return position && *position >= 0 ? position : std::nullopt;
}

void loadFlightForm(Program& p) {
    auto& f = p.forms.FlightForm;
    placeScreen(p, f);
    restorePictures(f);
}

} // namespace

Waited SetFlightList(Program& p, std::string_view destinationIata) {
    auto& form = p.forms.FlightForm;
    loadScreen(form);
    auto& list = form.FlightList;
    const Schedule& schedule = p.session.schedule;
    Dispatch& dispatch = p.session.dispatch;
    const FlightPickList picks =
        pickFlights(schedule.DepartureFlights, destinationIata, p.forms.MainForm.dayCombo.data());
    dispatch.FlightPicks = picks.FlightPicks;
    if (picks.overflow) return ShowMessage(p, tableFull("SetFlightList"));
    dispatch.FlightPickCount = picks.FlightPickCount;
    list.clear();
    for (int i = 0; i <= picks.FlightPickCount; ++i) {
        const FlightLine line = flightLine(schedule.tables, schedule.DepartureFlights,
                                           picks.FlightPicks[static_cast<std::size_t>(i)]);
        list.rows.push_back({line.key, {line.text, line.equipment, line.departs, line.arrives}, false});
    }
    setButtonStates(form, 1);
    restorePictures(form);
    return waited(p);
}

Waited showPickedInfo(Program& p) {
    const auto position = pickedPosition(p.forms.FlightForm);
    return position ? showFlightInfo(p, FlightSource::DepartureFlights, *position) : waited(p);
}

Waited takePickedFlight(Program& p) {
    const auto position = pickedPosition(p.forms.FlightForm);
    if (!position) return waited(p);
    hideScreen(p, p.forms.FlightForm);
    p.machine.desktop.paint();
    return SelectFlight(p, *position, FlightSource::DepartureFlights);
}

Waited showFlightsAgain(Program& p) {
    const AirportRecord& airport = p.session.schedule.tables.airport(p.session.dispatch.DestinationIndex);
    if (SetFlightList(p, airport.Iata.view()) == Waited::Ended) return Waited::Ended;
    showScreen(p, p.forms.FlightForm);
    return Waited::Answered;
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
        f.FlightList.on(event, [&p] { return takePickedFlight(p); });
    }
    for (const Event event : {Event::RightPress, Event::Space}) {
        f.FlightList.on(event, [&p] { return showPickedInfo(p); });
    }
    f.FlightList.on(Event::Column, [&f](const EventArgs& args) { f.FlightList.resetColumn(args.value); });
    f.FlightList.on(Event::Move, rest);
    f.BG.on(Event::Move, rest);
}

} // namespace gatewise
