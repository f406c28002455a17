#include "pages/BoardSigns.h"

#include "board/Paging.h"

namespace gatewise {

namespace {

bool empty(const forms::MainForm& f) {
    return trimmed(f.fltnum_LABEL(0).text).empty();
}

std::string emptyText(const Session& s, const BoardChoice& choice) {
    const bool arriving = s.board.BoardMode == "arriving";
    const auto next = nextFlightTime(s.schedule, choice, s.board);
    if (!next)
        return arriving ? "No arrival of this airline here.  Choose another by Change Airline."
                        : "No departure of this airline here.  Choose another by Change Airline.";
    const std::string none = arriving ? "No arrival at this hour." : "No departure at this hour.";
    return none + (arriving ? "  Next arrival " : "  Next departure ") + *next + ".";
}

} // namespace

void showBoardSigns(Program& p, const BoardChoice& choice) {
    auto& f = p.forms.MainForm;
    const StatusBoard& board = p.session.board;
    f.boardPage_LABEL.text =
        std::to_string(board.BoardPage + 1) + "/" + std::to_string(boardPages(board.board.BoardRowCount));
    const bool none = board.BoardPage == 0 && empty(f);
    f.boardEmpty_LABEL.visible = none;
    f.boardEmpty_LABEL.text = none ? emptyText(p.session, choice) : "";
    f.anyDayButton.visible = none && choice.day != 0;
}

void bindBoardSigns(Program& p) {
    auto& f = p.forms.MainForm;
    f.anyDayButton.on(Event::Click, [&f] { f.dayCombo.select(0); });
}

} // namespace gatewise
