#include "pages/InfoForm.h"

#include "pages/Placement.h"
#include "pages/Screens.h"
#include "selection/FlightPicks.h"

namespace gatewise {

namespace {

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

} // namespace

void showFlightInfo(Program& p, int state, const std::string& pointer) {
    auto& info = p.forms.InfoForm.FlightInfo1;
    info.State = state;
    info.pointer = pointer;
    drawFlight(p, info);
    showModal(p, p.forms.InfoForm);
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

} // namespace gatewise
