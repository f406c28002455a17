#pragma once

#include "import/Source.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace gatewise::importer {

/// The lines of a source one after the other, in constant memory. Ends are LF or CR LF; a byte-order mark in
/// front is skipped.
class Lines {
public:
    /// No table has a line that comes near this many bytes.
    static constexpr std::size_t kLongest = 65536;

    explicit Lines(SourceBytes& bytes);

    /// Goes to the next line; false at the end, and when the source is broken.
    bool next();
    /// The line without its end, until the next call.
    [[nodiscard]] std::string_view text() const { return line_; }
    /// Of the line, from 1.
    [[nodiscard]] int number() const { return number_; }
    /// Why the source cannot be read on; empty while all is well.
    [[nodiscard]] const std::string& error() const { return error_; }
    /// A number that follows from all bytes read so far, in their order.
    [[nodiscard]] std::uint64_t digest() const { return digest_; }

private:
    bool fill();

    SourceBytes& bytes_;
    std::vector<char> buffer_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
    std::string_view line_;
    int number_ = 0;
    std::string error_;
    std::uint64_t digest_ = 14695981039346656037ULL;
};

} // namespace gatewise::importer
