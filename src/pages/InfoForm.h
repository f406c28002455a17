#pragma once

#include "pages/Program.h"

#include <string>

namespace gatewise {

/// Draws a flight on InfoForm (state 0: of DepartureFlights, 1: of BoardFlights) and shows it modally.
void showFlightInfo(Program& p, int state, const std::string& pointer);

void bindInfoForm(Program& p);

} // namespace gatewise
