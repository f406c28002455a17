#include "forms/LogForms.h"

namespace gatewise::forms {

LogEntry::LogEntry()
    : Screen("LogEntry", "Gatewise Terminal - Log Book Entry", 620, 440, "\\Images\\Dispatch_BG.bmp") {
    notes.multiLine = true;
    notes.maxLength = 151; // a blank and the whole comment
}

CareerForm::CareerForm()
    : Screen("CareerForm", "Gatewise Terminal - Career", 620, 440, "\\Images\\Dispatch_BG.bmp") {
    totals.columns.push_back({"Name", 0.38});
    totals.columns.push_back({"Value", 0.62});
    previewList.columns.push_back({"Row", 0.07});
    previewList.columns.push_back({"Date", 0.13});
    previewList.columns.push_back({"From", 0.09});
    previewList.columns.push_back({"To", 0.09});
    previewList.columns.push_back({"Flight", 0.2});
    previewList.columns.push_back({"Aircraft", 0.2});
    previewList.columns.push_back({"Hours", 0.08});
    previewList.columns.push_back({"Import", 0.14});
    copyButton.toolTip = "Copy the table as text";
    pngButton.toolTip = "Save the pictures and the table as a PNG picture";
    pdfButton.toolTip = "Save the table and the pictures as PDF";
    printButton.toolTip = "Print the table and the pictures";
    undoButton.toolTip = "Take the flights of the last import out again";
    takeButton.enabled = cancelButton.enabled = undoButton.enabled = false;
    preview_pic.visible = false;
    closedBy = {&cancelButton, &closeButton};
}

ClockForm::ClockForm()
    : Screen("ClockForm", "Gatewise Terminal - Set Time", 260, 180, "\\Images\\Clock_BG.bmp") {
    closedBy = {&Label2};
}

} // namespace gatewise::forms
