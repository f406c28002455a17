#pragma once

#include "plan/PlanTable.h"
#include "platform/Numbers.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

// What the writers of the outside plan formats share. A writer is a pure function from the live plan and its
// flight to the bytes of a file; putting them into place is the screens' work.

namespace gatewise {

/// What a writer knows of the flight besides its plan.
struct ExportFlight {
    std::string stem; // names the flight in every file, see flightStem
    bool HaveAlternate = false;
};

/// Calls `act(i, point)` for each point between the airports, in plan order.
template<class Act> void forEnRoute(const Plan& plan, Act&& act) {
    for (int i = 1; i < plan.planLast; ++i) act(i, plan.at(i));
}

/// A folder list's root already ends in a backslash: each doubled one becomes one.
std::string singleBackslashes(std::string_view path);

/// A number under a format with "." as decimal point whatever the locale writes.
std::string filedNumber(const NumberLocale& numbers, std::string_view format, double value);
std::string filedSingle(const NumberLocale& numbers, std::string_view format, float value);

/// A text file as it grows, each line ended by CR LF.
class TextLines {
public:
    void add(std::initializer_list<std::string_view> parts);
    void add(std::string_view line) { add({line}); }
    [[nodiscard]] const std::string& text() const { return text_; }

private:
    std::string text_;
};

} // namespace gatewise
