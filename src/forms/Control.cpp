#include "forms/Control.h"

#include "platform/Text.h"

#include <algorithm>

namespace gatewise {

Control::Control(Screen& owner, std::string controlName, Kind controlKind, int place)
    : screen(&owner), name(std::move(controlName)), kind(controlKind), index(place) {
    owner.controls.push_back(this);
}

void Control::on(Event event, std::function<void(const EventArgs&)> handler) {
    for (auto& [known, old] : handlers_) {
        if (known == event) {
            old = std::move(handler);
            return;
        }
    }
    handlers_.emplace_back(event, std::move(handler));
}

void Control::on(Event event, std::function<void()> handler) {
    on(event, [run = std::move(handler)](const EventArgs&) { run(); });
}

void Control::fire(Event event, const EventArgs& args) {
    for (const auto& [known, handler] : handlers_) {
        if (known == event) {
            handler(args);
            return;
        }
    }
}

bool Control::handles(Event event) const {
    return std::any_of(handlers_.begin(), handlers_.end(),
                       [&](const auto& entry) { return entry.first == event; });
}

std::string Control::fullName() const {
    std::string out = screen->name + "." + name;
    if (index >= 0) out += "(" + std::to_string(index) + ")";
    return out;
}

void Check::set(int newValue) {
    if (newValue == value) return;
    value = newValue;
    fire(Event::Click);
}

void Option::set(bool on) {
    if (on == value) return;
    value = on;
    if (!on) {
        fire(Event::Change);
        return;
    }
    for (Control* other : screen->controls) {
        if (other != this && other->kind == Kind::Option) static_cast<Option*>(other)->value = false;
    }
    fire(Event::Click);
}

int ItemControl::add(std::string text, int data) {
    auto at = items.end();
    if (sorted) at = std::upper_bound(items.begin(), items.end(), text, lessFolded);
    const auto place = at - items.begin();
    items.insert(at, std::move(text));
    itemData.insert(itemData.begin() + place, data);
    if (picked >= place) ++picked;
    return static_cast<int>(place);
}

void ItemControl::clear() {
    items.clear();
    itemData.clear();
    picked = -1;
}

void ItemControl::select(int place) {
    if (place < -1 || place >= count()) return;
    picked = place;
    if (place >= 0) fire(Event::Click);
}

int ItemControl::find(std::string_view text) const {
    const auto at = std::find(items.begin(), items.end(), text);
    return at == items.end() ? -1 : static_cast<int>(at - items.begin());
}

std::string ItemControl::text() const {
    return picked >= 0 && picked < count() ? items[static_cast<std::size_t>(picked)] : std::string();
}

int ItemControl::data() const {
    return picked >= 0 && picked < count() ? itemData[static_cast<std::size_t>(picked)] : 0;
}

void ListView::clear() {
    rows.clear();
    picked = -1;
}

void ListView::select(int place) {
    if (place < 0 || place >= static_cast<int>(rows.size())) return;
    picked = place;
    fire(Event::Click);
}

void ListView::resetColumn(int column) {
    if (column < 0 || column >= static_cast<int>(columns.size())) return;
    auto& c = columns[static_cast<std::size_t>(column)];
    c.width = width * c.share;
}

const ListView::Row* ListView::selected() const {
    return picked >= 0 && picked < static_cast<int>(rows.size()) ? &rows[static_cast<std::size_t>(picked)]
                                                                 : nullptr;
}

void Timer::enable(bool on) {
    if (on == enabled) return;
    enabled = on;
    if (host_ == nullptr) return;
    if (on)
        host_->arm(*this);
    else
        host_->disarm(*this);
}

void Timer::setInterval(int milliseconds) {
    interval_ = milliseconds;
    if (enabled && host_ != nullptr) host_->arm(*this);
}

void Timer::attach(TimerHost* host) {
    host_ = host;
    if (host_ != nullptr && enabled) host_->arm(*this);
}

SkinnedButton::SkinnedButton(Screen& screen, std::string name, Kind kind, std::string type,
                             std::string pictureName, int state, int index)
    : Control(screen, std::move(name), kind, index), State(state), button_type(std::move(type)),
      picture(std::move(pictureName)) {
    if (kind == Kind::FormButton) Timer1 = std::make_unique<Timer>(screen, this->name + ".Timer1", 500);
}

SkinnedButton* skinnedButton(Control* control) {
    switch (control->kind) {
    case Kind::FlatButton:
    case Kind::FormButton:
    case Kind::boardButton:
    case Kind::switchButton:
    case Kind::midButton:
        return static_cast<SkinnedButton*>(control);
    default:
        return nullptr;
    }
}

Drawing Chart::whole() const {
    Drawing out = drawing;
    out.lines.insert(out.lines.end(), further.lines.begin(), further.lines.end());
    out.texts.insert(out.texts.end(), further.texts.begin(), further.texts.end());
    out.marks.insert(out.marks.end(), further.marks.begin(), further.marks.end());
    for (DrawingMark& mark : out.marks) {
        if (mark.id >= 0 && mark.id == chosen) mark.tone = Tone::Chosen;
    }
    return out;
}

bool Chart::holds(int id) const {
    const auto meant = [id](const auto& one) { return one.id == id; };
    const auto among = [&](const Drawing& d) {
        return std::any_of(d.marks.begin(), d.marks.end(), meant) ||
               std::any_of(d.lines.begin(), d.lines.end(), meant);
    };
    return id >= 0 && (among(drawing) || among(further));
}

Control* Screen::closingControl() const {
    const auto able = [](const Control* c) { return c != nullptr && c->usable(); };
    if (closedBy.empty()) {
        Control* close = find("closeButton");
        return able(close) ? close : nullptr;
    }
    const auto at = std::find_if(closedBy.begin(), closedBy.end(), able);
    return at == closedBy.end() ? nullptr : *at;
}

Control* Screen::find(std::string_view controlName, int index) const {
    for (Control* control : controls) {
        if (control->index == index && control->name == controlName) return control;
    }
    return nullptr;
}

} // namespace gatewise
