#pragma once

#include "drive/Json.h"
#include "platform/Drawing.h"

namespace gatewise::drive {

/// {"lines":[{"tone":..,"points":[[x,y],..]}],"marks":[{"tone":..,"label":..,"at":[x,y]}],
/// "texts":[{"text":..,"at":[x,y],"leftOf":..}],"square":..,"summary":..}, x and y in the unit square.
void write(JsonWriter& json, const Drawing& drawing);

} // namespace gatewise::drive
