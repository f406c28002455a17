#ifdef _WIN32

#include "platform/Files.h"
#include "platform/Native.h"
#include "platform/Text.h"

#include <array>
#include <map>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <shellapi.h>

// Texts go to the ANSI calls as they are: the program's texts are those of the ANSI code page.

namespace gatewise::native {

namespace {

class WindowsClock : public Clock {
public:
    [[nodiscard]] DateTime now() const override {
        SYSTEMTIME t{};
        GetLocalTime(&t);
        return {t.wYear, t.wMonth, t.wDay, t.wHour, t.wMinute, t.wSecond, t.wMilliseconds};
    }

    /// Standard time alone, also in summer: daylight saving is no part of the bias.
    [[nodiscard]] int bias() const override {
        TIME_ZONE_INFORMATION zone{};
        GetTimeZoneInformation(&zone);
        return static_cast<int>(zone.Bias);
    }

    [[nodiscard]] std::int64_t ticks() const override { return static_cast<std::int64_t>(GetTickCount64()); }
};

class WindowsLocale : public Locale {
public:
    [[nodiscard]] std::string text(LocaleKey key) const override {
        // By LocaleKey.
        constexpr std::array<LCTYPE, 6> kTypes = {LOCALE_SMONDECIMALSEP, LOCALE_SMONTHOUSANDSEP,
                                                  LOCALE_SDECIMAL,       LOCALE_STHOUSAND,
                                                  LOCALE_STIME,          LOCALE_SLIST};
        std::array<char, 255> buffer{};
        const int length = GetLocaleInfoA(GetUserDefaultLCID(), kTypes[static_cast<std::size_t>(key)],
                                          buffer.data(), static_cast<int>(buffer.size()));
        return length > 0 ? std::string(buffer.data(), static_cast<std::size_t>(length - 1)) : std::string();
    }

    [[nodiscard]] std::string longDate(const DateTime& moment) const override {
        const std::string text = date(DATE_LONGDATE, moment);
        return text.empty() ? Locale::longDate(moment) : text;
    }
    [[nodiscard]] std::string shortDate(const DateTime& moment) const override {
        const std::string text = date(DATE_SHORTDATE, moment);
        return text.empty() ? Locale::shortDate(moment) : text;
    }

private:
    static std::string date(DWORD form, const DateTime& moment) {
        SYSTEMTIME day{};
        day.wYear = static_cast<WORD>(moment.year);
        day.wMonth = static_cast<WORD>(moment.month);
        day.wDay = static_cast<WORD>(moment.day);
        std::array<char, 255> buffer{};
        const int length = GetDateFormatA(GetUserDefaultLCID(), form, &day, nullptr, buffer.data(),
                                          static_cast<int>(buffer.size()));
        return length > 0 ? std::string(buffer.data()) : std::string();
    }
};

class WindowsRegistry : public Registry {
public:
    [[nodiscard]] std::optional<std::string> simulatorFolder() const override {
        HKEY key = nullptr;
        if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, "SOFTWARE\\Microsoft\\Microsoft Games\\Flight Simulator\\8.0",
                          0, KEY_QUERY_VALUE | KEY_WOW64_32KEY, &key) != ERROR_SUCCESS) {
            return std::nullopt;
        }
        std::array<char, 1024> buffer{};
        DWORD size = static_cast<DWORD>(buffer.size() - 1);
        const LSTATUS status = RegQueryValueExA(key, "EXE Path", nullptr, nullptr,
                                                reinterpret_cast<BYTE*>(buffer.data()), &size);
        RegCloseKey(key);
        if (status != ERROR_SUCCESS) return std::nullopt;
        return std::string(buffer.data());
    }
};

class WindowsProcesses : public Processes {
public:
    ~WindowsProcesses() override {
        for (const auto& [name, handle] : started_) CloseHandle(handle);
    }

    [[nodiscard]] bool simulatorRunning() override { return simulatorWindow() != nullptr; }

    void bringSimulatorToFront() override {
        if (HWND window = simulatorWindow()) SetForegroundWindow(window);
    }

    std::optional<int> start(const std::string& file, const std::string& parameter,
                             const std::string& folder) override {
        const std::string parameters = commandLineWord(parameter);
        SHELLEXECUTEINFOA info{};
        info.cbSize = sizeof info;
        info.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI;
        info.hwnd = GetDesktopWindow();
        info.lpVerb = "open";
        info.lpFile = file.c_str();
        info.lpParameters = parameters.c_str();
        info.lpDirectory = folder.c_str();
        info.nShow = SW_SHOWNORMAL;
        if (!ShellExecuteExA(&info)) return std::nullopt;
        const int name = ++last_;
        if (info.hProcess != nullptr) started_[name] = info.hProcess;
        return name;
    }

    [[nodiscard]] bool ended(int process) override {
        const auto found = started_.find(process);
        if (found == started_.end()) return true;
        DWORD code = 0;
        if (GetExitCodeProcess(found->second, &code) && code == STILL_ACTIVE) return false;
        CloseHandle(found->second);
        started_.erase(found);
        return true;
    }

private:
    static HWND simulatorWindow() { return FindWindowA("FS98MAIN", nullptr); }

    std::map<int, HANDLE> started_;
    int last_ = 0;
};

} // namespace

std::unique_ptr<Clock> systemClock() {
    return std::make_unique<WindowsClock>();
}

std::unique_ptr<Locale> userLocale() {
    return std::make_unique<WindowsLocale>();
}

std::unique_ptr<Registry> systemRegistry() {
    return std::make_unique<WindowsRegistry>();
}

/// A start that fails is not reported.
std::unique_ptr<Processes> systemProcesses(Notify) {
    return std::make_unique<WindowsProcesses>();
}

} // namespace gatewise::native

#endif
