#include "pages/MainBoard.h"

#include "board/Board.h"
#include "board/Paging.h"
#include "pages/MainClocks.h"
#include "pages/MsgForm.h"
#include "pages/Screens.h"
#include "schedule/Lookups.h"
#include "schedule/Readers.h"
#include "selection/Picks.h"

namespace gatewise {

namespace {

constexpr int kInvalidPropertyValue = 380;

/// The first option that is on decides, in this order.
BoardSort chosenSort(const forms::OptionsForm& f) {
    if (f.cityOption.value) return BoardSort::City;
    if (f.timeOption.value) return BoardSort::Time;
    if (f.fltnumOption.value) return BoardSort::FlightNumber;
    return BoardSort::None;
}

BoardRequest request(Program& p) {
    const auto& f = p.forms.MainForm;
    return {p.g.BoardAirlineCode, f.dayCombo.data(), f.gt_hoursLABEL.text, f.gt_minutesLABEL.text,
            chosenSort(p.forms.OptionsForm)};
}

/// The airlines of a freshly loaded board decide what the filter means.
void takeBoardAirlines(Program& p) {
    listBoardAirlines(p);
    pickFavorite(p);
    p.g.BoardAirlineCode = find_airline_code(p, p.g.FavoriteAirlineName);
}

bool turnToArrivals(Program& p) {
    const AirportRecord& airport = p.g.tables.airport(p.g.BoardAirportIndex);
    if (airport.ArrivalCount < 1) return false;
    SetWaitDots(p, 1);
    if (!loadArrivals(p.setPath("\\arrivals.gt1"), p.setPath("\\routes.gt1"), airport.ArrivalOffset,
                      airport.ArrivalCount, p.g.BoardFlights)) {
        return false;
    }
    auto& f = p.forms.MainForm;
    p.g.BoardMode = "arriving";
    SetWaitDots(p, 2);
    takeBoardAirlines(p);
    BuildArrivals(p);
    ShowPage(p);
    f.headerPICTURE.picture = "\\Images\\Status\\header_arr.bmp";
    f.switchButton(1).picture = "switch_dept_regular";
    f.city_LABEL(kHeadingRow).text = " ARRIVING FROM";
    return true;
}

bool turnToDepartures(Program& p) {
    const AirportRecord& airport = p.g.tables.airport(p.g.BoardAirportIndex);
    auto& f = p.forms.MainForm;
    p.g.BoardMode = "departing";
    if (airport.DepartureCount >= 1) {
        if (!loadFlights(p.setPath("\\routes.gt1"), airport.DepartureOffset, airport.DepartureCount,
                         p.g.BoardFlights)) {
            return false;
        }
        takeBoardAirlines(p);
        BuildDepartures(p);
        ShowPage(p);
    }
    f.headerPICTURE.picture = "\\Images\\Status\\header_dept.bmp";
    f.switchButton(1).picture = "switch_arr_regular";
    f.city_LABEL(kHeadingRow).text = " DEPARTING TO";
    return true;
}

} // namespace

void SetWaitDots(Program& p, int n) {
    p.forms.WaitForm.Dots.picture = "\\Images\\Dot" + std::to_string(n) + ".bmp";
    p.machine.desktop.paint();
}

void showWait(Program& p, std::string text, int dots) {
    p.forms.WaitForm.infoLABEL.text = std::move(text);
    showScreen(p, p.forms.WaitForm);
    if (dots >= 0)
        SetWaitDots(p, dots);
    else
        p.machine.desktop.paint();
}

void hideWait(Program& p) {
    hideScreen(p, p.forms.WaitForm);
}

// By value: the mode that is left is handed in as BoardMode itself, which changes on the way.
void SwitchBoard(Program& p, std::string leaving) { // NOLINT(performance-unnecessary-value-param)
    if (p.g.StartupDone != kFalse) showWait(p, "Finding Flights", 0);
    WriteHeader(p);
    if (leaving == "departing") {
        if (!turnToArrivals(p)) ShowMessage(p, kInformation, 16);
    } else if (leaving != "arriving" || !turnToDepartures(p)) {
        ShowMessage(p, kWarning, 4);
        hideScreen(p, p.forms.SelectForm);
    }
    hideWait(p);
}

void bringUpBoard(Program& p) {
    SwitchBoard(p, p.g.BoardMode == "arriving" ? "departing" : "arriving");
}

void RefreshBoard(Program& p) {
    showWait(p, "Finding Flights", 0);
    p.g.BoardPage = 0;
    p.g.BoardAirlineCode = find_airline_code(p, p.g.FavoriteAirlineName);
    WriteHeader(p);
    buildBoard(p);
    ShowPage(p);
    hideWait(p);
}

void BuildDepartures(Program& p) {
    BuildDepartures(p.g.BoardFlights, p.g.tables, request(p), p.g.board, [&p](int n) { SetWaitDots(p, n); });
}

void BuildArrivals(Program& p) {
    BuildArrivals(p.g.BoardFlights, p.g.tables, request(p), p.g.board, [&p](int n) { SetWaitDots(p, n); });
}

void buildBoard(Program& p) {
    if (p.g.BoardMode == "arriving")
        BuildArrivals(p);
    else
        BuildDepartures(p);
}

void WriteHeader(Program& p) {
    UpdateClockHours(p);
    UpdateClockMinutes(p);
    auto& f = p.forms.MainForm;
    BoardHeader header{
        .airport = p.g.tables.airport(p.g.BoardAirportIndex), .FavoriteAirlineName = {}, .dayText = {}};
    parseInteger(f.gt_hoursLABEL.text, header.hours);
    parseInteger(f.gt_minutesLABEL.text, header.minutes);
    header.seconds = p.machine.clock.now().second;
    header.FavoriteAirlineName = p.g.FavoriteAirlineName;
    header.arriving = p.g.BoardMode == "arriving";
    const std::string day = f.dayCombo.text();
    header.dayText = day;
    header.BoardPage = p.g.BoardPage;
    header.BoardRowCount = p.g.board.BoardRowCount;
    f.header_LABEL.text = headerText(header);
}

void ShowPage(Program& p) {
    SetWaitDots(p, 5);
    auto& f = p.forms.MainForm;
    const auto rows = boardPage(p.g.board, p.g.BoardPage, p.g.BoardMode == "arriving");
    for (int i = 0; i < kRowsOnPage; ++i) {
        const auto& row = rows[static_cast<std::size_t>(i)];
        f.fltnum_LABEL(i).text = row.fltnum;
        f.city_LABEL(i).text = row.city;
        f.time_LABEL(i).text = row.time;
        f.status_LABEL(i).text = row.status;
        if (row.statusColour) {
            f.status_LABEL(i).color = {row.statusColour->red, row.statusColour->green,
                                       row.statusColour->blue};
        }
    }
}

namespace {

void turnPage(Program& p, int step) {
    p.g.BoardPage = static_cast<std::int16_t>(p.g.BoardPage + step);
    WriteHeader(p);
    for (int i = 0; i < kRowsOnPage; ++i) p.forms.MainForm.status_LABEL(i).visible = true;
    ShowPage(p);
}

} // namespace

void NextPage(Program& p) {
    if (hasNextPage(p.g.board.BoardRowCount, p.g.BoardPage)) turnPage(p, 1);
}

void PreviousPage(Program& p) {
    if (hasPreviousPage(p.g.BoardPage)) turnPage(p, -1);
}

void listBoardAirlines(Program& p) {
    auto& list = p.forms.SelectForm.List1;
    list.clear();
    for (const PickItem& item : boardAirlineItems(p.g.tables, p.g.BoardFlights))
        list.add(item.text, item.data);
}

void pickFavorite(Program& p) {
    auto& list = p.forms.SelectForm.List1;
    const int place = list.find(trimmed(p.g.FavoriteAirlineName));
    list.select(place >= 0 ? place : 0);
}

// By value: the name is FavoriteAirlineName itself, which may change on the way.
std::string find_airline_code(Program& p, std::string name) { // NOLINT(performance-unnecessary-value-param)
    std::string code = find_airline_code(p.g.tables, name);
    if (!code.empty()) return code;
    // The favourite does not fly in this data set: one of the board's airlines takes its place.
    listBoardAirlines(p);
    auto& list = p.forms.SelectForm.List1;
    const int place = list.find(trimmed(p.g.FavoriteAirlineName));
    if (place >= 0) {
        list.select(place);
    } else if (list.count() > 0) {
        list.select(0);
        p.g.FavoriteAirlineName = list.text();
    } else {
        ShowFailure(p, kInvalidPropertyValue, "Invalid property value", "find_airline_code");
        return {};
    }
    return firstAirlineCode(p.g.tables, p.g.FavoriteAirlineName);
}

} // namespace gatewise
