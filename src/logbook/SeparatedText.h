#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gatewise {

/// Cells of a row that are read; what stands behind them is passed over.
inline constexpr std::size_t kMostCells = 500;

/// Reads a table of text row by row: cells apart by `sign`; a cell with that sign, a quote or a line end
/// stands in double quotes, a quote inside is doubled. A quote that never ends is none: its cell ends where
/// others do, and no row behind it is lost. Empty lines are left out.
class SeparatedText {
public:
    /// The text must live as long as the reader.
    SeparatedText(std::string_view text, char sign) : text_(text), sign_(sign) {}

    /// The next row; false behind the last.
    bool next(std::vector<std::string>& row);

private:
    void takeRow(std::vector<std::string>& row);
    std::string takeCell();
    bool takeQuoted(std::string& cell);
    [[nodiscard]] bool atEnd() const { return at_ >= text_.size(); }
    [[nodiscard]] bool atLineEnd() const { return text_[at_] == '\n' || text_[at_] == '\r'; }

    std::string_view text_;
    char sign_;
    std::size_t at_ = 0;
};

} // namespace gatewise
