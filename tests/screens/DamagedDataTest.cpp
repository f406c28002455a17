#include "dispatch/Terminal.h"
#include "input/Shutdown.h"

#include <filesystem>

// Data files as they must not be. Whatever they hold, the program ends where its messages say and goes on.

namespace gatewise::test {

namespace {

struct Damage {
    const char* name;
    void (*spoil)(Schedule& schedule);        // before the files are written
    void (*damage)(const TempFolder& folder); // and after
    int homeIndex = 0;
    bool served = true; // the home airport still has flights
};

void PrintTo(const Damage& damage, std::ostream* out) {
    *out << damage.name;
}

void cut(const TempFolder& folder, const char* file, std::size_t length) {
    const std::string path = folder.path(std::string("/Data/") + file);
    std::filesystem::resize_file(path, length);
}

void keep(Schedule&) {}
void leave(const TempFolder&) {}

void wildNumbers(Schedule& schedule) {
    for (auto& flight : schedule.flights) {
        flight.DepartureTime = -32768;
        flight.ArrivalTime = 32767;
        flight.Miles = -1;
        flight.DaysMask = 255;
        flight.FlightNumber = -32768;
        flight.MealMask = 255;
        flight.ClassCode = "\xFF";
        flight.AircraftCode = "???";
        flight.AirlineCode = std::string_view("\0\0\0", 3);
        flight.OriginIndex = -1;
        flight.DestIndex = 32767;
        flight.PlanNumber = -2147483647 - 1;
    }
    for (auto& airport : schedule.airports) {
        airport.Elevation = -2147483647 - 1;
        airport.Latitude = std::numeric_limits<float>::quiet_NaN();
        airport.Longitude = std::numeric_limits<float>::infinity();
        airport.RunwayCount = 2147483647;
        airport.RunwayOffset = -1;
    }
    schedule.aircraft.front().ClimbRate = 0;
    schedule.aircraft.front().DescentRate = -32768;
    schedule.aircraft.front().CruiseSpeedTAS = 0;
    schedule.aircraft.front().CruiseAltitude = 2147483647;
}

constexpr Damage kDamages[] = {
    {"EmptyIndex", keep, [](const TempFolder& f) { cut(f, "index.gt1", 0); }, 0, false},
    {"IndexOfOneByte", keep, [](const TempFolder& f) { cut(f, "index.gt1", 1); }, 0, false},
    {"IndexCutInARecord", keep, [](const TempFolder& f) { cut(f, "index.gt1", 107 + 60); }},
    {"IndexCutInAName", keep, [](const TempFolder& f) { cut(f, "index.gt1", 20); }, 0, false},
    {"EmptyRoutes", keep, [](const TempFolder& f) { cut(f, "routes.gt1", 0); }, 0, false},
    {"RoutesOneByteShort", keep, [](const TempFolder& f) { cut(f, "routes.gt1", 63); }, 0, false},
    {"NoRoutes", keep, [](const TempFolder& f) { std::filesystem::remove(f.path("/Data/routes.gt1")); }, 0,
     false},
    {"RoutesAreAFolder", keep,
     [](const TempFolder& f) {
         std::filesystem::remove(f.path("/Data/routes.gt1"));
         std::filesystem::create_directories(f.path("/Data/routes.gt1"));
     },
     0, false},
    {"EmptyArrivals", keep, [](const TempFolder& f) { cut(f, "arrivals.gt1", 0); }},
    {"ArrivalsCut", keep, [](const TempFolder& f) { cut(f, "arrivals.gt1", 7); }},
    {"ArrivalsElsewhere", keep,
     [](const TempFolder& f) {
         f.write("/Data/arrivals.gt1", std::string_view("\xFF\xFF\xFF\x7F\0\0\0\x80", 8));
     }},
    {"EmptyAirlines", keep, [](const TempFolder& f) { cut(f, "airline.gt1", 0); }},
    {"AirlinesCut", keep, [](const TempFolder& f) { cut(f, "airline.gt1", 30); }},
    {"EmptyAircraft", keep, [](const TempFolder& f) { cut(f, "aircraft.gt1", 0); }},
    {"AircraftCut", keep, [](const TempFolder& f) { cut(f, "aircraft.gt1", 54); }},
    {"NegativeDepartureCount", [](Schedule& s) { s.airports[0].DepartureCount = -1; }, leave, 0, false},
    {"MostDepartures", [](Schedule& s) { s.airports[0].DepartureCount = 32767; }, leave, 0, false},
    {"DepartureOffsetZero", [](Schedule& s) { s.airports[0].DepartureOffset = 0; }, leave, 0, false},
    {"DepartureOffsetBelowZero", [](Schedule& s) { s.airports[0].DepartureOffset = -2147483647 - 1; }, leave,
     0, false},
    {"DepartureOffsetFarOut", [](Schedule& s) { s.airports[0].DepartureOffset = 2147483647; }, leave, 0,
     false},
    {"DepartureOffsetBetweenRecords", [](Schedule& s) { s.airports[0].DepartureOffset = 1; }, leave},
    {"NegativeArrivalCount", [](Schedule& s) { s.airports[1].ArrivalCount = -32768; }, leave},
    {"MostArrivals", [](Schedule& s) { s.airports[1].ArrivalCount = 32767; }, leave},
    {"ArrivalOffsetBelowZero", [](Schedule& s) { s.airports[1].ArrivalOffset = -2147483647 - 1; }, leave},
    {"ArrivalOffsetFarOut", [](Schedule& s) { s.airports[1].ArrivalOffset = 2147483647; }, leave},
    {"WildNumbers", wildNumbers, leave},
    {"HomeAtTheBlankAirport", keep, leave, 3, false},
    {"HomeBehindTheTable", keep, leave, 2147483647, false},
    {"HomeBeforeTheTable", keep, leave, -2147483647 - 1, false},
};

class Damaged : public testing::TestWithParam<Damage> {
protected:
    TempFolder folder;
    Terminal t{folder};
    forms::MainForm& main = t.p.forms.MainForm;

    void start() {
        Schedule schedule = smallSchedule();
        GetParam().spoil(schedule);
        schedule.write(folder, "/Data");
        GetParam().damage(folder);
        folder.write("/GT.cfg", "[Main]\r\nIndex=" + std::to_string(GetParam().homeIndex) +
                                    "\r\nDataSet=\\Data\r\n[Announcements]\r\nTimeSort=0\r\nCitySort=0\r\n"
                                    "FltNumSort=1\r\nDept1=1\r\nDept2=1\r\nDept3=1\r\nArr1=1\r\nArr2=1\r\n"
                                    "Arr3=1\r\n[FlightOptions]\r\nFindAlternate=1\r\nAnyAirline=1\r\n");
        t.start();
    }
    void depart(const char* code) {
        user::type(main.departureText, code);
        t.answers = {[this] {
            auto& select = t.p.forms.SelectForm;
            if (select.List1.count() > 0) user::choose(select.List1, 0);
            user::click(select.selectButton);
        }};
        user::enter(main.departureText);
        t.answers.clear();
    }
    void useTheBoard() {
        user::click(main.statusboard_LABEL);
        for (int turn = 0; turn < 2; ++turn) {
            user::click(main.switchButton(1));
            for (int i = 0; i < 4; ++i) user::click(main.boardButton(i));
            for (int day = 0; day < main.dayCombo.count(); ++day) user::choose(main.dayCombo, day);
            for (Timer* timer :
                 {&main.update_TIMER, &main.FlashTimer, &main.play1Timer, &main.play2Timer, &main.play3Timer})
                user::tick(*timer);
            for (Label* head : {&main.city_LABEL(20), &main.time_LABEL(20), &main.fltnum_LABEL(20)})
                user::doubleClick(*head);
        }
        user::rightPress(main.city_LABEL(0));
        user::doubleClick(main.city_LABEL(0));
        user::doubleClick(main.fltnum_LABEL(19));
    }
};

} // namespace

TEST_P(Damaged, TheProgramGoesOn) {
    start();
    EXPECT_TRUE(main.visible);
    const bool told = t.lastMessage.starts_with("Gatewise Terminal was unable to find any");
    EXPECT_EQ(told, !GetParam().served) << t.lastMessage;
    EXPECT_EQ(main.arrivalButton.State, GetParam().served ? 1 : 0);
    useTheBoard();
    for (const char* code : {"BBB", "AAA", "CCC", " "}) {
        depart(code);
        useTheBoard();
    }
    for (SkinnedButton* button :
         {&main.arrivalButton, &main.alternateButton, &main.viewButton, &main.newButton, &main.sendlogButton,
          &main.FlatButton(0), &main.FlatButton(3)})
        user::click(*button);
    t.machine.loop.advance(130000);
    Shutdown(t.p);
    EXPECT_TRUE(t.p.ending);
}

INSTANTIATE_TEST_SUITE_P(Files, Damaged, testing::ValuesIn(kDamages),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace gatewise::test
