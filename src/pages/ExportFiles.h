#pragma once

#include "pages/Program.h"

#include <string>

// The plan as files of other programs: what the writers made, put into its place in one step.

namespace gatewise {

/// The simulator's own plan. Says nothing, whatever becomes of the file.
void exportFlightPlanFile(Program& p, const std::string& path);

/// The plan in the company routes of a flight management computer, `folder`\fmsplans.fmc. A file that cannot
/// be read or written, or is too long, stays as it is; nothing is said.
void exportFmcPlan(Program& p, const std::string& folder);

/// These say their own message when the file stands, and message 14 when it could not be written.
void ExportRC2(Program& p, const std::string& path);
void ExportACSGPS(Program& p, const std::string& path);
void ExportSB(Program& p, const std::string& path);

/// The name is always that of the flight, in FSNavigator's own folder.
void ExportFSNav(Program& p);

} // namespace gatewise
