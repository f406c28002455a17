#pragma once

#include "platform/Machine.h"
#include "session/CareerDesk.h"
#include "session/LogDesk.h"
#include "work/LogWork.h"

#include <string>
#include <system_error>

namespace gatewise {

/// Reads another log book beside this one; writes nothing. An error when the file cannot be read.
std::error_code lookAtLog(const std::string& path, const LogDesk& log, CareerDesk& career);

/// "12 new flights, 3 known already, 1 that cannot be read"
std::string foundText(const LogImport& found);

/// Appends what was found and loads the book again. The log book before stands beside it as
/// "LogBook.before-import".
std::error_code takeLog(const LogFiles& files, const DateTime& now, LogDesk& log, CareerDesk& career);

/// Whether the last import can be undone: its entries still are the last of the book.
bool canUndoImport(const LogDesk& log, const CareerDesk& career);

/// Takes the entries of the last import out again; those before it stay as they are now.
std::error_code undoImport(const LogFiles& files, const DateTime& now, LogDesk& log, CareerDesk& career);

} // namespace gatewise
