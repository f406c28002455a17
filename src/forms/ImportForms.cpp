#include "forms/ImportForms.h"

namespace gatewise::forms {

ImportForm::ImportForm()
    : Screen("ImportForm", "Gatewise Terminal - Import Schedules", 620, 440, "\\Images\\Dispatch_BG.bmp") {
    sourceList.columns.push_back({"Table", 34.0 / 88.0});
    sourceList.columns.push_back({"File", 26.0 / 88.0});
    sourceList.columns.push_back({"Rows", 8.0 / 88.0});
    sourceList.columns.push_back({"From", 10.0 / 88.0});
    sourceList.columns.push_back({"To", 10.0 / 88.0});
    reportTEXT.readOnly = true;
    reportTEXT.multiLine = true;
    nameTEXT.maxLength = 60;
    cancelButton.enabled = removeButton.enabled = false;
}

} // namespace gatewise::forms
