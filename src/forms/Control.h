#pragma once

#include "platform/Drawing.h"
#include "platform/MapScene.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Screens as data: named controls with the properties that the program reads and writes, and a list of what
// happens on each event. Nothing here knows a toolkit. Texts are Windows-1252.

namespace gatewise {

struct Screen;

struct Color {
    std::uint8_t red = 255;
    std::uint8_t green = 255;
    std::uint8_t blue = 255;
    friend bool operator==(const Color&, const Color&) = default;
};

enum class Kind {
    Container,
    Label,
    TextBox,
    Combo,
    ListBox,
    Check,
    Option,
    ListView,
    FlatButton,
    FormButton,
    boardButton,
    switchButton,
    midButton,
    PushButton,
    Picture,
    HitArea,
    Frame,
    Timer,
    Slider,
    UpDown,
    DriveList,
    FolderList,
    FileList,
    FlightInfo,
    Chart,
    Progress
};

enum class Event {
    Click, // a click, a pick from a list, a check set
    DoubleClick,
    Press,   // left button down
    Release, // left button up
    RightPress,
    Move,  // the mouse moves over the control
    Focus, // the control gets the input focus
    Enter, // keys
    Space,
    Change, // text typed, slider or arrows moved, folder changed
    Column, // head of a list view clicked
    Pick,   // a mark or route of a chart clicked
    Hover,  // the mouse rests on another one, or on none any more
    Turn,   // the wheel or a key turns the pages of a table
    Tick    // a timer
};

struct EventArgs {
    int value = 0;     // column of Event::Column, id of Event::Pick and Event::Hover (-1: none); of
                       // Event::Turn the pages, negative: back
    int x = 0, y = 0;  // mouse position of Press, Release, Move, in pixels of the screen's ground
    bool left = false; // left button held during Move
};

struct Control {
    Control(Screen& screen, std::string name, Kind kind, int index = -1);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// Sets what an event does; one handler for each event of a control.
    void on(Event event, std::function<void(const EventArgs&)> handler);
    void on(Event event, std::function<void()> handler);
    void fire(Event event, const EventArgs& args = {});
    [[nodiscard]] bool handles(Event event) const;

    /// Whether a press on it does something now: visible, enabled, and for a button with a State, that is 1.
    [[nodiscard]] virtual bool usable() const { return visible && enabled; }

    /// "MainForm.fltnum_LABEL(3)"
    [[nodiscard]] std::string fullName() const;

    Screen* screen;
    std::string name;
    Kind kind;
    int index; // place in its control array, -1 for a single control
    bool visible = true;
    bool enabled = true;
    std::string toolTip;

private:
    std::vector<std::pair<Event, std::function<void(const EventArgs&)>>> handlers_;
};

/// A panel or ground that holds other controls and takes mouse moves.
struct Container : Control {
    Container(Screen& screen, std::string name) : Control(screen, std::move(name), Kind::Container) {}
};

struct HitArea : Control {
    HitArea(Screen& screen, std::string name, int index = -1)
        : Control(screen, std::move(name), Kind::HitArea, index) {}
};

/// What a label says besides its words: it names the page in view, or the column that a table is sorted by.
enum class Mark { None, Current, Sorted };

struct Label : Control {
    Label(Screen& screen, std::string name, std::string text = {}, int index = -1)
        : Control(screen, std::move(name), Kind::Label, index), text(std::move(text)) {}
    std::string text;
    Color color{255, 255, 255};
    bool highlighted = false; // a marked row of the log
    Mark mark = Mark::None;
};

struct Frame : Control {
    Frame(Screen& screen, std::string name, std::string text)
        : Control(screen, std::move(name), Kind::Frame), text(std::move(text)) {}
    std::string text;
};

struct TextBox : Control {
    TextBox(Screen& screen, std::string name, std::string text = {}, int index = -1)
        : Control(screen, std::move(name), Kind::TextBox, index), text(std::move(text)) {}
    std::string text;
    int maxLength = 0; // characters, 0: no limit
    bool readOnly = false;
    bool multiLine = false; // else what is typed or pasted ends at its first line break
    bool selectAll = false; // set by a handler of Focus: the whole text becomes selected
};

/// Check box: 0, 1 or 2. Setting it counts as a click when it changes, as for a click of the user.
struct Check : Control {
    Check(Screen& screen, std::string name, std::string text, int index = -1)
        : Control(screen, std::move(name), Kind::Check, index), text(std::move(text)) {}
    void set(int newValue);
    std::string text;
    int value = 0;
};

/// Option box: turning one on turns its group (the other options of its screen) off and counts as a click;
/// turning one off by itself is a change.
struct Option : Control {
    Option(Screen& screen, std::string name, std::string text)
        : Control(screen, std::move(name), Kind::Option), text(std::move(text)) {}
    void set(bool on);
    std::string text;
    bool value = false;
};

/// Items of a combo or list box. Picking one, by the user or by the program, counts as a click.
struct ItemControl : Control {
    using Control::Control;
    /// Adds an item; where the items are kept sorted, behind those that are equal. Returns its place.
    int add(std::string text, int data = 0);
    void clear();
    /// Picks an item and fires Click; -1 picks none and fires nothing. A place outside is ignored.
    void select(int place);
    /// Place of the first item with just this text, -1 when there is none.
    [[nodiscard]] int find(std::string_view text) const;
    [[nodiscard]] int count() const { return static_cast<int>(items.size()); }
    /// Text and data of the picked item; empty and 0 when none is.
    [[nodiscard]] std::string text() const;
    [[nodiscard]] int data() const;

    std::vector<std::string> items;
    std::vector<int> itemData;
    int picked = -1;
    bool sorted = false;
    bool locked = false; // the user cannot pick
};

struct Combo : ItemControl {
    Combo(Screen& screen, std::string name) : ItemControl(screen, std::move(name), Kind::Combo) {}
    Color back{238, 238, 238};
};

struct ListBox : ItemControl {
    ListBox(Screen& screen, std::string name) : ItemControl(screen, std::move(name), Kind::ListBox) {}
};

struct ListView : Control {
    struct Column {
        std::string text;
        double share = 0; // of `width`
        double width = 0; // pixels now
    };
    struct Row {
        std::string key;
        std::vector<std::string> cells; // first column first
        bool bold = false;
    };

    ListView(Screen& screen, std::string name, double width)
        : Control(screen, std::move(name), Kind::ListView), width(width) {}
    void clear();
    /// A click on a row: picks it and fires Click. A place outside is ignored.
    void select(int place);
    /// The width that the table of the screen gives a column.
    void resetColumn(int column);
    [[nodiscard]] const Row* selected() const;

    double width;
    std::vector<Column> columns;
    std::vector<Row> rows;
    int picked = -1;
};

/// Runs armed timers. A timer reports every change of its two properties to the host it is attached to.
struct Timer;
class TimerHost {
public:
    virtual ~TimerHost() = default;
    /// The timer was switched on, or its interval was changed while it was on: its next tick is one interval
    /// away.
    virtual void arm(Timer& timer) = 0;
    virtual void disarm(Timer& timer) = 0;
};

struct Timer : Control {
    Timer(Screen& screen, std::string name, int interval, bool on = false)
        : Control(screen, std::move(name), Kind::Timer), interval_(interval) {
        enabled = on;
    }
    /// Switching on what is on changes nothing.
    void enable(bool on);
    void setInterval(int milliseconds);
    [[nodiscard]] int interval() const { return interval_; }
    void attach(TimerHost* host);
    bool ticking = false; // its handler runs now

private:
    int interval_;
    TimerHost* host_ = nullptr;
};

/// A button of one of the five picture classes.
struct SkinnedButton : Control {
    SkinnedButton(Screen& screen, std::string name, Kind kind, std::string type, std::string picture,
                  int state = 1, int index = -1);
    /// Whether the class has a State at all.
    [[nodiscard]] bool usable() const override { return Control::usable() && (!hasState() || State == 1); }
    [[nodiscard]] bool hasState() const { return kind == Kind::FlatButton || kind == Kind::switchButton; }
    int State;
    std::string button_type;
    std::string picture;           // name of the bitmap in the folder of the class
    std::unique_ptr<Timer> Timer1; // FormButton only: repeats the click while the button is held
};

/// The button that a control is; nullptr for a control of another class.
SkinnedButton* skinnedButton(Control* control);

/// A standard push button.
struct PushButton : Control {
    PushButton(Screen& screen, std::string name, std::string text)
        : Control(screen, std::move(name), Kind::PushButton), text(std::move(text)) {}
    std::string text;
};

struct Picture : Control {
    Picture(Screen& screen, std::string name, std::string picture)
        : Control(screen, std::move(name), Kind::Picture), picture(std::move(picture)) {}
    std::string picture; // file below the program folder
};

/// A drawing of the program's own data.
struct Chart : Control {
    Chart(Screen& screen, std::string name) : Control(screen, std::move(name), Kind::Chart) {}
    Drawing drawing;
    Drawing further; // stands upon the drawing: what is told besides, and the marks that can be picked
    int chosen = -1; // id of the mark or route that stands out

    /// The drawing with `further` upon it, what is chosen standing out.
    [[nodiscard]] Drawing whole() const;
    /// Whether a click can pick it.
    [[nodiscard]] bool holds(int id) const;
};

/// A map that a person moves and zooms: its scene. `further`, or the drawing where there was none before, is
/// the whole scene as it fits a sheet of usual size, without the land.
struct MapChart : Chart {
    using Chart::Chart;
    MapScene scene;
};

/// Slider and up-down arrows.
struct RangeControl : Control {
    RangeControl(Screen& screen, std::string name, Kind kind, int min, int max, int step, int value)
        : Control(screen, std::move(name), kind), min(min), max(max), step(step), value(value) {}
    int min, max, step;
    int page = 1;
    int value;
};

/// How far a work is: 0 to 100, and nothing that a person could change.
struct ProgressBar : RangeControl {
    ProgressBar(Screen& screen, std::string name)
        : RangeControl(screen, std::move(name), Kind::Progress, 0, 100, 1, 0) {}
};

/// Drive, folder and file lists. `path` is what the list stands at: the drive, the folder, the folder whose
/// files are shown. The items are filled by the screens.
struct PathList : ItemControl {
    PathList(Screen& screen, std::string name, Kind kind) : ItemControl(screen, std::move(name), kind) {}
    std::string path;
    std::string pattern = "*";
};

/// Controls of one name, told apart by their index.
template<class T> class ControlArray {
public:
    /// `make` builds the control of an index.
    ControlArray(int first, int last, auto&& make) {
        for (int i = first; i <= last; ++i) items_.push_back(make(i));
        first_ = first;
    }
    T& operator()(int i) { return *items_[static_cast<std::size_t>(i - first_)]; }
    const T& operator()(int i) const { return *items_[static_cast<std::size_t>(i - first_)]; }
    auto begin() { return items_.begin(); }
    auto end() { return items_.end(); }

private:
    int first_ = 0;
    std::vector<std::unique_ptr<T>> items_;
};

inline ControlArray<Label> labels(Screen& screen, const char* name, int last, const char* text = "") {
    return {0, last, [&](int i) { return std::make_unique<Label>(screen, name, text, i); }};
}

struct ButtonRow {
    const char* type;
    const char* picture;
    int state;
};

inline ControlArray<SkinnedButton> buttons(Screen& screen, const char* name, Kind kind,
                                           const std::vector<ButtonRow>& rows) {
    return {0, static_cast<int>(rows.size()) - 1, [&](int i) {
                const auto& row = rows[static_cast<std::size_t>(i)];
                return std::make_unique<SkinnedButton>(screen, name, kind, row.type, row.picture, row.state,
                                                       i);
            }};
}

/// A screen: one instance for the whole run, loaded once, then shown and hidden.
struct Screen {
    Screen(std::string name, std::string caption, int designWidth, int designHeight, std::string picture)
        : name(std::move(name)), caption(std::move(caption)), designWidth(designWidth),
          designHeight(designHeight), width(designWidth), height(designHeight), picture(std::move(picture)) {}
    virtual ~Screen() = default;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    /// What Escape and the window manager press to close the screen: the first of `closedBy` that can be
    /// used, nullptr when there is none.
    [[nodiscard]] Control* closingControl() const;

    /// The control "name" or "name(index)", nullptr when there is none.
    [[nodiscard]] Control* find(std::string_view controlName, int index = -1) const;

    std::string name;
    std::string caption;           // what a window list or a screen reader calls it
    int designWidth, designHeight; // pixels at 96 dots per inch
    double left = 0, top = 0;      // of its upper left corner on the desktop, in the desktop's pixels
    double width, height;          // the design's, smaller after the small-font fix; the same pixels
    std::string picture;           // background, below the program folder
    bool visible = false;
    bool enabled = true; // takes input; timers run all the same
    bool modal = false;  // shown modally now
    bool loaded = false;
    std::vector<Control*> controls; // in the order of their declaration
    std::vector<Control*> closedBy; // see closingControl; empty: its closeButton
    Control* first = nullptr;       // where the keyboard starts; nullptr: at the first control of the order
    bool heedsEscape = true;        // else only the window manager closes it
    std::function<void()> load;     // the first time that the screen is needed
    std::function<void()> activate; // each time that it is shown
    std::function<void()> moved;    // each time that the window manager has put it elsewhere
};

} // namespace gatewise
