#include "window/ClosingKey.h"

#include <algorithm>

namespace gatewise::window {

namespace {

bool begins(const Control& control, std::string_view word) {
    return control.kind >= Kind::FlatButton && control.kind <= Kind::midButton &&
           static_cast<const SkinnedButton&>(control).button_type.starts_with(word);
}

} // namespace

Control* closingKey(const Screen& screen, const std::vector<View*>& views) {
    if (screen.name == "MainForm") return nullptr;
    std::vector<View*> keys;
    View* hit = nullptr;
    for (View* view : views) {
        if (view->control == nullptr || !view->widget()->isVisible()) continue;
        const Kind kind = view->control->kind;
        if (kind >= Kind::FlatButton && kind <= Kind::PushButton && view->usable()) keys.push_back(view);
        if (view->place.hit && view->takesFocus()) hit = view;
    }
    View* close = nullptr;
    for (const char* word : {"cancel", "close"}) {
        const auto at =
            std::find_if(keys.begin(), keys.end(), [&](View* v) { return begins(*v->control, word); });
        if (close == nullptr && at != keys.end()) close = *at;
    }
    if (close == nullptr && keys.size() == 1) close = keys.front();
    if (close == nullptr) close = hit;
    return close == nullptr ? nullptr : close->control;
}

} // namespace gatewise::window
