#pragma once

#include <sqlite3.h>
#include <stdexcept>
#include <string>
#include <string_view>

// Just enough of a database to be compared with.

namespace gatewise::bench {

class Statement {
public:
    Statement(sqlite3* db, const std::string& sql) {
        if (sqlite3_prepare_v2(db, sql.c_str(), -1, &statement_, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(db));
    }
    ~Statement() { sqlite3_finalize(statement_); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    Statement& bind(int at, std::string_view text) {
        sqlite3_bind_text(statement_, at, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
        return *this;
    }
    Statement& bind(int at, int value) {
        sqlite3_bind_int(statement_, at, value);
        return *this;
    }
    Statement& bind(int at, double value) {
        sqlite3_bind_double(statement_, at, value);
        return *this;
    }
    bool row() { return sqlite3_step(statement_) == SQLITE_ROW; }
    void reset() { sqlite3_reset(statement_); }
    void run() {
        row();
        reset();
    }
    [[nodiscard]] std::string_view text(int column) {
        const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
        return {bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement_, column))};
    }
    [[nodiscard]] int number(int column) { return sqlite3_column_int(statement_, column); }
    [[nodiscard]] double real(int column) { return sqlite3_column_double(statement_, column); }

private:
    sqlite3_stmt* statement_ = nullptr;
};

class Database {
public:
    explicit Database(const std::string& path) {
        if (sqlite3_open(path.c_str(), &db_) != SQLITE_OK) throw std::runtime_error(sqlite3_errmsg(db_));
    }
    ~Database() { sqlite3_close(db_); }
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    void run(const std::string& sql) {
        if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(db_));
    }
    [[nodiscard]] sqlite3* handle() const { return db_; }

private:
    sqlite3* db_ = nullptr;
};

} // namespace gatewise::bench
