#include "forms/LogForms.h"

namespace gatewise::forms {

LogEntry::LogEntry()
    : Screen("LogEntry", "Gatewise Terminal - Log Book Entry", 620, 440, "\\Images\\Dispatch_BG.bmp") {
    notes.multiLine = true;
    notes.maxLength = 151; // a blank and the whole comment
}

CareerForm::CareerForm()
    : Screen("CareerForm", "Gatewise Terminal - Career", 620, 440, "\\Images\\Dispatch_BG.bmp") {
    totals.columns.push_back({"Name", 0.4});
    totals.columns.push_back({"Value", 0.6});
    copyButton.toolTip = "Copy the table as text";
    printButton.toolTip = "Print the table, the map and the bars";
    takeButton.enabled = undoButton.enabled = false;
}

ClockForm::ClockForm()
    : Screen("ClockForm", "Gatewise Terminal - Set Time", 260, 180, "\\Images\\Clock_BG.bmp") {
    closedBy = {&Label2};
}

} // namespace gatewise::forms
