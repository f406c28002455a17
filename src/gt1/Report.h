#pragma once

#include <cstdint>
#include <functional>
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

    /// Who watches a long run: is told how much of it is done, 0 to 1, and answers whether it is to go on.
    using Watch = std::function<bool(double share)>;
    void watchedBy(Watch watch) { watch_ = std::move(watch); }
    /// So much of the run is done, 0 to 1.
    void reached(double share);
    /// To be asked for every row of a long loop: false when the run is to end. Most of the time it costs
    /// nothing; the watcher is asked for one row in kRowsBetweenLooks.
    [[nodiscard]] bool goesOn() { return ++rows_ % kRowsBetweenLooks != 0 ? !stopped_ : goesOnNow(); }
    /// The same, where the watcher is asked in any case.
    bool goesOnNow();
    static constexpr std::uint32_t kRowsBetweenLooks = 256;

    [[nodiscard]] bool stopped() const { return stopped_; }
    /// An error, or an end before its time: nothing is to be written.
    [[nodiscard]] bool failed() const { return stopped_ || !errors_.empty(); }
    [[nodiscard]] bool anyUnreadable() const { return unreadable_; }
    [[nodiscard]] const std::vector<std::string>& errors() const { return errors_; }
    [[nodiscard]] const std::vector<std::string>& warnings() const { return warnings_; }

private:
    Watch watch_;
    double share_ = 0;
    std::uint32_t rows_ = 0;
    bool stopped_ = false;
    std::vector<std::string> errors_;
    std::vector<std::string> warnings_;
    bool unreadable_ = false;
};

/// A text as messages show it: in double quotes, shortened when it is long.
std::string inQuotes(std::string_view text);

} // namespace gatewise::gt1
