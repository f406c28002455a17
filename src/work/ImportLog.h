#pragma once

#include "platform/Machine.h"
#include "schedule/Records.h"
#include "session/CareerDesk.h"
#include "session/LogDesk.h"
#include "work/LogWork.h"

#include <string>
#include <system_error>

namespace gatewise {

/// Reads another log book and lays it beside this one; writes nothing. An error when the file cannot be read.
std::error_code lookAtLog(const std::string& path, const Tables& tables, const LogDesk& log,
                          CareerDesk& career);

/// "12 new flights, 3 known already, 1 that cannot be read."
std::string foundText(const LogImport& found);

/// Appends what is new by now, in one replacement of the file, and loads the book again; `found` says then
/// what came in. The log book before it is kept beside it. On an error the log book is as it was, and so is
/// what undoes the import before.
std::error_code takeLog(const LogFiles& files, const Tables& tables, const DateTime& now, LogDesk& log,
                        CareerDesk& career);

/// What an undo of the last import does, in this run or in a later one.
struct ImportUndo {
    int out = 0;  // entries that it takes out again
    int stay = 0; // those that were changed or removed since
};
ImportUndo importUndo(const LogFiles& files, const LogDesk& log);

/// "11 flights were taken out again; 1 had been changed or removed since."
std::string undoneText(const ImportUndo& undo);

/// Takes the entries of the last import out again and loads the book anew. Those before it and those that
/// were logged or changed since stay. On an error the log book is as it was.
std::error_code undoImport(const LogFiles& files, const DateTime& now, LogDesk& log);

} // namespace gatewise
