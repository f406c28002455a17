#include "programs/Xml.h"

#include "platform/Text.h"
#include "programs/Figures.h"

namespace gatewise::programs {

namespace {

constexpr std::size_t kIndent = 4;

std::string escaped(std::string_view text, bool quotes) {
    std::string out;
    for (const char c : utf8FromText(lineText(text))) {
        if (c == '&')
            out += "&amp;";
        else if (c == '<')
            out += "&lt;";
        else if (c == '>')
            out += "&gt;";
        else if (c == '"' && quotes)
            out += "&quot;";
        else
            out += c;
    }
    return out;
}

} // namespace

Xml::Xml() : text_("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n") {}

void Xml::start(std::string_view tag, Attributes attributes) {
    text_.append(kIndent * open_.size(), ' ');
    text_ += '<';
    text_ += tag;
    for (const auto& [name, value] : attributes) {
        text_ += ' ';
        text_ += name;
        text_ += "=\"" + escaped(value, true) + '"';
    }
}

void Xml::open(std::string_view tag, Attributes attributes) {
    start(tag, attributes);
    text_ += ">\n";
    open_.emplace_back(tag);
}

void Xml::close() {
    const std::string tag = std::move(open_.back());
    open_.pop_back();
    text_.append(kIndent * open_.size(), ' ');
    text_ += "</" + tag + ">\n";
}

void Xml::leaf(std::string_view tag, std::string_view text, Attributes attributes) {
    start(tag, attributes);
    text_ += '>' + escaped(text, false) + "</";
    text_ += tag;
    text_ += ">\n";
}

void Xml::empty(std::string_view tag, Attributes attributes) {
    start(tag, attributes);
    text_ += "/>\n";
}

std::string Xml::take() {
    while (!open_.empty()) close();
    return std::move(text_);
}

} // namespace gatewise::programs
