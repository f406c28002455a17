#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>

namespace gatewise::importer {

/// The unpacked bytes of a source, from its beginning to its end.
class SourceBytes {
public:
    virtual ~SourceBytes() = default;
    /// Fills `out` as far as bytes are at hand; 0 at the end, and on an error, which error() then tells.
    virtual std::size_t read(std::span<char> out) = 0;
    /// What went wrong, in words for a person; empty while all is well.
    [[nodiscard]] virtual std::string error() const = 0;
};

/// A table somebody downloaded, under the name that the report gives it. It can be read any number of times.
struct Source {
    std::string name;
    std::function<std::unique_ptr<SourceBytes>()> open;
};

/// A source whose bytes are at hand.
Source textSource(std::string name, std::string text);

} // namespace gatewise::importer
