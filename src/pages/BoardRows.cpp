#include "pages/BoardRows.h"

#include "board/Paging.h"
#include "pages/InfoForm.h"
#include "pages/MainPages.h"
#include "pages/MainPass.h"
#include "work/BoardWork.h"

namespace gatewise {

namespace {

/// The flight of a row of the page in view; nothing for a blank row.
std::optional<int> flightOf(const Program& p, const Label& label) {
    if (trimmed(label.text).empty()) return std::nullopt;
    return flightOfRow(p.session.schedule, p.session.board, label.index);
}

Waited takeRow(Program& p, const Label& label) {
    const auto flight = flightOf(p, label);
    if (!flight) return waited(p);
    if (SelectFlight(p, *flight, FlightSource::BoardFlights) == Waited::Ended) return Waited::Ended;
    auto& f = p.forms.MainForm;
    f.FlashTimer.enable(false);
    f.update_TIMER.enable(false);
    showMainPage(p);
    return Waited::Answered;
}

Waited tellOfRow(Program& p, const Label& label) {
    const auto flight = flightOf(p, label);
    return flight ? showFlightInfo(p, FlightSource::BoardFlights, *flight) : waited(p);
}

} // namespace

void bindBoardRows(Program& p) {
    auto& f = p.forms.MainForm;
    for (int i = 0; i < kRowsOnPage; ++i) {
        for (Label* label : {&f.fltnum_LABEL(i), &f.city_LABEL(i)}) {
            label->on(Event::DoubleClick, [&p, label] { return takeRow(p, *label); });
            label->on(Event::RightPress, [&p, label] { return tellOfRow(p, *label); });
        }
    }
}

} // namespace gatewise
