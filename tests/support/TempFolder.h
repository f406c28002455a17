#pragma once

#include "platform/Files.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <unistd.h>

namespace gatewise::test {

/// A folder of its own for one test, gone when the test is over.
class TempFolder {
public:
    TempFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "gatewise-XXXXXX").string();
        path_ = ::mkdtemp(pattern.data());
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    /// As the program writes paths; `tail` may begin with a separator or without one.
    [[nodiscard]] std::string path(std::string_view tail = {}) const {
        const bool parted = tail.empty() || tail.front() == '\\' || tail.front() == '/';
        return path_ + (parted ? "" : "\\") + std::string(tail);
    }
    /// As the computer writes them.
    [[nodiscard]] std::filesystem::path native() const { return path_; }
    [[nodiscard]] std::filesystem::path operator/(std::string_view tail) const { return native() / tail; }

    void write(std::string_view tail, std::string_view text) const { write(tail, viewOf(text)); }
    void write(std::string_view tail, ByteView bytes) const {
        const std::filesystem::path native = files::resolve(path(tail));
        std::filesystem::create_directories(native.parent_path());
        ASSERT_FALSE(files::replace(path(tail), bytes));
    }
    [[nodiscard]] bool has(std::string_view tail) const {
        return std::filesystem::exists(files::resolve(path(tail)));
    }
    /// Bytes of a file; empty when there is none.
    [[nodiscard]] Bytes bytes(std::string_view tail) const {
        return files::readAll(path(tail)).value_or(Bytes());
    }
    [[nodiscard]] std::string read(std::string_view tail) const {
        const auto bytes = files::readAll(path(tail));
        return bytes ? std::string(bytes->begin(), bytes->end()) : std::string("(no such file)");
    }

private:
    std::string path_;
};

} // namespace gatewise::test
