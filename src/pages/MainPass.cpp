#include "pages/MainPass.h"

#include "pages/BoardTimers.h"
#include "pages/MainDispatch.h"
#include "pages/MainPages.h"
#include "pages/Pictures.h"
#include "pages/ProgramsForm.h"
#include "pages/SaveSettings.h"
#include "pages/ViewPlan.h"
#include "pages/WaitForm.h"
#include "sound/Announcements.h"
#include "work/HallWork.h"
#include "work/PassTexts.h"
#include "work/PlanWork.h"

namespace gatewise {

namespace {

// What a step of SelectFlight cannot look up stays as it was, and the next step goes on.

void showAirportsOfFlight(Program& p) {
    auto& f = p.forms.MainForm;
    Session& s = p.session;
    const Dispatch& dispatch = s.dispatch;
    if (s.schedule.tables.hasAirport(dispatch.DepartureIndex))
        f.departureText.text = std::string(s.schedule.tables.airport(dispatch.DepartureIndex).Icao.trimmed());
    (void)loadDepartures(s.setPath(""), dispatch.DepartureIndex, s.schedule);
    showAirport(p, f.dept_LABEL, dispatch.DepartureIndex);
    showAirport(p, f.arr_LABEL, dispatch.DestinationIndex);
}

void fillPass(Program& p) {
    auto& f = p.forms.MainForm;
    const Session& s = p.session;
    const PassTexts texts =
        passTexts(s.dispatch.CurrentFlight, s.schedule.tables, s.settings, p.machine.clock.now());
    const auto both = [](Label& first, Label& second, const std::string& text) {
        first.text = second.text = text;
    };
    both(f.nameLABEL_1, f.nameLABEL_2, texts.name);
    both(f.destLABEL_1, f.destLABEL_2, texts.destination);
    both(f.originLABEL_1, f.originLABEL_2, texts.origin);
    both(f.fltLABEL_1, f.fltLABEL_2, texts.flight);
    f.aircraftLABEL.text = texts.aircraft;
    f.carrierLABEL_1.text = "Operated by " + texts.airline;
    f.carrierLABEL_2.text = texts.airline;
    if (texts.departs) f.timeLABEL.text = *texts.departs;
    if (texts.arrives) f.arrtimeLABEL.text = *texts.arrives;
    f.mealLABEL.text = texts.meal;
    if (texts.flightClass) f.classLABEL.text = *texts.flightClass;
    both(f.dateLABEL_1, f.dateLABEL_2, texts.date);
    both(f.seatLABEL_1, f.seatLABEL_2, texts.seat);
}

void leaveBoardForPass(Program& p) {
    startSoundEngine(p);
    p.session.hall.FadeDirection = "out";
    p.forms.MainForm.fade_timer.enable(true);
    showWait(p, 1);
    showMainPage(p);
    runBoardTimers(p.forms.MainForm, false);
}

void takeFlight(Program& p, int index, FlightSource source) {
    Session& s = p.session;
    takeFlight(s.schedule, source, index, s.dispatch, s.board);
    if (homeFollowsDeparture(s.dispatch, s.settings)) saveSettings(p);
    if (homeFollowsDestination(s.dispatch, s.settings)) saveSettings(p);
}

} // namespace

void FindNearestAlternate(Program& p) {
    Session& s = p.session;
    if (s.settings.FindAlternate != 1) return;
    FindNearestAlternate(s.schedule, s.settings, s.dispatch, s.plan.geometry.lastCourse);
    showAirport(p, p.forms.MainForm.alt_LABEL, s.dispatch.AlternateIndex);
}

Waited SelectFlight(Program& p, int index, FlightSource source) {
    Session& s = p.session;
    auto& f = p.forms.MainForm;
    leaveBoardForPass(p);
    takeFlight(p, index, source);
    showAirportsOfFlight(p);
    fillPass(p);

    SetWaitDots(p, 2);
    retrievePlan(s.plan.plan, planInput(s.AppDir, s.settings, s.schedule, s.dispatch));
    f.export_LABEL.enabled = true;
    if (s.simulator.ProFlightFound != kFalse) f.pf2k_LABEL.enabled = true;
    s.plan.before.clear(); // of another flight
    s.desk.failedKind.clear();
    setFlightButtons(f, 1);
    SetWaitDots(p, 4);
    FindNearestAlternate(p);
    refreshShownPlan(p);
    RefreshMainButtons(p, " ");
    hideWait(p);
    exportOnDispatch(p);
    const FlightRecord& flight = s.dispatch.CurrentFlight;
    PlayWelcome(*p.SoundEngine, s.AppDir, flight.AirlineCode.str() + std::to_string(flight.FlightNumber),
                kWelcomeKind, flight.DestinationIata.str());
    if (const auto volume = announcementVolume(s.settings, 0); volume != 0)
        p.SoundEngine->SetVolume(kWelcomeChannel, volume);
    return waited(p);
}

} // namespace gatewise
