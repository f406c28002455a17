#include "drive/SoundRecorder.h"

namespace gatewise::drive {

namespace {

struct ArgumentWriter {
    JsonWriter& json;
    std::string_view appDir;

    void operator()(std::int32_t number) const { json.integer(number); }
    void operator()(bool flag) const { json.boolean(flag); }
    void operator()(const std::string& text) const {
        std::string_view shown = text;
        if (!appDir.empty() && shown.starts_with(appDir)) {
            const std::string_view tail = shown.substr(appDir.size());
            if (tail.starts_with('\\') || tail.starts_with('/')) shown = tail;
        }
        json.text(shown);
    }
};

} // namespace

void SoundRecorder::operation(std::string_view name, std::span<const SoundArgument> arguments) {
    JsonWriter json;
    json.beginArray();
    json.text(name);
    for (const SoundArgument& argument : arguments) std::visit(ArgumentWriter{json, appDir_}, argument);
    json.endArray();
    operations_.push_back(json.line());
}

} // namespace gatewise::drive
