#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace gatewise::programs {

/// An XML file as it grows, in UTF-8, each element that holds others on lines of its own. What goes in are
/// texts of the program (Windows-1252); what XML does not allow in them is escaped or, as control characters,
/// left out. Quotation marks stand as they are in the text of an element: some of the readers know positions
/// only so.
///
/// A library would do this too; but below the window the program is built from the standard library alone,
/// and a plan takes no more of XML than these lines.
class Xml {
public:
    using Attributes = std::initializer_list<std::pair<std::string_view, std::string_view>>;

    Xml();

    /// An element that holds others, until its `close`.
    void open(std::string_view tag, Attributes attributes = {});
    void close();

    /// An element with a text or nothing in it.
    void leaf(std::string_view tag, std::string_view text, Attributes attributes = {});
    void empty(std::string_view tag, Attributes attributes);

    /// The whole file; every open element is closed.
    [[nodiscard]] std::string take();

private:
    void start(std::string_view tag, Attributes attributes);

    std::string text_;
    std::vector<std::string> open_;
};

} // namespace gatewise::programs
