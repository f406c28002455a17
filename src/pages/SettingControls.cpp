#include "pages/SettingControls.h"

namespace gatewise {

void tieText(TextBox& box, std::string& held) {
    box.on(Event::Change, [&box, &held] { held = box.text; });
}

} // namespace gatewise
