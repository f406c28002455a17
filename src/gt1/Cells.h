#pragma once

#include "gt1/Report.h"
#include "gt1/Rows.h"
#include "platform/Text.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The three visitors of a row's columns: names, cells to fields, fields to cells.

namespace gatewise::gt1 {

class ColumnNames {
public:
    std::vector<std::string> names;
    std::vector<std::string> mayMiss; // those of them that a table need not have

    void code(const char* name, const auto&, int) { names.emplace_back(name); }
    void text(const char* name, const auto&) { names.emplace_back(name); }
    void whole(const char* name, const auto&, long long, long long) { names.emplace_back(name); }
    void real(const char* name, const auto&, double, double) { names.emplace_back(name); }
    void time(const char* name, const auto&) { names.emplace_back(name); }
    void bits(const char* name, const auto&, const BitNames&) { names.emplace_back(name); }
    void letter(const char* name, const auto&, std::string_view) { names.emplace_back(name); }
    void word(const char* name, const auto&) { names.emplace_back(name); }
    void region(const char* name, const auto&) {
        names.emplace_back(name);
        mayMiss.emplace_back(name);
    }
};

template<class Row> ColumnNames columnNames() {
    ColumnNames visitor;
    const Row row{};
    Row::columns(row, visitor);
    return visitor;
}

/// Fills a row from the cells of a line. `order` says which cell each column of the row type takes; one past
/// the last is a column that the table has not.
class CellReader {
public:
    CellReader(Report& report, std::string_view file, int line, std::span<const std::string> cells,
               std::span<const std::size_t> order)
        : report_(report), file_(file), line_(line), cells_(cells), order_(order) {}

    template<std::size_t N> void code(const char* name, FixedText<N>& field, int least) {
        field = codeText(next(name), N, static_cast<std::size_t>(least));
    }
    template<std::size_t N> void text(const char* name, FixedText<N>& field) {
        field = fittingText(next(name), N);
    }
    template<class T> void whole(const char* name, T& field, long long low, long long high) {
        field = static_cast<T>(wholeNumber(next(name), low, high));
    }
    void real(const char* name, float& field, double low, double high);
    void time(const char* name, std::int16_t& field);
    void bits(const char* name, std::uint8_t& field, const BitNames& names);
    void letter(const char* name, FixedText<1>& field, std::string_view allowed);
    void word(const char* name, std::string& field);
    void region(const char* name, FixedText<2>& field);

private:
    struct Cell {
        Place place;
        std::string_view utf8; // trimmed
    };
    Cell next(const char* name);
    std::string ownText(const Cell& cell);
    std::string fittingText(const Cell& cell, std::size_t width);
    std::string codeText(const Cell& cell, std::size_t width, std::size_t least);
    long long wholeNumber(const Cell& cell, long long low, long long high);

    Report& report_;
    std::string_view file_;
    int line_;
    std::span<const std::string> cells_;
    std::span<const std::size_t> order_;
    std::size_t column_ = 0;
};

/// The cells of a row, in UTF-8.
class CellWriter {
public:
    /// `regions`: whether the table has a column for them.
    explicit CellWriter(bool regions) : regions_(regions) {}

    std::vector<std::string> cells;

    template<std::size_t N> void code(const char*, const FixedText<N>& field, int) { put(field.trimmed()); }
    template<std::size_t N> void text(const char*, const FixedText<N>& field) { put(field.trimmed()); }
    template<class T> void whole(const char*, const T& field, long long, long long) {
        cells.push_back(std::to_string(field));
    }
    void real(const char*, float field, double, double);
    void time(const char*, std::int16_t field);
    void bits(const char*, std::uint8_t field, const BitNames& names);
    void letter(const char*, const FixedText<1>& field, std::string_view) { put(field.trimmed()); }
    void word(const char*, const std::string& field) { put(field); }
    void region(const char*, const FixedText<2>& field) {
        if (regions_) put(field.trimmed());
    }

private:
    void put(std::string_view text) { cells.push_back(utf8FromText(text)); }

    bool regions_;
};

} // namespace gatewise::gt1
