#include "pages/MainPass.h"

#include "pages/ConfigFile.h"
#include "pages/MainBoard.h"
#include "pages/MainPages.h"
#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "pages/Screens.h"
#include "pages/ViewPlan.h"
#include "platform/Files.h"
#include "schedule/FlightTexts.h"
#include "schedule/Lookups.h"
#include "schedule/Readers.h"
#include "selection/Nearest.h"
#include "sound/Announcements.h"

#include <algorithm>

namespace gatewise {

namespace {

/// The departures of an airport; false when it has none or they do not lie in the file.
bool readDepartures(Program& p, int airport, std::vector<FlightRecord>& flights) {
    if (airport < 0 || airport > p.g.tables.AirportCount()) return false;
    const AirportRecord& record = p.g.tables.airport(airport);
    if (record.DepartureCount < 1) return false;
    return loadFlights(p.setPath("\\routes.gt1"), record.DepartureOffset, record.DepartureCount, flights);
}

void showDepartureAirport(Program& p) {
    auto& f = p.forms.MainForm;
    const AirportRecord& airport = p.g.tables.airport(p.g.DepartureIndex);
    f.departureText.text = airport.Icao.str();
    f.dept_LABEL.text = airportText(airport);
}

void showAirport(const Program& p, Label& label, int airport) {
    if (p.g.tables.hasAirport(airport)) label.text = airportText(p.g.tables.airport(airport));
}

void enableArrival(Program& p) {
    p.forms.MainForm.arrivalButton.State = 1;
    RefreshMainButtons(p, " ");
}

/// Buttons that need a flight on the pass.
void setFlightButtons(forms::MainForm& f, int state) {
    for (SkinnedButton* button : {&f.viewButton, &f.newButton, &f.FlatButton(0), &f.FlatButton(3),
                                  &f.alternateButton, &f.sendlogButton}) {
        button->State = state;
    }
}

/// LoadDepartureFlights for the picked airport; one without flights says so, and the old flights stay.
void loadDepartureFlights(Program& p, int airport) {
    auto& f = p.forms.MainForm;
    p.g.BoardPage = 0;
    f.statusboard_LABEL.enabled = true;
    p.g.HaveDeparture = kTrue;
    p.g.DepartureIndex = airport;
    if (p.forms.SettingsForm.homeDeptCHECK.value == 1) {
        p.g.HomeIndex = p.g.DepartureIndex;
        WriteConfig(p);
    }
    std::vector<FlightRecord> flights;
    if (!readDepartures(p, airport, flights)) {
        ShowMessage(p, kWarning, 4);
        hideScreen(p, p.forms.SelectForm);
        return;
    }
    p.g.DepartureFlights = std::move(flights);
    p.g.BoardAirportIndex = airport;
    hideScreen(p, p.forms.SelectForm);
    SwitchBoard(p, "arriving");
    showDepartureAirport(p);
}

} // namespace

void startSoundEngine(Program& p) {
    p.SoundEngine->Initialize_Engine();
    p.SoundEngine->SetSpeakerConfig("stereo");
    std::string unused;
    p.SoundEngine->GetSpeakerConfig(unused);
}

void LoadHomeFlights(Program& p) {
    p.g.BoardPage = 0;
    p.forms.MainForm.statusboard_LABEL.enabled = true;
    p.g.HaveDeparture = kTrue;
    p.g.DepartureIndex = p.g.HomeIndex;
    std::vector<FlightRecord> flights;
    if (!readDepartures(p, p.g.HomeIndex, flights)) {
        ShowMessage(p, kWarning, 4);
        return;
    }
    p.g.DepartureFlights = std::move(flights);
    p.g.BoardAirportIndex = p.g.HomeIndex;
    SwitchBoard(p, "arriving");
    p.forms.SettingsForm.homeLABEL.text = homeText(p.g.tables.airport(p.g.HomeIndex));
    showDepartureAirport(p);
    enableArrival(p);
}

void PickDeparture(Program& p) {
    loadDepartureFlights(p, p.forms.SelectForm.List1.data());
    if (p.ending) return;
    enableArrival(p);
    auto& f = p.forms.MainForm;
    if (!f.status_pic.visible) return;
    for (Timer* timer : {&f.update_TIMER, &f.FlashTimer, &f.play1Timer, &f.play2Timer, &f.play3Timer}) {
        timer->enable(true);
    }
}

void FindNearestAlternate(Program& p) {
    if (p.forms.SettingsForm.altCHECK.value != 1) return;
    const double least = leadingNumber(p.forms.SettingsForm.altdistCOMBO.text());
    if (const auto found =
            nearestAlternate(p.g.tables, p.g.DestinationIndex, least, &p.g.geometry.lastCourse)) {
        p.g.HaveAlternate = kTrue;
        p.g.AlternateIndex = *found;
    }
    showAirport(p, p.forms.MainForm.alt_LABEL, p.g.AlternateIndex);
}

void ClearDispatch(Program& p) {
    auto& f = p.forms.MainForm;
    stopBoardTimers(p);
    p.g.HaveDestination = p.g.HaveAlternate = kFalse;
    p.g.DestinationIndex = p.g.AlternateIndex = 0;
    f.departureText.text = p.g.tables.airport(p.g.DepartureIndex).Icao.str();
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

namespace {

// What a step of SelectFlight cannot look up stays as it was, and the next step goes on.

void takeFlight(Program& p, const std::string& flightIndex, int source) {
    const auto& flights = source == 0 ? p.g.DepartureFlights : p.g.BoardFlights;
    int index = 0;
    if (parseInteger(flightIndex, index) && index >= 0 && index < static_cast<int>(flights.size()))
        p.g.CurrentFlight = flights[static_cast<std::size_t>(index)];
}

void takeHomeFromFlight(Program& p) {
    const auto& s = p.forms.SettingsForm;
    if (s.homeDeptCHECK.value == 1) {
        p.g.HomeIndex = p.g.DepartureIndex;
        WriteConfig(p);
    }
    if (s.homeDestCHECK.value == 1) {
        p.g.HomeIndex = p.g.DestinationIndex;
        WriteConfig(p);
    }
}

void showAirportsOfFlight(Program& p) {
    auto& f = p.forms.MainForm;
    if (p.g.tables.hasAirport(p.g.DepartureIndex))
        f.departureText.text = std::string(p.g.tables.airport(p.g.DepartureIndex).Icao.trimmed());
    std::vector<FlightRecord> flights;
    if (readDepartures(p, p.g.DepartureIndex, flights)) p.g.DepartureFlights = std::move(flights);
    showAirport(p, f.dept_LABEL, p.g.DepartureIndex);
    showAirport(p, f.arr_LABEL, p.g.DestinationIndex);
}

void fillPass(Program& p) {
    auto& f = p.forms.MainForm;
    const auto& s = p.forms.SettingsForm;
    const FlightRecord& flight = p.g.CurrentFlight;
    const Tables& tables = p.g.tables;
    const DateTime now = p.machine.clock.now();
    const auto both = [](Label& first, Label& second, const std::string& text) {
        first.text = second.text = text;
    };

    both(f.nameLABEL_1, f.nameLABEL_2, upperCase(s.lastTEXT.text) + "/" + upperCase(s.firstTEXT.text));
    both(f.destLABEL_1, f.destLABEL_2, find_arrival_name(tables, flight.DestinationIata.view()));
    both(f.originLABEL_1, f.originLABEL_2, find_origin_name(tables, flight.OriginIata.view()));
    both(f.fltLABEL_1, f.fltLABEL_2,
         std::string(flight.AirlineCode.trimmed()) + std::to_string(flight.FlightNumber));
    f.aircraftLABEL.text = find_aircraft(tables, flight.AircraftCode.view());
    const std::string airline = find_airline(tables, flight.AirlineCode.view());
    f.carrierLABEL_1.text = "Operated by " + airline;
    f.carrierLABEL_2.text = airline;
    if (const auto time = passTime(flight.DepartureTime)) f.timeLABEL.text = *time;
    if (const auto time = passTime(flight.ArrivalTime)) f.arrtimeLABEL.text = *time;
    f.mealLABEL.text = get_meal(flight.MealMask);
    if (const auto text = passClass(flight.ClassCode.view())) f.classLABEL.text = std::string(*text);
    both(f.dateLABEL_1, f.dateLABEL_2, passDate(now));
    both(f.seatLABEL_1, f.seatLABEL_2, seatText(now.second));
}

} // namespace

void SelectFlight(Program& p, const std::string& flightIndex, int source) {
    auto& f = p.forms.MainForm;
    startSoundEngine(p);
    p.g.FadeDirection = "out";
    f.fade_timer.enable(true);
    showWait(p, p.forms.WaitForm.infoLABEL.text, 1);
    showMainPage(p);
    stopBoardTimers(p);

    takeFlight(p, flightIndex, source);
    const FlightRecord flight = p.g.CurrentFlight;
    p.g.HaveDeparture = p.g.HaveDestination = kTrue;
    p.g.DepartureIndex = p.g.BoardAirportIndex = flight.OriginIndex;
    p.g.DestinationIndex = flight.DestIndex;
    takeHomeFromFlight(p);
    showAirportsOfFlight(p);
    fillPass(p);

    SetWaitDots(p, 2);
    retrievePlan(p);
    f.export_LABEL.enabled = true;
    if (p.g.ProFlightFound != kFalse) f.pf2k_LABEL.enabled = true;
    setFlightButtons(f, 1);
    SetWaitDots(p, 4);
    FindNearestAlternate(p);
    refreshShownPlan(p);
    RefreshMainButtons(p, " ");
    hideWait(p);
    PlayWelcome(*p.SoundEngine, p.g.AppDir, flight.AirlineCode.str() + std::to_string(flight.FlightNumber),
                kWelcomeKind, flight.DestinationIata.str());
}

} // namespace gatewise
