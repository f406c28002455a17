#include "sound/GateSpeech.h"

#include "platform/FileNames.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/Text.h"

#include <cstdint>
#include <limits>

namespace gatewise {

namespace {

constexpr std::size_t kAirlineWidth = 3;

/// The recording of a code or a name out of the data; empty when there is none, as for what no file name can
/// be.
std::string keyRecording(const std::string& folder, std::string_view key) {
    std::error_code refused;
    const auto path = files::namedIn(folder, lowerCase(trimmed(key)) + ".wav", refused);
    return path && files::fileExists(*path) ? *path : std::string();
}

} // namespace

std::optional<SpokenFlight> splitFlight(const std::string& flightKey) {
    if (flightKey.size() <= kAirlineWidth) return std::nullopt;
    const auto number = parseInteger(std::string_view(flightKey).substr(kAirlineWidth));
    using Limits = std::numeric_limits<std::int16_t>;
    if (!number || *number < Limits::min() || *number > Limits::max()) return std::nullopt;
    const std::string text = formatInteger("0000", *number);
    const auto first = parseInteger(text.substr(0, 2));
    if (!first) return std::nullopt;
    return SpokenFlight{flightKey.substr(0, kAirlineWidth), std::to_string(*first),
                        text.substr(text.size() - 2)};
}

std::string airlineRecording(const std::string& folder, const std::string& airline) {
    const std::string own = keyRecording(folder + "Airlines", airline);
    return own.empty() ? folder + "ann2.wav" : own;
}

SpokenCity cityRecordings(const std::string& folder, const std::string& link, const std::string& city) {
    const std::string own = keyRecording(folder + "Cities", city);
    if (!own.empty()) return {folder + link, own};
    return {folder + "0.wav", folder + "0.wav"};
}

} // namespace gatewise
