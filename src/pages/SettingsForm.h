#pragma once

#include "pages/Program.h"

namespace gatewise {

void bindSettingsForm(Program& p);

} // namespace gatewise
