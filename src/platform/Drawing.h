#pragma once

#include <string>
#include <vector>

// A drawing of lines, marks and words, apart from any toolkit. The sheet is the unit square, (0, 0) at the
// top left; whoever shows it stretches x and y alike or, for `square`, keeps them in proportion.

namespace gatewise {

/// What a stroke stands for; the look chooses colours and widths for it.
enum class Tone { Grid, Route, Airport, Fix, Top, Step };

struct DrawingPoint {
    double x = 0;
    double y = 0;
    friend bool operator==(const DrawingPoint&, const DrawingPoint&) = default;
};

struct DrawingLine {
    std::vector<DrawingPoint> points;
    Tone tone = Tone::Grid;
    friend bool operator==(const DrawingLine&, const DrawingLine&) = default;
};

struct DrawingMark {
    DrawingPoint at;
    Tone tone = Tone::Fix;
    std::string label; // empty: a mark without a word
    friend bool operator==(const DrawingMark&, const DrawingMark&) = default;
};

struct DrawingText {
    DrawingPoint at;
    std::string text;
    bool leftOf = false; // the text ends at the point instead of beginning there
    friend bool operator==(const DrawingText&, const DrawingText&) = default;
};

struct Drawing {
    std::vector<DrawingLine> lines;
    std::vector<DrawingMark> marks;
    std::vector<DrawingText> texts;
    bool square = false;
    std::string summary; // the same in words, for a screen reader
    friend bool operator==(const Drawing&, const Drawing&) = default;
};

} // namespace gatewise
