#pragma once

#include "platform/Machine.h"
#include "platform/Numbers.h"
#include "session/Dispatch.h"
#include "session/LogDesk.h"
#include "session/Message.h"
#include "session/Schedule.h"

#include <optional>
#include <string>
#include <string_view>

namespace gatewise {

/// The log book's file and the file through which the simulator hands times back.
struct LogFiles {
    std::string book;
    std::string exchange;
};
LogFiles logFiles(const std::string& AppDir, const std::string& FsPath);

/// Reads the log book and merges the times that came back from the simulator. On an error what is known of
/// the book stays, and nothing is written over the file (see LogStore).
std::error_code LoadLogBook(const LogFiles& files, const DateTime& now, LogDesk& log);

/// An entry for the flight on the pass. The result is what the pilot is told: that it stands, or why not.
/// When the book cannot be read the entry waits in memory and beside the file until it can.
Notice AddLogEntry(const LogFiles& files, const Schedule& schedule, const Dispatch& dispatch,
                   const DateTime& now, LogDesk& log);

/// Writes the entry LogSelected back in place; what kept it from being written.
std::optional<Notice> SaveLogEntry(const LogFiles& files, const DateTime& now, LogDesk& log);

/// Removes the entry LogSelected from the file; the book is to be loaded again. What kept it from that.
std::optional<Notice> DeleteLogEntry(const LogFiles& files, const DateTime& now, LogDesk& log);

/// Puts the entry that was deleted last back to its place, in the file too; without one nothing happens. What
/// kept it from that: the entry then waits for another try.
std::optional<Notice> undoDeletion(const LogFiles& files, const DateTime& now, LogDesk& log);

/// The entry behind a row of the page (0 to 6) is selected; false when there is none.
bool selectLogRow(LogDesk& log, int row);

/// Whether a page follows the one in view.
bool moreLogPages(const LogDesk& log);

/// The field LogField of the selected entry, a time of day (hours, minutes) or hours (hours, tenths), as the
/// clock screen shows it.
struct ClockField {
    const char* word;
    const char* title;
    std::int16_t LogRecord::*time; // either this
    float LogRecord::*hours;       // or this
};
/// nullptr for a word that names no field.
const ClockField* clockField(const LogDesk& log);

struct ClockFieldTexts {
    std::string hours, minutes;
};
ClockFieldTexts clockFieldTexts(const ClockField& field, const LogRecord& entry, const NumberLocale& numbers);

/// "timeHr_up", "timeHr_dn", "timeMin_up", "timeMin_dn" on a field.
void stepLogField(const ClockField& field, std::string_view type, LogRecord& entry);

} // namespace gatewise
