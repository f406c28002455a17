#pragma once

#include "export/ExportCommon.h"

#include <optional>

namespace gatewise {

/// Lines that a company route file may have, to be read.
inline constexpr std::size_t kFmcLines = 2001;

/// A company route file (fmsplans.fmc) with the plan in it: a new pair of airports stands first, a plan of a
/// pair that the file holds already is taken out and the new one stands last. Nothing when the file has more
/// than kFmcLines lines or a plan count that points before its beginning.
std::optional<std::string> fmcPlans(const Plan& plan, std::string_view oldFile, const NumberLocale& numbers);

} // namespace gatewise
