#pragma once

#include "pages/Program.h"

namespace gatewise {

void bindMainForm(Program& p);

} // namespace gatewise
