#pragma once

#include "import/Cells.h"
#include "import/Kind.h"

#include <span>
#include <string>
#include <string_view>

// The navigation forms: a line "I" or "A", a line with version, cycle and copyright, the data, a line "99".
// The first number of line 2 decides on the layout; the shape of the data is only a check.

namespace gatewise::importer {

/// The number from which on a line names the region of its fix.
inline constexpr int kFirstRegionVersion = 1000;

struct NavigationHead {
    int version = 0;
    std::string cycle;     // as written: "2009.12", "2107"
    std::string build;     // "20091080"
    std::string copyright; // the words from "Copyright" on, UTF-8
};

bool isNavigationForm(std::span<const std::string> lines);
Recognised recogniseNavigation(std::span<const std::string> lines);

/// What line 2 says, from UTF-8 or the older Latin-1.
NavigationHead navigationHead(std::string_view line);

/// A number by which two cycles are compared, greater for the newer: year and cycle of it; 0 for none.
long long cycleOrder(const NavigationHead& head);
/// The year of a cycle, 0 for none, and its month (1 to 12): "2009.12" counts months, "2107" the thirteen
/// four-week cycles of a year.
struct CycleMonth {
    int year = 0;
    int month = 0;
};
CycleMonth cycleMonth(const NavigationHead& head);

} // namespace gatewise::importer
