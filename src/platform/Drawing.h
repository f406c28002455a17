#pragma once

#include <string>
#include <vector>

// A drawing of lines, marks and words, apart from any toolkit. The sheet is the unit square, (0, 0) at the
// top left; whoever shows it stretches x and y alike or, for `square`, keeps them in proportion.

namespace gatewise {

/// What a stroke stands for; the look chooses colours and widths for it.
enum class Tone {
    Grid,
    Route,
    Airport,
    Fix,
    Top,
    Step,
    Water,
    Land,
    Coast,
    Border,
    Vor,
    Ndb,
    Alternate, // the way to an airport that is not the destination, and that airport
    Flight,    // one of many routes
    Other,     // a route that stands back
    Runway,
    Chosen, // what is picked
    Level,  // a level held, a scale bar
    Bar     // of a bar chart
};

struct DrawingPoint {
    double x = 0;
    double y = 0;
    friend bool operator==(const DrawingPoint&, const DrawingPoint&) = default;
};

struct DrawingLine {
    std::vector<DrawingPoint> points;
    Tone tone = Tone::Grid;
    double width = 0; // pixels; 0: as its tone has it
    int id = -1;      // what a click on it picks; -1: nothing
    friend bool operator==(const DrawingLine&, const DrawingLine&) = default;
};

/// What the rings enclose by the even-odd rule.
struct DrawingArea {
    std::vector<std::vector<DrawingPoint>> rings;
    Tone tone = Tone::Land;
    friend bool operator==(const DrawingArea&, const DrawingArea&) = default;
};

struct DrawingMark {
    DrawingPoint at;
    Tone tone = Tone::Fix;
    std::string label;   // empty: a mark without a word
    int id = -1;         // what a click on it picks; -1: nothing
    std::string words{}; // said under the pointer
    friend bool operator==(const DrawingMark&, const DrawingMark&) = default;
};

struct DrawingText {
    DrawingPoint at;
    std::string text;
    bool leftOf = false; // the text ends at the point instead of beginning there
    Tone tone = Tone::Grid;
    friend bool operator==(const DrawingText&, const DrawingText&) = default;
};

struct Drawing {
    std::vector<DrawingArea> areas; // below the lines
    std::vector<DrawingLine> lines;
    std::vector<DrawingMark> marks;
    std::vector<DrawingText> texts;
    bool square = false;
    bool worded = false; // the marks' words stand among the texts already, where there was room for them
    std::string summary; // the same in words, for a screen reader
    double aspect = 0;   // width by height that a sheet of paper keeps; 0: as there is room
    friend bool operator==(const Drawing&, const Drawing&) = default;
};

} // namespace gatewise
