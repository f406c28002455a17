#pragma once

#include "pages/Program.h"

#include <string>

namespace gatewise {

/// "fmc": the ticked products, then message 1.
void exportToFmc(Program& p);

/// "fsnav", "sb", "rc2", "fs2k", "acs": the file picker for that target.
void openExportPicker(Program& p, const std::string& kind);

/// "export" on the picker: writes the file.
void writeExport(Program& p);

/// Gives the typed file name the extension of its target.
void correctExportName(Program& p);

/// Hands the flight to ProFlight 2000.
void SendToProFlight(Program& p);

void bindExportForm(Program& p);

} // namespace gatewise
