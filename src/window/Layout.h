#pragma once

#include <QByteArray>
#include <QColor>
#include <QRect>
#include <QString>

#include <map>
#include <string>
#include <vector>

// Where every control stands and what it wears, read from the layout table that is compiled into the program.
// All numbers are logical pixels at 96 dots per inch.

namespace gatewise::window {

struct FontRole {
    QString family;
    int weight = 400; // as in OpenType
    double size = 12;
    double line = 15; // from one base line to the next
};

enum class Ellipsis { None, Left, Right };

struct ControlLayout {
    std::string name; // as the form spells it, parts of a composite with its name before them
    int index = -1;
    std::string kind;
    std::string container;
    QRect box; // inside the container
    std::string font;
    QColor color, back, border, disabled, highlight; // invalid: none
    Qt::Alignment align = Qt::AlignLeft;
    bool top = false; // text from the top instead of the middle
    bool wrap = false;
    int lines = 0; // 0: as many as there are
    Ellipsis ellipsis = Ellipsis::None;
    bool hit = false;  // a value that can be clicked
    bool over = false; // lies over others that are empty then
    bool multiline = false;
    int tab = 0; // place in the order of the Tab key, 0: behind all others, in the order of the table
    std::string text;
    QString says;        // what a screen reader calls a control that shows no words, or says before a value
    QString table;       // on the first array of a table of lines: what a screen reader calls the table
    bool blinks = false; // the program shows and hides it again and again
    bool quiet = false;  // changes of its text are not told to a screen reader
    int family = 0;      // rows of a table made of control arrays: arrays that share their lines; 0: none
    int row = -1;        // line within the family
};

struct ContainerLayout {
    QRect box; // inside the screen
    std::string background;
};

struct ScreenLayout {
    QSize size;
    std::map<std::string, ContainerLayout> containers;
    std::vector<ControlLayout> controls; // lowest first
};

struct Layout {
    /// Reads the table. What is missing or malformed keeps its default.
    static Layout fromJson(const QByteArray& json);

    /// "list.back"
    [[nodiscard]] QColor style(const std::string& key) const;
    [[nodiscard]] const FontRole& role(const std::string& name) const;

    std::map<std::string, FontRole> fonts;
    std::map<std::string, QColor> styles;
    std::map<std::string, ScreenLayout> screens;
};

} // namespace gatewise::window
