#include "drive/Properties.h"

#include "drive/DrawingJson.h"
#include "forms/PickForms.h"

#include <span>

namespace gatewise::drive {

void write(JsonWriter& json, const Color& color) {
    json.beginArray();
    for (const int part : {color.red, color.green, color.blue}) json.integer(part);
    json.endArray();
}

void write(JsonWriter& json, const ListView::Column& column) {
    json.beginObject();
    json.key("text");
    json.text(column.text);
    json.key("width");
    json.number(column.width);
    json.endObject();
}

namespace {

/// A property of a kind of control. What is not `listed` can be asked for and stays out of a dump.
struct Property {
    const char* name;
    void (*write)(JsonWriter& json, const Control& control);
    bool listed = true;
};

template<class T> struct MemberOf;
template<class C, class T> struct MemberOf<T C::*> { using Class = C; };

template<auto Member> void field(JsonWriter& json, const Control& control) {
    using Class = typename MemberOf<decltype(Member)>::Class;
    write(json, static_cast<const Class&>(control).*Member);
}

void itemText(JsonWriter& json, const Control& control) {
    json.text(static_cast<const ItemControl&>(control).text());
}

template<class Write> void eachRow(JsonWriter& json, const Control& control, Write&& writeRow) {
    json.beginArray();
    for (const ListView::Row& row : static_cast<const ListView&>(control).rows) writeRow(row);
    json.endArray();
}
void rowCells(JsonWriter& json, const Control& control) {
    eachRow(json, control, [&](const ListView::Row& row) { write(json, row.cells); });
}
void rowKeys(JsonWriter& json, const Control& control) {
    eachRow(json, control, [&](const ListView::Row& row) { write(json, row.key); });
}
void rowBold(JsonWriter& json, const Control& control) {
    eachRow(json, control, [&](const ListView::Row& row) { write(json, row.bold); });
}

void interval(JsonWriter& json, const Control& control) {
    json.integer(static_cast<const Timer&>(control).interval());
}
void timerValue(JsonWriter& json, const Control& control) {
    json.beginObject();
    json.key("enabled");
    json.boolean(control.enabled);
    json.key("interval");
    interval(json, control);
    json.endObject();
}

void mark(JsonWriter& json, const Control& control) {
    constexpr const char* kMarks[] = {"none", "current", "sorted"};
    json.text(kMarks[static_cast<int>(static_cast<const Label&>(control).mark)]);
}

void nothing(JsonWriter& json, const Control&) {
    json.null();
}

constexpr Property kCommon[] = {
    {"visible", field<&Control::visible>},
    {"enabled", field<&Control::enabled>},
    {"toolTip", field<&Control::toolTip>, false},
};
constexpr Property kLabel[] = {
    {"text", field<&Label::text>},
    {"color", field<&Label::color>},
    {"highlighted", field<&Label::highlighted>, false},
    {"mark", mark, false},
};
constexpr Property kFrame[] = {{"text", field<&Frame::text>}};
constexpr Property kTextBox[] = {{"text", field<&TextBox::text>}};
constexpr Property kItems[] = {
    {"items", field<&ItemControl::items>},
    {"itemdata", field<&ItemControl::itemData>},
    {"index", field<&ItemControl::picked>},
    {"text", itemText},
};
constexpr Property kPaths[] = {
    {"items", field<&ItemControl::items>},  {"itemdata", field<&ItemControl::itemData>},
    {"index", field<&ItemControl::picked>}, {"text", itemText},
    {"path", field<&PathList::path>},       {"pattern", field<&PathList::pattern>},
};
constexpr Property kCheck[] = {{"value", field<&Check::value>}, {"text", field<&Check::text>, false}};
constexpr Property kOption[] = {{"value", field<&Option::value>}, {"text", field<&Option::text>, false}};
constexpr Property kListView[] = {
    {"columns", field<&ListView::columns>}, {"rows", rowCells},       {"keys", rowKeys},
    {"index", field<&ListView::picked>},    {"bold", rowBold, false},
};
constexpr Property kStateButton[] = {
    {"State", field<&SkinnedButton::State>},
    {"button_type", field<&SkinnedButton::button_type>},
    {"picture", field<&SkinnedButton::picture>},
};
constexpr Property kButton[] = {
    {"button_type", field<&SkinnedButton::button_type>},
    {"picture", field<&SkinnedButton::picture>},
};
constexpr Property kPushButton[] = {{"text", field<&PushButton::text>}};
constexpr Property kPicture[] = {{"picture", field<&Picture::picture>}};
constexpr Property kTimer[] = {{"interval", interval}};
constexpr Property kRange[] = {
    {"value", field<&RangeControl::value>},
    {"min", field<&RangeControl::min>},
    {"max", field<&RangeControl::max>},
};
constexpr Property kChart[] = {
    {"drawing", field<&Chart::drawing>, false},
    {"further", field<&Chart::further>, false},
    {"chosen", field<&Chart::chosen>, false},
};
constexpr Property kFlightInfo[] = {
    {"State", field<&forms::FlightInfo::State>},
    {"pointer", field<&forms::FlightInfo::pointer>},
    {"data", field<&forms::FlightInfo::data>},
    {"pos", field<&forms::FlightInfo::pos>},
};

struct KindView {
    Kind kind;
    void (*mainValue)(JsonWriter& json, const Control& control);
    std::span<const Property> properties;
};

const KindView kKinds[] = {
    {Kind::Container, nothing, {}},
    {Kind::Label, field<&Label::text>, kLabel},
    {Kind::TextBox, field<&TextBox::text>, kTextBox},
    {Kind::Combo, itemText, kItems},
    {Kind::ListBox, field<&ItemControl::items>, kItems},
    {Kind::Check, field<&Check::value>, kCheck},
    {Kind::Option, field<&Option::value>, kOption},
    {Kind::ListView, rowCells, kListView},
    {Kind::FlatButton, field<&SkinnedButton::picture>, kStateButton},
    {Kind::FormButton, field<&SkinnedButton::picture>, kButton},
    {Kind::boardButton, field<&SkinnedButton::picture>, kButton},
    {Kind::switchButton, field<&SkinnedButton::picture>, kStateButton},
    {Kind::midButton, field<&SkinnedButton::picture>, kButton},
    {Kind::PushButton, field<&PushButton::text>, kPushButton},
    {Kind::Picture, field<&Picture::picture>, kPicture},
    {Kind::HitArea, nothing, {}},
    {Kind::Frame, field<&Frame::text>, kFrame},
    {Kind::Timer, timerValue, kTimer},
    {Kind::Slider, field<&RangeControl::value>, kRange},
    {Kind::UpDown, field<&RangeControl::value>, kRange},
    {Kind::DriveList, field<&PathList::path>, kPaths},
    {Kind::FolderList, field<&PathList::path>, kPaths},
    {Kind::FileList, field<&ItemControl::items>, kPaths},
    {Kind::FlightInfo, nothing, kFlightInfo},
    {Kind::Chart, nothing, kChart},
    {Kind::Progress, field<&RangeControl::value>, kRange},
};

const KindView& viewOf(const Control& control) {
    for (const KindView& view : kKinds) {
        if (view.kind == control.kind) return view;
    }
    return kKinds[0];
}

const Property* findProperty(std::span<const Property> properties, std::string_view name) {
    for (const Property& property : properties) {
        if (property.name == name) return &property;
    }
    return nullptr;
}

void writeListed(JsonWriter& json, const Control& control, std::span<const Property> properties) {
    for (const Property& property : properties) {
        if (!property.listed) continue;
        json.key(property.name);
        property.write(json, control);
    }
}

struct ScreenProperty {
    const char* name;
    void (*write)(JsonWriter& json, const Screen& screen);
};

template<auto Member> void screenField(JsonWriter& json, const Screen& screen) {
    write(json, screen.*Member);
}

constexpr ScreenProperty kScreenProperties[] = {
    {"left", screenField<&Screen::left>},       {"top", screenField<&Screen::top>},
    {"width", screenField<&Screen::width>},     {"height", screenField<&Screen::height>},
    {"visible", screenField<&Screen::visible>}, {"picture", screenField<&Screen::picture>},
};

} // namespace

void writeMainValue(JsonWriter& json, const Control& control) {
    viewOf(control).mainValue(json, control);
}

bool writeProperty(JsonWriter& json, const Control& control, std::string_view name) {
    const Property* property = findProperty(kCommon, name);
    if (property == nullptr) property = findProperty(viewOf(control).properties, name);
    if (property == nullptr) return false;
    property->write(json, control);
    return true;
}

bool writeProperty(JsonWriter& json, const Screen& screen, std::string_view name) {
    for (const ScreenProperty& property : kScreenProperties) {
        if (property.name != name) continue;
        property.write(json, screen);
        return true;
    }
    return false;
}

void writeScreen(JsonWriter& json, const Screen& screen) {
    json.beginObject();
    for (const Control* control : screen.controls) {
        json.key(control->fullName().substr(screen.name.size() + 1));
        json.beginObject();
        writeListed(json, *control, kCommon);
        writeListed(json, *control, viewOf(*control).properties);
        json.endObject();
    }
    json.endObject();
}

} // namespace gatewise::drive
