#include "window/ScreenWindow.h"

#include "screens/UserEvents.h"
#include "window/Buttons.h"
#include "window/ChartView.h"
#include "window/Choices.h"
#include "window/Drawing.h"
#include "window/Fields.h"
#include "window/PaintedViews.h"
#include "window/QtText.h"
#include "window/Rows.h"
#include "window/Skin.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace gatewise::window {

namespace {

template<class T>
View* makeView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent) {
    return new T(actor, control, place, parent);
}

using Maker = View* (*)(Actor&, Control*, const ControlLayout&, QWidget*);

/// The one class of each kind of control.
struct KindRow {
    Kind kind;
    Maker make;
};

constexpr KindRow kKinds[] = {
    {Kind::Label, makeView<LabelView>},           {Kind::Combo, makeView<ComboView>},
    {Kind::ListBox, makeView<RowsView>},          {Kind::Check, makeView<CheckView>},
    {Kind::Option, makeView<OptionView>},         {Kind::ListView, makeView<RowsView>},
    {Kind::FlatButton, makeView<ButtonView>},     {Kind::FormButton, makeView<ButtonView>},
    {Kind::boardButton, makeView<ButtonView>},    {Kind::switchButton, makeView<ButtonView>},
    {Kind::midButton, makeView<ButtonView>},      {Kind::PushButton, makeView<PushButtonView>},
    {Kind::Picture, makeView<PictureView>},       {Kind::HitArea, makeView<HitAreaView>},
    {Kind::Frame, makeView<FrameView>},           {Kind::Slider, makeView<SliderView>},
    {Kind::UpDown, makeView<UpDownView>},         {Kind::DriveList, makeView<ComboView>},
    {Kind::FolderList, makeView<RowsView>},       {Kind::FileList, makeView<RowsView>},
    {Kind::FlightInfo, makeView<FlightInfoView>}, {Kind::Chart, makeView<ChartView>},
};

bool needsCaption(Kind kind) {
    switch (kind) {
    case Kind::TextBox:
    case Kind::Combo:
    case Kind::ListBox:
    case Kind::ListView:
    case Kind::DriveList:
    case Kind::FolderList:
    case Kind::FileList:
    case Kind::Slider:
    case Kind::UpDown:
    case Kind::Label:
        return true;
    default:
        return false;
    }
}

/// How far a label stands from the field that it names: above or to the left. Negative: it names another one.
int captionDistance(const QRect& label, const QRect& field) {
    const int above = field.top() - label.bottom() - 1;
    const bool sameColumn = std::abs(label.left() - field.left()) <= 8;
    if (sameColumn && above >= -2 && above <= 8) return above + 2;
    const int left = field.left() - label.right() - 1;
    const bool sameLine = std::abs(label.center().y() - field.center().y()) <= 4;
    if (sameLine && left >= -2 && left <= 60) return left + 12;
    return -1;
}

bool begins(const Control& control, std::string_view word) {
    return control.kind >= Kind::FlatButton && control.kind <= Kind::midButton &&
           static_cast<const SkinnedButton&>(control).button_type.starts_with(word);
}

} // namespace

ScreenWindow::ScreenWindow(Actor& actor, Screen& screen, const ScreenLayout& layout)
    : actor_(actor), screen_(screen), ring_(new FocusRing(this)) {
    setWindowTitle(toQt(screen.caption));
    setAccessibleName(toQt(screen.caption));
    setFixedSize(layout.size.isEmpty() ? QSize(screen.designWidth, screen.designHeight) : layout.size);
    setMouseTracking(true);
    buildGrounds(layout);
    buildViews(layout);
    nameFields(layout);
    nameRows();
    tabOrder_ = views_;
    std::stable_sort(tabOrder_.begin(), tabOrder_.end(), [](const View* a, const View* b) {
        constexpr int kLast = 1 << 20;
        const auto place = [](const View* v) { return v->place.tab > 0 ? v->place.tab : kLast; };
        return place(a) < place(b);
    });
    ring_->raise();
}

ScreenWindow::~ScreenWindow() = default;

/// Grounds that the table does not list among the controls lie lowest.
void ScreenWindow::buildGrounds(const ScreenLayout& layout) {
    for (const auto& [name, container] : layout.containers) {
        Control* control = screen_.find(name);
        if (control == nullptr || control->kind != Kind::Container) continue;
        const bool listed =
            std::any_of(layout.controls.begin(), layout.controls.end(),
                        [&](const ControlLayout& c) { return c.name == name && c.container != name; });
        if (listed) continue;
        ControlLayout& place = grounds_.emplace_back();
        place.name = name;
        place.kind = "container";
        place.box = container.box;
        auto* ground = new GroundView(actor_, control, place, container.background, this);
        ground->putAt(container.box.topLeft());
        rooms_[name] = {ground, {}};
        views_.push_back(ground);
    }
}

void ScreenWindow::buildViews(const ScreenLayout& layout) {
    for (const ControlLayout& place : layout.controls) {
        if (place.container == place.name) continue;
        const auto room = rooms_.find(place.container);
        QWidget* parent = room == rooms_.end() ? this : room->second.widget;
        const QPoint corner = place.box.topLeft() + (room == rooms_.end() ? QPoint() : room->second.offset);
        View* view = nullptr;
        const auto container = layout.containers.find(place.name);
        if (place.kind == "container" && container != layout.containers.end()) {
            Control* control = screen_.find(place.name);
            if (control != nullptr) {
                view = new GroundView(actor_, control, place, container->second.background, parent);
            }
        } else {
            view = make(screen_.find(place.name, place.index), place, parent);
        }
        if (view == nullptr) continue;
        view->putAt(corner);
        if (container != layout.containers.end()) {
            rooms_[place.name] = {view->widget(), view->frame().topLeft()};
        }
        views_.push_back(view);
    }
}

View* ScreenWindow::make(Control* control, const ControlLayout& place, QWidget* parent) {
    if (place.kind == "shape") return new ShapeView(actor_, place, parent);
    if (control == nullptr) return nullptr;
    if (control->kind == Kind::TextBox) {
        if (place.multiline) return new NotesView(actor_, control, place, parent);
        return new LineView(actor_, control, place, parent);
    }
    for (const auto& row : kKinds) {
        if (row.kind == control->kind) return row.make(actor_, control, place, parent);
    }
    return nullptr;
}

void ScreenWindow::nameFields(const ScreenLayout& layout) {
    for (View* view : views_) {
        if (view->control == nullptr || !needsCaption(view->control->kind)) continue;
        if (view->control->kind == Kind::Label && !view->place.hit) continue;
        int nearest = -1;
        for (const ControlLayout& label : layout.controls) {
            if (label.kind != "label" || label.container != view->place.container || label.text.empty())
                continue;
            if (label.font != "caption" && label.font != "section" && label.font != "data") continue;
            const int distance = captionDistance(label.box, view->place.box);
            if (distance < 0 || (nearest >= 0 && distance >= nearest)) continue;
            nearest = distance;
            view->captionNearby = QString::fromStdString(label.text).trimmed();
        }
    }
    for (View* view : views_) {
        if (view->control != nullptr) view->widget()->setAccessibleName(view->spokenName());
    }
}

/// The texts of a table's line, as one sentence.
QString ScreenWindow::wordsOfRow(int family, int row) const {
    QStringList words;
    for (const View* view : views_) {
        if (view->place.family != family || view->place.row != row) continue;
        if (view->control->kind != Kind::Label || view->place.font.empty()) continue;
        const QString text = toQt(static_cast<const Label&>(*view->control).text).simplified();
        if (!text.isEmpty()) words << text;
    }
    return words.isEmpty() ? QString("Empty line") : words.join(", ");
}

void ScreenWindow::nameRows() {
    for (View* view : views_) {
        if (view->place.family == 0) continue;
        const bool words = view->control->kind == Kind::Label || view->control->kind == Kind::HitArea;
        if (!words) continue;
        view->wordsOfRow = [this, view] { return wordsOfRow(view->place.family, view->place.row); };
    }
}

View* ScreenWindow::view(const Control& control) const {
    const auto at =
        std::find_if(views_.begin(), views_.end(), [&](View* v) { return v->control == &control; });
    return at == views_.end() ? nullptr : *at;
}

void ScreenWindow::sync() {
    if (isEnabled() != screen_.enabled) setEnabled(screen_.enabled);
    for (View* view : views_) view->sync();
    View* now = isActiveWindow() ? viewOf(focusWidget()) : nullptr;
    const bool shown = now != nullptr && now->control != nullptr && now->widget()->isVisible();
    ring_->surround(shown ? ringBox(*now) : QRect());
}

void ScreenWindow::place() {
    QPoint at(static_cast<int>(std::lround(screen_.left)), static_cast<int>(std::lround(screen_.top)));
    const QScreen* desk = QGuiApplication::screenAt(at + rect().center());
    if (desk == nullptr) desk = QGuiApplication::screenAt(at);
    if (desk == nullptr) desk = QGuiApplication::primaryScreen();
    if (desk != nullptr && !(QGuiApplication::mouseButtons() & Qt::LeftButton)) {
        const QRect room = desk->availableGeometry();
        const QPoint seen(std::max(room.left(), std::min(at.x(), room.right() + 1 - width())),
                          std::max(room.top(), std::min(at.y(), room.bottom() + 1 - height())));
        if (seen != at) {
            screen_.left = seen.x();
            screen_.top = seen.y();
        }
        at = seen;
    }
    if (pos() != at) move(at);
}

// ------------------------------------------------------------------------------------------------ keyboard

/// The view that takes the focus for the line of a table on which the keyboard stands.
View* ScreenWindow::rowLeader(int family) const {
    const auto now = rowNow_.find(family);
    View* first = nullptr;
    for (View* view : views_) {
        if (view->place.family != family || !view->takesFocus() || !view->widget()->isVisible()) continue;
        if (now != rowNow_.end() && view->place.row == now->second) return view;
        if (first == nullptr) first = view;
    }
    return first;
}

std::vector<View*> ScreenWindow::stops() const {
    bool optionOn = false;
    for (const View* view : views_) {
        if (view->control != nullptr && view->control->kind == Kind::Option) {
            optionOn = optionOn || static_cast<const Option&>(*view->control).value;
        }
    }
    std::vector<View*> out;
    for (View* view : tabOrder_) {
        if (!view->takesFocus() || !view->widget()->isVisible()) continue;
        if (view->place.family > 0 && view != rowLeader(view->place.family)) continue;
        const bool option = view->control->kind == Kind::Option;
        if (option && optionOn && !static_cast<const Option&>(*view->control).value) continue;
        out.push_back(view);
    }
    return out;
}

void ScreenWindow::setFocusOn(View& view) {
    if (view.place.family > 0) rowNow_[view.place.family] = view.place.row;
    view.widget()->setFocus(Qt::TabFocusReason);
}

bool ScreenWindow::focusNextPrevChild(bool next) {
    const std::vector<View*> all = stops();
    if (all.empty()) return false;
    View* now = viewOf(focusWidget());
    const auto at = std::find(all.begin(), all.end(), now);
    std::size_t to = next ? 0 : all.size() - 1;
    if (at != all.end()) {
        const auto from = static_cast<std::size_t>(at - all.begin());
        to = next ? (from + 1) % all.size() : (from + all.size() - 1) % all.size();
    }
    setFocusOn(*all[to]);
    return true;
}

void ScreenWindow::focusFirst() {
    const std::vector<View*> all = stops();
    if (all.empty()) return;
    const auto at =
        std::find_if(all.begin(), all.end(), [](const View* v) { return !begins(*v->control, "close"); });
    setFocusOn(at == all.end() ? *all.front() : **at);
}

void ScreenWindow::focusMoved(QWidget* now) {
    View* view = viewOf(now);
    if (view == nullptr || view->control == nullptr) return;
    if (view != focused_) {
        focused_ = view;
        Control& control = *view->control;
        actor_.act([&] { user::focus(control); });
    } else {
        actor_.act([] {}); // the window came back: the ring with it
    }
}

QRect ScreenWindow::ringBox(View& view) const {
    const auto boxOf = [this](View& v) {
        const QRect frame = v.frame();
        return QRect(v.widget()->mapTo(this, frame.topLeft()), frame.size());
    };
    QRect box = boxOf(view);
    if (view.place.family == 0) return box;
    for (View* other : views_) {
        if (other->place.family == view.place.family && other->place.row == view.place.row)
            box |= boxOf(*other);
    }
    return box;
}

bool ScreenWindow::moveRow(View& view, int key) {
    std::vector<View*> rows;
    for (View* other : views_) {
        const bool sameArray =
            other->place.family == view.place.family && other->place.name == view.place.name;
        if (sameArray && other->takesFocus() && other->widget()->isVisible()) rows.push_back(other);
    }
    const auto at = std::find(rows.begin(), rows.end(), &view);
    if (at == rows.end()) return false;
    const auto here = at - rows.begin();
    const auto last = static_cast<std::ptrdiff_t>(rows.size()) - 1;
    std::ptrdiff_t to = here;
    switch (key) {
    case Qt::Key_Up:
        to = std::max<std::ptrdiff_t>(here - 1, 0);
        break;
    case Qt::Key_Down:
        to = std::min(here + 1, last);
        break;
    case Qt::Key_Home:
        to = 0;
        break;
    case Qt::Key_End:
        to = last;
        break;
    default:
        return false;
    }
    setFocusOn(*rows[static_cast<std::size_t>(to)]);
    return true;
}

bool ScreenWindow::pressRow(View& view, int key) {
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        view.activate();
        return true;
    }
    if (key != Qt::Key_Space && key != Qt::Key_Menu) return false;
    Control& control = *view.control;
    actor_.act([&] {
        if (control.handles(Event::RightPress))
            user::rightPress(control);
        else if (control.handles(Event::Click))
            user::click(control);
        else
            user::doubleClick(control);
    });
    return true;
}

void ScreenWindow::keyPressEvent(QKeyEvent* event) {
    View* view = viewOf(focusWidget());
    const bool words = view != nullptr && view->control != nullptr && view->takesFocus() &&
                       (view->control->kind == Kind::Label || view->control->kind == Kind::HitArea);
    if (event->key() == Qt::Key_Escape) {
        pressClose();
    } else if (!words || !(moveRow(*view, event->key()) || pressRow(*view, event->key()))) {
        event->ignore();
    }
}

void ScreenWindow::pressClose() {
    if (screen_.name == "MainForm") return;
    std::vector<View*> keys;
    View* hit = nullptr;
    for (View* view : views_) {
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
    if (close == nullptr) return;
    Control& control = *close->control;
    actor_.act([&] { user::click(control); });
}

// ------------------------------------------------------------------------------------------------ window

void ScreenWindow::putOut() {
    // Pictures go out with a move over the ground; outside of the window, or before it came up, there is
    // none.
    actor_.act([this] {
        for (View* view : views_) {
            const bool ground = view->control != nullptr && view->control->kind == Kind::Container;
            if (ground && view->control->visible) user::move(*view->control);
        }
    });
}

void ScreenWindow::leaveEvent(QEvent*) {
    if (screen_.visible) putOut();
}

void ScreenWindow::paintEvent(QPaintEvent*) {
    // Only seen where a screen has no ground of its own.
    QPainter painter(this);
    painter.fillRect(rect(), kPanel);
    drawBox(painter, rect(), QColor(), kSocket, 0);
    drawBox(painter, rect().adjusted(1, 1, -1, -1), QColor(), actor_.skin().style("frame.border"), 0);
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (!screen_.enabled) return; // it takes no input now, from the window manager neither
    if (screen_.name != "MainForm") {
        pressClose();
        return;
    }
    Control* close = screen_.find("close_button");
    if (close != nullptr) actor_.act([&] { user::click(*close); });
}

void ScreenWindow::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    // A window manager that moves the window moves the form; while the mouse drags it, the form leads.
    if (!event->spontaneous() || (QGuiApplication::mouseButtons() & Qt::LeftButton)) return;
    screen_.left = pos().x();
    screen_.top = pos().y();
}

} // namespace gatewise::window
