#include "import/Registries.h"

#include "import/Header.h"

#include <algorithm>

namespace gatewise::importer {

namespace {

struct TailColumns {
    TailColumns() = default;
    explicit TailColumns(const Header& h)
        : tail(h.column({"tailnum"})), maker(h.column({"manufacturer"})), model(h.column({"model"})),
          issued(h.column({"issuedate"})) {}
    int tail = -1, maker = -1, model = -1, issued = -1;
};

/// "02/13/2004" or "20040213" as 20040213; 0 for anything else.
long long dateOrder(std::string_view cell) {
    if (cell.size() == 8) return std::max(0LL, wholeIn(cell).value_or(0));
    if (cell.size() != 10 || cell[2] != '/' || cell[5] != '/') return 0;
    const auto month = wholeIn(cell.substr(0, 2));
    const auto day = wholeIn(cell.substr(3, 2));
    const auto year = wholeIn(cell.substr(6));
    return month && day && year && *year > 0 ? *year * 10000 + *month * 100 + *day : 0;
}

struct RegistryColumns {
    RegistryColumns() = default;
    explicit RegistryColumns(const Header& h)
        : tail(h.column({"n-number"})), model(h.column({"mfr mdl code"})),
          action(h.column({"last action date"})) {}
    int tail = -1, model = -1, action = -1;
};

struct ModelColumns {
    ModelColumns() = default;
    explicit ModelColumns(const Header& h)
        : code(h.column({"code"})), maker(h.column({"mfr"})), model(h.column({"model"})) {}
    int code = -1, maker = -1, model = -1;
};

struct NoColumns {
    NoColumns() = default;
    explicit NoColumns(const Header&) {}
};

} // namespace

Table<TailIn> readTails(const Reading& reading) {
    Table<TailIn> table;
    long long newest = 0;
    readHeadedRows<TailColumns>(reading, table, [&](const Cells& c, const TailColumns& at) -> const char* {
        newest = std::max(newest, dateOrder(cellAt(c, at.issued)));
        if (cellAt(c, at.model).empty()) return nullptr;
        if (cellAt(c, at.tail).empty()) return "no tail number";
        table.rows.push_back({upperAscii(cellAt(c, at.tail)), upperAscii(cellAt(c, at.maker)),
                              upperAscii(cellAt(c, at.model))});
        return nullptr;
    });
    table.edition.said = newest;
    return table;
}

Table<RegistryIn> readRegistry(const Reading& reading) {
    Table<RegistryIn> table;
    long long newest = 0;
    readHeadedRows<RegistryColumns>(
        reading, table, [&](const Cells& c, const RegistryColumns& at) -> const char* {
            const std::string_view tail = cellAt(c, at.tail);
            if (tail.empty() || cellAt(c, at.model).empty()) return "no tail number or model code";
            newest = std::max(newest, dateOrder(cellAt(c, at.action)));
            table.rows.push_back({"N" + upperAscii(tail), text(cellAt(c, at.model))});
            return nullptr;
        });
    table.edition.said = newest;
    return table;
}

Table<RegistryModelIn> readRegistryModels(const Reading& reading) {
    Table<RegistryModelIn> table;
    readHeadedRows<ModelColumns>(reading, table, [&](const Cells& c, const ModelColumns& at) -> const char* {
        if (cellAt(c, at.code).empty() || cellAt(c, at.model).empty()) return "no model with a code";
        table.rows.push_back(
            {text(cellAt(c, at.code)), upperAscii(cellAt(c, at.maker)), upperAscii(cellAt(c, at.model))});
        return nullptr;
    });
    return table;
}

Table<CarrierIn> readCarriers(const Reading& reading) {
    Table<CarrierIn> table;
    readHeadedRows<NoColumns>(reading, table, [&](const Cells& c, const NoColumns&) -> const char* {
        if (c.size() < 2 || c[0].empty() || c[1].empty()) return "no code with a name";
        table.rows.push_back({text(c[0]), text(c[1])});
        return nullptr;
    });
    return table;
}

} // namespace gatewise::importer
