#pragma once

#include "platform/Text.h"

#include <array>
#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// One line of JSON at a time. Texts go in as Windows-1252 and stand in the line as UTF-8.

namespace gatewise::drive {

class JsonWriter {
public:
    [[nodiscard]] const std::string& line() const { return line_; }

    void beginObject() { open('{'); }
    void endObject() { line_ += '}'; }
    void beginArray() { open('['); }
    void endArray() { line_ += ']'; }
    void key(std::string_view name);

    void text(std::string_view windows1252);
    void utf8(std::string_view text);
    void boolean(bool value);
    void integer(long long value);
    void null();
    /// Shortest texts of at most 7 and 15 digits; what is no finite number is null.
    void single(float value);
    void number(double value);
    /// A value that is JSON already.
    void raw(std::string_view json);

    /// Singles get the fewest digits that read back as the same value instead.
    bool exactSingles = false;

private:
    void open(char bracket);
    void separate();

    std::string line_;
};

/// A type with a field list, as the records of the files have.
template<class T>
concept Record = requires(const T& record) {
    T::fields(record, [](const char*, const auto&) {});
};

inline void write(JsonWriter& json, bool value) {
    json.boolean(value);
}
template<std::integral T>
requires(!std::same_as<T, bool>) void write(JsonWriter& json, T value) {
    json.integer(static_cast<long long>(value));
}
inline void write(JsonWriter& json, float value) {
    json.single(value);
}
inline void write(JsonWriter& json, double value) {
    json.number(value);
}
inline void write(JsonWriter& json, const std::string& value) {
    json.text(value);
}
inline void write(JsonWriter& json, const char* value) {
    json.text(value);
}
template<std::size_t N> void write(JsonWriter& json, const FixedText<N>& value) {
    json.text(value.view());
}
template<Record T> void write(JsonWriter& json, const T& record);
template<class T> void write(JsonWriter& json, const std::vector<T>& list);
template<class T, std::size_t N> void write(JsonWriter& json, const std::array<T, N>& list);

/// The first `count` elements, fewer when there are not so many.
template<class List> void writeList(JsonWriter& json, const List& list, long long count) {
    json.beginArray();
    for (const auto& element : list) {
        if (count-- <= 0) break;
        write(json, element);
    }
    json.endArray();
}

template<class T> void write(JsonWriter& json, const std::vector<T>& list) {
    writeList(json, list, static_cast<long long>(list.size()));
}
template<class T, std::size_t N> void write(JsonWriter& json, const std::array<T, N>& list) {
    writeList(json, list, static_cast<long long>(N));
}
template<Record T> void write(JsonWriter& json, const T& record) {
    json.beginObject();
    T::fields(record, [&](const char* name, const auto& field) {
        json.key(name);
        write(json, field);
    });
    json.endObject();
}

/// Takes a JSON string off the front of `input`, as UTF-8; nothing, with `input` untouched, when none that is
/// well formed stands there.
std::optional<std::string> takeJsonString(std::string_view& input);

} // namespace gatewise::drive
