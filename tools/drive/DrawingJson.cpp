#include "drive/DrawingJson.h"

namespace gatewise::drive {

namespace {

const char* nameOf(Tone tone) {
    switch (tone) {
    case Tone::Grid:
        return "grid";
    case Tone::Route:
        return "route";
    case Tone::Airport:
        return "airport";
    case Tone::Fix:
        return "fix";
    case Tone::Top:
        return "top";
    case Tone::Step:
        return "step";
    case Tone::Water:
        return "water";
    case Tone::Land:
        return "land";
    case Tone::Coast:
        return "coast";
    case Tone::Border:
        return "border";
    case Tone::Vor:
        return "vor";
    case Tone::Ndb:
        return "ndb";
    case Tone::Alternate:
        return "alternate";
    case Tone::Flight:
        return "flight";
    case Tone::Other:
        return "other";
    case Tone::Runway:
        return "runway";
    case Tone::Chosen:
        return "chosen";
    case Tone::Level:
        return "level";
    case Tone::Bar:
        return "bar";
    }
    return "";
}

void writePoint(JsonWriter& json, const DrawingPoint& point) {
    json.beginArray();
    json.number(point.x);
    json.number(point.y);
    json.endArray();
}

/// What can be picked tells by which number.
void writeId(JsonWriter& json, int id) {
    if (id < 0) return;
    json.key("id");
    json.integer(id);
}

void writeLine(JsonWriter& json, const DrawingLine& line) {
    json.key("tone");
    json.text(nameOf(line.tone));
    json.key("points");
    json.beginArray();
    for (const DrawingPoint& point : line.points) writePoint(json, point);
    json.endArray();
    if (line.width > 0) {
        json.key("width");
        json.number(line.width);
    }
    writeId(json, line.id);
}

void writeMark(JsonWriter& json, const DrawingMark& mark) {
    json.key("tone");
    json.text(nameOf(mark.tone));
    json.key("label");
    json.text(mark.label);
    json.key("at");
    writePoint(json, mark.at);
    writeId(json, mark.id);
    if (mark.words.empty()) return;
    json.key("words");
    json.text(mark.words);
}

void writeWords(JsonWriter& json, const DrawingText& words) {
    json.key("text");
    json.text(words.text);
    json.key("at");
    writePoint(json, words.at);
    json.key("leftOf");
    json.boolean(words.leftOf);
}

template<class List, class Write>
void writeAll(JsonWriter& json, const char* name, const List& list, Write&& writeOne) {
    json.key(name);
    json.beginArray();
    for (const auto& one : list) {
        json.beginObject();
        writeOne(json, one);
        json.endObject();
    }
    json.endArray();
}

} // namespace

void write(JsonWriter& json, const Drawing& drawing) {
    json.beginObject();
    writeAll(json, "lines", drawing.lines, writeLine);
    writeAll(json, "marks", drawing.marks, writeMark);
    writeAll(json, "texts", drawing.texts, writeWords);
    json.key("square");
    json.boolean(drawing.square);
    json.key("summary");
    json.text(drawing.summary);
    json.endObject();
}

} // namespace gatewise::drive
