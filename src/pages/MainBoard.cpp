#include "pages/MainBoard.h"

#include "pages/AirlineList.h"
#include "pages/BoardSigns.h"
#include "pages/MainClocks.h"
#include "pages/MsgForm.h"
#include "pages/WaitForm.h"
#include "work/BoardWork.h"

#include <cstdlib>

namespace gatewise {

namespace {

BoardChoice choice(const Program& p) {
    const auto& f = p.forms.MainForm;
    return {f.dayCombo.data(), f.gt_hoursLABEL.text, f.gt_minutesLABEL.text, p.session.settings.sort};
}

WaitDots waitDots(Program& p) {
    return [&p](int n) { SetWaitDots(p, n); };
}

/// The airlines of a freshly loaded board decide what the filter means.
Waited takeBoardAirlines(Program& p) {
    listBoardAirlines(p);
    pickFavorite(p);
    return filterByFavorite(p);
}

struct Heads {
    const char* header;
    const char* switchPicture;
    const char* city;
};

constexpr Heads kArrivals = {"\\Images\\Status\\header_arr.bmp", "switch_dept_regular", " ARRIVING FROM"};
constexpr Heads kDepartures = {"\\Images\\Status\\header_dept.bmp", "switch_arr_regular", " DEPARTING TO"};

void showHeads(forms::MainForm& f, const Heads& heads) {
    f.headerPICTURE.picture = heads.header;
    f.switchButton(1).picture = heads.switchPicture;
    f.city_LABEL(kHeadingRow).text = heads.city;
}

enum class Turn { Done, NoFlights, Ended };

Turn turnToArrivals(Program& p) {
    Session& s = p.session;
    if (!hasArrivals(s.schedule, s.board)) return Turn::NoFlights;
    SetWaitDots(p, 1);
    if (!loadBoardArrivals(s.setPath(""), s.schedule, s.board)) return Turn::NoFlights;
    s.board.BoardMode = "arriving";
    SetWaitDots(p, 2);
    if (takeBoardAirlines(p) == Waited::Ended) return Turn::Ended;
    BuildArrivals(s.schedule, choice(p), s.board, waitDots(p));
    ShowPage(p);
    showHeads(p.forms.MainForm, kArrivals);
    return Turn::Done;
}

Turn turnToDepartures(Program& p) {
    Session& s = p.session;
    s.board.BoardMode = "departing";
    if (hasDepartures(s.schedule, s.board)) {
        if (!loadBoardDepartures(s.setPath(""), s.schedule, s.board)) return Turn::NoFlights;
        if (takeBoardAirlines(p) == Waited::Ended) return Turn::Ended;
        BuildDepartures(s.schedule, choice(p), s.board, waitDots(p));
        ShowPage(p);
    }
    showHeads(p.forms.MainForm, kDepartures);
    return Turn::Done;
}

Waited turn(Program& p, const std::string& leaving) {
    Turn turned = Turn::NoFlights;
    if (leaving == "departing") {
        turned = turnToArrivals(p);
        if (turned == Turn::NoFlights) return ShowMessage(p, Heading::Information, Message::NoArrivals);
    } else {
        if (leaving == "arriving") turned = turnToDepartures(p);
        if (turned == Turn::NoFlights) {
            if (ShowMessage(p, Heading::Warning, Message::NoFlights) == Waited::Ended) return Waited::Ended;
            hideScreen(p, p.forms.SelectForm);
        }
    }
    return waited(p);
}

} // namespace

void turnPages(Program& p, int pages) {
    const int step = pages < 0 ? -1 : 1;
    int left = std::abs(pages);
    while (left > 0 && turnPage(p.session.board, step)) --left;
    if (left == std::abs(pages)) return;
    WriteHeader(p);
    showStatusTexts(p.forms.MainForm);
    ShowPage(p);
}

// By value: the mode that is left is handed in as BoardMode itself, which changes on the way.
Waited SwitchBoard(Program& p, std::string leaving) { // NOLINT(performance-unnecessary-value-param)
    if (p.session.desk.StartupDone != kFalse) showWait(p, "Finding Flights", 0);
    WriteHeader(p);
    if (turn(p, leaving) == Waited::Ended) return Waited::Ended;
    hideWait(p);
    return Waited::Answered;
}

Waited bringUpBoard(Program& p) {
    return SwitchBoard(p, p.session.board.BoardMode == "arriving" ? "departing" : "arriving");
}

Waited RefreshBoard(Program& p) {
    showWait(p, "Finding Flights", 0);
    p.session.board.BoardPage = 0;
    if (filterByFavorite(p) == Waited::Ended) return Waited::Ended;
    WriteHeader(p);
    buildBoard(p);
    ShowPage(p);
    hideWait(p);
    return Waited::Answered;
}

void buildBoard(Program& p) {
    buildBoard(p.session.schedule, choice(p), p.session.board, waitDots(p));
}

void WriteHeader(Program& p) {
    UpdateClockHours(p);
    UpdateClockMinutes(p);
    const StatusBoard& board = p.session.board;
    auto& f = p.forms.MainForm;
    BoardHeader header{.airport = p.session.schedule.tables.airport(board.BoardAirportIndex),
                       .FavoriteAirlineName = {},
                       .dayText = {}};
    header.hours = parseInteger(f.gt_hoursLABEL.text).value_or(0);
    header.minutes = parseInteger(f.gt_minutesLABEL.text).value_or(0);
    header.seconds = p.machine.clock.now().second;
    header.FavoriteAirlineName = board.FavoriteAirlineName;
    header.arriving = board.BoardMode == "arriving";
    const std::string day = f.dayCombo.text();
    header.dayText = day;
    header.BoardPage = board.BoardPage;
    header.BoardRowCount = board.board.BoardRowCount;
    f.header_LABEL.text = headerText(header);
}

void ShowPage(Program& p) {
    SetWaitDots(p, 5);
    const StatusBoard& board = p.session.board;
    auto& f = p.forms.MainForm;
    const auto rows = boardPage(board.board, board.BoardPage, board.BoardMode == "arriving");
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
    showBoardSigns(p, choice(p));
}

void showStatusTexts(forms::MainForm& f) {
    for (int i = 0; i < kRowsOnPage; ++i) f.status_LABEL(i).visible = true;
}

void NextPage(Program& p) {
    turnPages(p, 1);
}

void PreviousPage(Program& p) {
    turnPages(p, -1);
}

} // namespace gatewise
