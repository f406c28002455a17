#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

// XML through libxml2, as a plain tree.

namespace gatewise::test {

struct XmlNode {
    std::string name;
    std::string text; // of its own, blanks trimmed at both ends
    std::map<std::string, std::string> attributes;
    std::vector<XmlNode> children;

    /// The only child of that name; throws when there is none or there are several.
    [[nodiscard]] const XmlNode& one(std::string_view child) const;
    /// The child of that name or nullptr; throws when there are several.
    [[nodiscard]] const XmlNode* maybe(std::string_view child) const;
    [[nodiscard]] std::vector<const XmlNode*> all(std::string_view child) const;
    /// Throws unless the children's names are these words in this order; a word that ends in "?" may be
    /// missing, in
    /// "*" come any number of times, in "+" once or more.
    void inOrder(std::string_view words) const;
    /// Throws unless the attributes are just these.
    void onlyAttributes(std::string_view words) const;
    [[nodiscard]] const std::string& attribute(const std::string& name) const;
};

/// Throws on anything that is no well-formed XML in UTF-8.
XmlNode parseXml(const std::string& bytes);

/// Empty when the document is valid by the schema in tests/programs/schemas, else what the parser says.
std::string schemaFaults(const std::string& bytes, const std::string& schema);

} // namespace gatewise::test
