#include "drive/Commands.h"

#include <charconv>

namespace gatewise::drive {

namespace {

constexpr const char* kOnlyBefore = "only before start";

/// Takes digits off the front, and the sign that must stand behind them (none at the end).
bool takeField(std::string_view& rest, int& value, char behind) {
    const auto* last = rest.data() + rest.size();
    const auto [end, error] = std::from_chars(rest.data(), last, value);
    if (error != std::errc() || value < 0) return false;
    rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
    if (behind == '\0') return true;
    if (!rest.starts_with(behind)) return false;
    rest.remove_prefix(1);
    return true;
}

/// "2002-06-15 08:30:00" with up to three digits of a fraction behind.
std::optional<DateTime> parseMoment(std::string_view text) {
    DateTime m;
    if (!takeField(text, m.year, '-') || !takeField(text, m.month, '-') || !takeField(text, m.day, ' ') ||
        !takeField(text, m.hour, ':') || !takeField(text, m.minute, ':') ||
        !takeField(text, m.second, '\0')) {
        return std::nullopt;
    }
    m.millisecond = 0;
    if (text.starts_with('.')) {
        std::string digits(text.substr(1));
        if (digits.empty() || digits.size() > 3) return std::nullopt;
        digits.resize(3, '0');
        text = digits;
        if (!takeField(text, m.millisecond, '\0')) return std::nullopt;
    }
    if (!text.empty() || m.year < 1900 || m.year > 9999 || m.month < 1 || m.month > 12 || m.day < 1)
        return std::nullopt;
    if (m.hour > 23 || m.minute > 59 || m.second > 59) return std::nullopt;
    const DateTime back = fromDaySerial(daySerial(m));
    if (back.month != m.month || back.day != m.day) return std::nullopt;
    return m;
}

Outcome now(Session& session, std::string_view rest) {
    const auto moment = parseMoment(rest);
    if (!moment) return "expected a moment as 2002-06-15 08:30:00";
    session.machine().clock.set(*moment);
    return kDone;
}

Outcome bias(Session& session, std::string_view rest) {
    if (session.started()) return kOnlyBefore;
    const auto minutes = integerArgument(rest);
    if (!minutes || *minutes < -32768 || *minutes > 32767) return "expected a number of minutes";
    session.machine().clock.setBias(static_cast<int>(*minutes));
    return kDone;
}

Outcome locale(Session& session, std::string_view rest) {
    constexpr std::pair<const char*, LocaleKey> kKeys[] = {
        {"smondecimalsep", LocaleKey::MoneyDecimal},
        {"smonthousandsep", LocaleKey::MoneyThousand},
        {"sdecimal", LocaleKey::Decimal},
        {"sthousand", LocaleKey::Thousand},
        {"stime", LocaleKey::Time},
        {"slist", LocaleKey::List},
    };
    if (session.started()) return kOnlyBefore;
    const std::string_view name = takeWord(rest);
    const auto text = textArgument(rest);
    if (!text) return "broken text";
    for (const auto& [key, value] : kKeys) {
        if (key != name) continue;
        session.machine().locale.set(value, *text);
        return kDone;
    }
    return "no locale key " + std::string(name);
}

Outcome dpi(Session& session, std::string_view rest) {
    if (session.started()) return kOnlyBefore;
    const auto dots = integerArgument(rest);
    if (!dots || *dots < 1 || *dots > 10000) return "expected a number of dots";
    session.machine().desktop.dotsPerInch = static_cast<int>(*dots);
    return kDone;
}

Outcome registry(Session& session, std::string_view rest) {
    const auto path = pathArgument(rest);
    if (!path) return "broken text";
    auto& folder = session.machine().registry.folder;
    if (path->empty())
        folder.reset();
    else
        folder = *path;
    return kDone;
}

Outcome simulator(Session& session, std::string_view rest) {
    if (rest != "running" && rest != "absent") return "expected running or absent";
    session.machine().processes.running = rest == "running";
    return kDone;
}

Outcome draws(Session& session, std::string_view rest) {
    std::deque<double> list;
    while (!rest.empty()) {
        const std::string_view word = takeWord(rest);
        if (word.empty()) continue;
        const auto draw = numberArgument(word);
        if (!draw || !(*draw >= 0 && *draw < 1)) return "a draw lies in [0, 1)";
        list.push_back(*draw);
    }
    session.machine().random.setDraws(std::move(list));
    return kDone;
}

Outcome seed(Session& session, std::string_view rest) {
    const auto number = integerArgument(rest);
    if (!number) return "expected a number";
    session.machine().random.seed(static_cast<std::uint32_t>(*number));
    return kDone;
}

constexpr Command kMachineCommands[] = {
    {"now", "2002-06-15 08:30:00[.250]", "sets the local time", now, true},
    {"bias", "MINUTES", "sets the time zone: UTC = local + bias", bias, true},
    {"locale", "KEY [TEXT]", "sets a sign of the locale", locale, true},
    {"dpi", "N", "sets the dots per inch of the desktop", dpi, true},
    {"registry", "[PATH]", "sets the simulator's folder in the registry", registry, true},
    {"simulator", "running|absent", "says whether a simulator window is found", simulator, true},
    {"draws", "X Y ...", "gives the next random draws, each in [0, 1)", draws, true},
    {"seed", "N", "seeds the random generator", seed, true},
};

} // namespace

std::span<const Command> machineCommands() {
    return kMachineCommands;
}

} // namespace gatewise::drive
