#include "pages/MsgBox.h"

#include "pages/Placement.h"

namespace gatewise {

Waited ShowMsgBox(Program& p, std::string text) {
    p.forms.MsgBox.text.text = std::move(text);
    return showModal(p, p.forms.MsgBox);
}

void bindMsgBox(Program& p) {
    auto& box = p.forms.MsgBox;
    box.load = [&p] { placeScreen(p, p.forms.MsgBox); };
    box.activate = [&p] { CenterOnMain(p, p.forms.MsgBox); };
    const auto close = [&p] { hideScreen(p, p.forms.MsgBox); };
    box.okButton.on(Event::Click, close);
    box.okButton.on(Event::Enter, close);
}

} // namespace gatewise
