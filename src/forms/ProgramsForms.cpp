#include "forms/ProgramsForms.h"

namespace gatewise::forms {

ProgramsForm::ProgramsForm()
    : Screen("ProgramsForm", "Gatewise Terminal - Other Programs", 620, 440, "\\Images\\Dispatch_BG.bmp") {}

} // namespace gatewise::forms
