#include "pages/InfoForm.h"

#include "pages/Placement.h"
#include "selection/FlightPicks.h"

namespace gatewise {

namespace {

void drawFlight(forms::FlightInfo& info, const FlightInfoTexts& texts) {
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

Waited showFlightInfo(Program& p, FlightSource source, int index) {
    const Schedule& schedule = p.session.schedule;
    auto& info = p.forms.InfoForm.FlightInfo1;
    info.State = static_cast<int>(source);
    info.pointer = std::to_string(index);
    if (const FlightRecord* flight = flightAt(schedule, source, index))
        drawFlight(info, flightInfoTexts(schedule.tables, *flight));
    return showModal(p, p.forms.InfoForm);
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
