#pragma once

#include "pages/Program.h"

#include <functional>
#include <span>

namespace gatewise {

/// A box of a settings screen and the setting that it shows.
template<class Form> struct SettingBox {
    Check Form::*box;
    int Settings::*held;
};

/// Every click stores the box; `then` is what else the click does.
template<class Form>
void tieBoxes(Form& form, Settings& settings, std::span<const SettingBox<Form>> rows,
              const std::function<void(Check&)>& then = {}) {
    for (const auto& row : rows) {
        Check& box = form.*row.box;
        box.on(Event::Click, [&box, &settings, held = row.held, then] {
            settings.*held = box.value;
            if (then) then(box);
        });
    }
}

/// Shows the settings in their boxes; a box that changes by it is clicked.
template<class Form>
void showBoxes(Form& form, const Settings& settings, std::span<const SettingBox<Form>> rows) {
    for (const auto& row : rows) (form.*row.box).set(settings.*row.held);
}

/// Stores what is typed into a box.
void tieText(TextBox& box, std::string& held);

} // namespace gatewise
