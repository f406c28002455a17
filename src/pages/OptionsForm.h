#pragma once

#include "pages/Program.h"

#include <string_view>

namespace gatewise {

/// "vol_up", "vol_dn": the ambience's target in steps of 90, -9000 to 0.
void stepAmbience(Program& p, std::string_view type);

void bindOptionsForm(Program& p);

} // namespace gatewise
