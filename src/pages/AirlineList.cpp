#include "pages/AirlineList.h"

#include "pages/MsgForm.h"
#include "schedule/Lookups.h"

namespace gatewise {

namespace {

constexpr int kInvalidPropertyValue = 380;

int placeOfFavorite(const Program& p) {
    return p.forms.SelectForm.List1.find(trimmed(p.session.board.FavoriteAirlineName));
}

} // namespace

void takeLines(ListBox& list, const std::vector<PickItem>& items) {
    list.clear();
    for (const PickItem& item : items) list.add(item.text, item.data);
}

void listBoardAirlines(Program& p) {
    const Schedule& schedule = p.session.schedule;
    takeLines(p.forms.SelectForm.List1, boardAirlineItems(schedule.tables, schedule.BoardFlights));
}

void pickFavorite(Program& p) {
    const int place = placeOfFavorite(p);
    p.forms.SelectForm.List1.select(place >= 0 ? place : 0);
}

// By value: the name is FavoriteAirlineName itself, which may change on the way.
std::optional<std::string>
find_airline_code(Program& p,
                  std::string name) { // NOLINT(performance-unnecessary-value-param)
    const Tables& tables = p.session.schedule.tables;
    std::string code = find_airline_code(tables, name);
    if (!code.empty()) return code;
    // The favourite does not fly in this data set: one of the board's airlines takes its place.
    listBoardAirlines(p);
    auto& list = p.forms.SelectForm.List1;
    const int place = placeOfFavorite(p);
    if (place >= 0) {
        list.select(place);
    } else if (list.count() > 0) {
        list.select(0);
        p.session.board.FavoriteAirlineName = list.text();
    } else {
        const Notice notice = failure(kInvalidPropertyValue, "Invalid property value", "find_airline_code");
        if (ShowMessage(p, notice) == Waited::Ended) return std::nullopt;
        return std::string();
    }
    return firstAirlineCode(tables, p.session.board.FavoriteAirlineName);
}

Waited filterByFavorite(Program& p) {
    const auto code = find_airline_code(p, p.session.board.FavoriteAirlineName);
    if (!code) return Waited::Ended;
    p.session.board.BoardAirlineCode = *code;
    return Waited::Answered;
}

} // namespace gatewise
