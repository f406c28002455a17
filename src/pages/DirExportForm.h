#pragma once

#include "pages/Screens.h"

#include <string>

namespace gatewise {

/// The file picker for a kind of export.
Waited openExportPicker(Program& p, const std::string& kind);

/// "export" on the picker: writes the file.
Waited writeExport(Program& p);

/// Gives the typed file name the extension of its kind.
void correctExportName(Program& p);

void bindDirExportForm(Program& p);

} // namespace gatewise
