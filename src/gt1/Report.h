#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gatewise::gt1 {

/// A cell of a table: `line` counts from 1 with the header as line 1, `column` counts fields from 1. 0 and an
/// empty name where the message is about the whole row or the whole file.
struct Place {
    std::string file;
    int line = 0;
    int column = 0;
    std::string name; // of the column
};

/// What a run found: every error and warning in the order in which they were met. A run with an error writes
/// nothing.
class Report {
public:
    /// "flights.csv:12: column 3 (destination): expected EXPECTED, found FOUND"
    void error(const Place& place, std::string_view expected, std::string_view found);
    /// The same for a table that cannot be read at all: what refers to it is not looked at then.
    void unreadable(const Place& place, std::string_view expected, std::string_view found);
    void warning(const Place& place, std::string_view message);

    [[nodiscard]] bool failed() const { return !errors_.empty(); }
    [[nodiscard]] bool anyUnreadable() const { return unreadable_; }
    [[nodiscard]] const std::vector<std::string>& errors() const { return errors_; }
    [[nodiscard]] const std::vector<std::string>& warnings() const { return warnings_; }

private:
    std::vector<std::string> errors_;
    std::vector<std::string> warnings_;
    bool unreadable_ = false;
};

/// A text as messages show it: in double quotes, shortened when it is long.
std::string inQuotes(std::string_view text);

} // namespace gatewise::gt1
