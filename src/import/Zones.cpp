#include "import/Zones.h"

#include "import/Cells.h"
#include "import/Embedded.h"
#include "platform/Machine.h"

#include <algorithm>
#include <climits>

namespace gatewise::importer {

namespace {

std::string_view takeLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

} // namespace

Zones::Zones() {
    std::string_view rest = kZonesTable;
    Cells cells;
    while (!rest.empty()) {
        cells.blanks(takeLine(rest));
        for (std::size_t i = 0; i < cells.size(); ++i)
            clockOf_.try_emplace(std::string(cells[i]), clocks_.size());
        cells.blanks(takeLine(rest));
        std::vector<Change> clock;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const std::size_t colon = cells[i].find(':');
            const bool first = colon == std::string_view::npos;
            clock.push_back({first ? LLONG_MIN : wholeIn(cells[i].substr(0, colon)).value_or(0),
                             static_cast<int>(wholeIn(cells[i].substr(first ? 0 : colon + 1)).value_or(0))});
        }
        clocks_.push_back(std::move(clock));
    }
}

bool Zones::known(std::string_view zone) const {
    return clockOf_.contains(std::string(zone));
}

int Zones::minutesAhead(std::string_view zone, int year, int month) const {
    const auto found = clockOf_.find(std::string(zone));
    if (found == clockOf_.end()) return 0;
    const long long days = daySerial({year, month, 15, 0, 0, 0, 0}) - daySerial({1987, 1, 1, 0, 0, 0, 0});
    const long long minute = days * 1440 + 720;
    int ahead = 0;
    for (const Change& change : clocks_[found->second])
        if (change.minute <= minute) ahead = change.ahead;
    return ahead;
}

} // namespace gatewise::importer
