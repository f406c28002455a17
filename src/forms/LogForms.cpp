#include "forms/LogForms.h"

namespace gatewise::forms {

LogEntry::LogEntry()
    : Screen("LogEntry", "Gatewise Terminal - Log Book Entry", 620, 440, "\\Images\\Dispatch_BG.bmp") {
    notes.multiLine = true;
    notes.maxLength = 151; // a blank and the whole comment
}

ClockForm::ClockForm()
    : Screen("ClockForm", "Gatewise Terminal - Set Time", 260, 180, "\\Images\\Clock_BG.bmp") {
    closedBy = {&Label2};
}

} // namespace gatewise::forms
