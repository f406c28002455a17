#include "window/ScreenViews.h"

#include "window/Buttons.h"
#include "window/ChartView.h"
#include "window/Choices.h"
#include "window/DisplayKey.h"
#include "window/Fields.h"
#include "window/MapView.h"
#include "window/PaintedViews.h"
#include "window/ProgressView.h"
#include "window/Rows.h"

#include <algorithm>

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
    {Kind::Progress, makeView<ProgressView>},
};

View* make(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent) {
    if (place.kind == "shape") return new ShapeView(actor, place, parent);
    if (place.kind == "displaykey") return new DisplayKey(actor, place, parent);
    if (control == nullptr) return nullptr;
    if (control->kind == Kind::TextBox) {
        if (place.multiline) return new NotesView(actor, control, place, parent);
        return new LineView(actor, control, place, parent);
    }
    if (dynamic_cast<MapChart*>(control) != nullptr) return new MapView(actor, control, place, parent);
    for (const auto& row : kKinds) {
        if (row.kind == control->kind) return row.make(actor, control, place, parent);
    }
    return nullptr;
}

/// Builds one window; what lies inside of a ground or frame becomes a child of its widget.
class Builder {
public:
    Builder(Actor& actor, Screen& screen, const ScreenLayout& layout, QWidget* window)
        : actor_(actor), screen_(screen), layout_(layout), window_(window) {}

    ScreenViews build() {
        buildGrounds();
        for (const ControlLayout& place : layout_.controls) {
            if (place.container != place.name) buildView(place);
        }
        return std::move(out_);
    }

private:
    struct Room {
        QWidget* widget;
        QPoint offset; // of its box inside the widget
        QPoint corner; // of the widget inside the window
    };

    /// Grounds that the table does not list among the controls lie lowest.
    void buildGrounds() {
        for (const auto& [name, container] : layout_.containers) {
            Control* control = screen_.find(name);
            if (control == nullptr || control->kind != Kind::Container) continue;
            const bool listed = std::any_of(
                layout_.controls.begin(), layout_.controls.end(),
                [&, &name = name](const ControlLayout& c) { return c.name == name && c.container != name; });
            if (listed) continue;
            ControlLayout& place = out_.grounds.emplace_back();
            place.name = name;
            place.kind = "container";
            place.box = container.box;
            auto* ground = new GroundView(actor_, control, place, container.background, window_);
            ground->putAt(container.box.topLeft(), {});
            rooms_[name] = {ground, {}, ground->widgetInWindow()};
            out_.all.push_back(ground);
        }
    }

    void buildView(const ControlLayout& place) {
        const auto room = rooms_.find(place.container);
        const bool inside = room != rooms_.end();
        QWidget* parent = inside ? room->second.widget : window_;
        const auto container = layout_.containers.find(place.name);
        const bool ground = place.kind == "container" && container != layout_.containers.end();
        View* view = ground ? makeGround(place, container->second.background, parent)
                            : make(actor_, screen_.find(place.name, place.index), place, parent);
        if (view == nullptr) return;
        const QPoint around = inside ? room->second.corner : QPoint();
        view->putAt(place.box.topLeft() + (inside ? room->second.offset : QPoint()), around);
        if (container != layout_.containers.end()) {
            rooms_[place.name] = {view->widget(), view->frame().topLeft(), view->widgetInWindow()};
        }
        out_.all.push_back(view);
    }

    View* makeGround(const ControlLayout& place, const std::string& picture, QWidget* parent) {
        Control* control = screen_.find(place.name);
        return control == nullptr ? nullptr : new GroundView(actor_, control, place, picture, parent);
    }

    Actor& actor_;
    Screen& screen_;
    const ScreenLayout& layout_;
    QWidget* window_;
    std::map<std::string, Room> rooms_;
    ScreenViews out_;
};

} // namespace

ScreenViews buildViews(Actor& actor, Screen& screen, const ScreenLayout& layout, QWidget* window) {
    return Builder(actor, screen, layout, window).build();
}

} // namespace gatewise::window
