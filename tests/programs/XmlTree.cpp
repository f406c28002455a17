#include "XmlTree.h"

#include <algorithm>
#include <libxml/parser.h>
#include <libxml/xmlschemas.h>
#include <memory>
#include <sstream>
#include <stdexcept>

namespace gatewise::test {

namespace {

std::string textOf(const xmlChar* text) {
    return text == nullptr ? std::string() : reinterpret_cast<const char*>(text);
}

std::string trimmedText(const std::string& text) {
    const auto first = text.find_first_not_of(" \t\r\n");
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

XmlNode treeOf(const xmlNode* node) {
    XmlNode out;
    out.name = textOf(node->name);
    for (const xmlAttr* attribute = node->properties; attribute != nullptr; attribute = attribute->next) {
        for (const xmlNode* part = attribute->children; part != nullptr; part = part->next)
            out.attributes[textOf(attribute->name)] += textOf(part->content);
    }
    for (const xmlNode* child = node->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) out.children.push_back(treeOf(child));
        if (child->type == XML_TEXT_NODE) out.text += textOf(child->content);
    }
    out.text = trimmedText(out.text);
    return out;
}

using Document = std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)>;

Document documentOf(const std::string& bytes) {
    Document document(xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr,
                                    XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING),
                      &xmlFreeDoc);
    if (document == nullptr) throw std::runtime_error("no well-formed XML");
    return document;
}

void keepFault(void* faults, xmlErrorPtr error) {
    *static_cast<std::string*>(faults) += std::string(error->message) + "\n";
}

using Schema = std::unique_ptr<xmlSchema, decltype(&xmlSchemaFree)>;

Schema readSchema(const std::string& name) {
    const std::string path = std::string(GATEWISE_TEST_SOURCE_DIR) + "/tests/programs/schemas/" + name;
    xmlSchemaParserCtxtPtr parser = xmlSchemaNewParserCtxt(path.c_str());
    Schema schema(xmlSchemaParse(parser), &xmlSchemaFree);
    xmlSchemaFreeParserCtxt(parser);
    if (schema == nullptr) throw std::runtime_error("no schema " + name);
    return schema;
}

} // namespace

const XmlNode* XmlNode::maybe(std::string_view child) const {
    const auto found = all(child);
    if (found.size() > 1) throw std::runtime_error(name + " has several " + std::string(child));
    return found.empty() ? nullptr : found.front();
}

const XmlNode& XmlNode::one(std::string_view child) const {
    const XmlNode* found = maybe(child);
    if (found == nullptr) throw std::runtime_error(name + " has no " + std::string(child));
    return *found;
}

std::vector<const XmlNode*> XmlNode::all(std::string_view child) const {
    std::vector<const XmlNode*> out;
    for (const XmlNode& node : children) {
        if (node.name == child) out.push_back(&node);
    }
    return out;
}

void XmlNode::inOrder(std::string_view words) const {
    std::istringstream in{std::string(words)};
    std::size_t at = 0;
    for (std::string word; in >> word;) {
        const char sign = std::string("?*+").find(word.back()) == std::string::npos ? '1' : word.back();
        if (sign != '1') word.pop_back();
        std::size_t count = 0;
        while (at < children.size() && children[at].name == word && (sign == '*' || sign == '+' || count < 1))
            ++at, ++count;
        if (count == 0 && (sign == '1' || sign == '+'))
            throw std::runtime_error(name + " lacks " + word + " in its place");
    }
    if (at != children.size()) throw std::runtime_error(name + " has " + children[at].name + " out of place");
}

void XmlNode::onlyAttributes(std::string_view words) const {
    std::istringstream in{std::string(words)};
    std::size_t count = 0;
    for (std::string word; in >> word; ++count) (void)attribute(word);
    if (count != attributes.size()) throw std::runtime_error(name + " has further attributes");
}

const std::string& XmlNode::attribute(const std::string& attribute) const {
    const auto found = attributes.find(attribute);
    if (found == attributes.end()) throw std::runtime_error(name + " has no attribute " + attribute);
    return found->second;
}

XmlNode parseXml(const std::string& bytes) {
    const Document document = documentOf(bytes);
    return treeOf(xmlDocGetRootElement(document.get()));
}

std::string schemaFaults(const std::string& bytes, const std::string& name) {
    static std::map<std::string, Schema> schemas;
    if (!schemas.contains(name)) schemas.emplace(name, readSchema(name));
    const Schema& schema = schemas.at(name);
    const Document document = documentOf(bytes);
    std::string faults;
    xmlSchemaValidCtxtPtr validator = xmlSchemaNewValidCtxt(schema.get());
    xmlSchemaSetValidStructuredErrors(
        validator, [](void* to, xmlErrorPtr error) { keepFault(to, error); }, &faults);
    const int result = xmlSchemaValidateDoc(validator, document.get());
    xmlSchemaFreeValidCtxt(validator);
    return result == 0 ? "" : "invalid: " + faults;
}

} // namespace gatewise::test
