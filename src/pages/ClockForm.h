#pragma once

#include "pages/Program.h"

#include <string_view>

namespace gatewise {

/// "timeHr_up", "timeHr_dn", "timeMin_up", "timeMin_dn" on the field LogField of the entry.
void stepLogField(Program& p, std::string_view type);

void bindClockForm(Program& p);

} // namespace gatewise
