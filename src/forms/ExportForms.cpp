#include "forms/ExportForms.h"

namespace gatewise::forms {

ExportForm::ExportForm()
    : Screen("ExportForm", "Gatewise Terminal - Export", 440, 400, "\\Images\\Select_BG.bmp") {}

DirExportForm::DirExportForm()
    : Screen("DirExportForm", "Gatewise Terminal - Export File", 460, 400, "\\Images\\Dir_BG.bmp") {}

} // namespace gatewise::forms
