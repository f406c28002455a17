#pragma once

#include "drive/Json.h"
#include "forms/Control.h"

#include <string_view>

namespace gatewise::drive {

/// What a control shows first of all: its text, its value, its picture, its items. Null for a ground.
void writeMainValue(JsonWriter& json, const Control& control);

/// One property; false when controls of this kind have none of that name.
bool writeProperty(JsonWriter& json, const Control& control, std::string_view name);
bool writeProperty(JsonWriter& json, const Screen& screen, std::string_view name);

/// Every control of a screen with all its properties.
void writeScreen(JsonWriter& json, const Screen& screen);

} // namespace gatewise::drive
