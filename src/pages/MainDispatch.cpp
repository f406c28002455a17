#include "pages/MainDispatch.h"

#include "pages/MainBoard.h"
#include "pages/MainPages.h"
#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "pages/SaveSettings.h"
#include "schedule/FlightTexts.h"
#include "work/Departures.h"

namespace gatewise {

namespace {

void showDepartureAirport(Program& p) {
    auto& f = p.forms.MainForm;
    const AirportRecord& airport = p.session.schedule.tables.airport(p.session.dispatch.DepartureIndex);
    f.departureText.text = airport.Icao.str();
    f.dept_LABEL.text = airportText(airport);
}

void enableArrival(Program& p) {
    p.forms.MainForm.arrivalButton.State = 1;
    RefreshMainButtons(p, " ");
}

bool takeDepartures(Program& p) {
    Session& s = p.session;
    return takeDepartures(s.setPath(""), s.dispatch, s.schedule, s.board);
}

/// LoadDepartureFlights for the picked airport.
Waited loadDepartureFlights(Program& p, int airport) {
    Session& s = p.session;
    p.forms.MainForm.statusboard_LABEL.enabled = true;
    pickDeparture(airport, s.dispatch, s.board);
    if (homeFollowsDeparture(s.dispatch, s.settings)) saveSettings(p);
    const bool taken = takeDepartures(p);
    if (!taken && ShowMessage(p, Heading::Warning, Message::NoFlights) == Waited::Ended) return Waited::Ended;
    hideScreen(p, p.forms.SelectForm);
    if (!taken) return Waited::Answered;
    if (SwitchBoard(p, "arriving") == Waited::Ended) return Waited::Ended;
    showDepartureAirport(p);
    return Waited::Answered;
}

} // namespace

Waited LoadHomeFlights(Program& p) {
    Session& s = p.session;
    p.forms.MainForm.statusboard_LABEL.enabled = true;
    pickDeparture(s.settings.HomeIndex, s.dispatch, s.board);
    if (!takeDepartures(p)) return ShowMessage(p, Heading::Warning, Message::NoFlights);
    if (SwitchBoard(p, "arriving") == Waited::Ended) return Waited::Ended;
    p.forms.SettingsForm.homeLABEL.text = homeText(s.schedule.tables.airport(s.settings.HomeIndex));
    showDepartureAirport(p);
    enableArrival(p);
    return Waited::Answered;
}

Waited PickDeparture(Program& p, int airport) {
    if (loadDepartureFlights(p, airport) == Waited::Ended) return Waited::Ended;
    enableArrival(p);
    auto& f = p.forms.MainForm;
    if (f.status_pic.visible) runBoardTimers(f, true);
    return Waited::Answered;
}

void showAirport(const Program& p, Label& label, int airport) {
    const Tables& tables = p.session.schedule.tables;
    if (tables.hasAirport(airport)) label.text = airportText(tables.airport(airport));
}

void setFlightButtons(forms::MainForm& f, int state) {
    for (SkinnedButton* button : {&f.viewButton, &f.newButton, &f.FlatButton(0), &f.FlatButton(3),
                                  &f.alternateButton, &f.sendlogButton}) {
        button->State = state;
    }
}

void ClearDispatch(Program& p) {
    auto& f = p.forms.MainForm;
    runBoardTimers(f, false);
    clearDispatch(p.session.dispatch);
    f.departureText.text = p.session.schedule.tables.airport(p.session.dispatch.DepartureIndex).Icao.str();
    for (Label* label :
         {&f.dept_LABEL,   &f.arr_LABEL,     &f.alt_LABEL,      &f.nameLABEL_1,    &f.nameLABEL_2,
          &f.destLABEL_1,  &f.destLABEL_2,   &f.originLABEL_1,  &f.originLABEL_2,  &f.fltLABEL_1,
          &f.fltLABEL_2,   &f.aircraftLABEL, &f.carrierLABEL_1, &f.carrierLABEL_2, &f.timeLABEL,
          &f.arrtimeLABEL, &f.mealLABEL,     &f.classLABEL,     &f.dateLABEL_1,    &f.dateLABEL_2,
          &f.seatLABEL_1,  &f.seatLABEL_2}) {
        label->text.clear();
    }
    // Nothing is left on the pass that could be handed on.
    f.export_LABEL.enabled = f.pf2k_LABEL.enabled = false;
    setFlightButtons(f, 0);
    RefreshMainButtons(p, " ");
}

} // namespace gatewise
