#ifdef _WIN32

#include "platform/Files.h"
#include "platform/Native.h"
#include "platform/NativePath.h"
#include "platform/Text.h"

#include <array>
#include <cstdio>
#include <map>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <shellapi.h>

// Texts go through the wide calls: the program's page is Western whatever page the system is set to.

namespace gatewise::native {

namespace {

/// What the page does not have becomes what looks most like it.
std::string textOfWide(const wchar_t* wide) {
    constexpr UINT kPage = 1252;
    const int size = WideCharToMultiByte(kPage, 0, wide, -1, nullptr, 0, nullptr, nullptr);
    if (size <= 1) return {};
    std::string text(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(kPage, 0, wide, -1, text.data(), size, nullptr, nullptr);
    text.pop_back();
    return text;
}

std::wstring wideOf(const std::string& text) {
    return files::pathOfUtf8(utf8FromText(text)).native();
}

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
        std::array<wchar_t, 255> buffer{};
        GetLocaleInfoW(GetUserDefaultLCID(), kTypes[static_cast<std::size_t>(key)], buffer.data(),
                       static_cast<int>(buffer.size()));
        return textOfWide(buffer.data());
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
        std::array<wchar_t, 255> buffer{};
        GetDateFormatW(GetUserDefaultLCID(), form, &day, nullptr, buffer.data(),
                       static_cast<int>(buffer.size()));
        return textOfWide(buffer.data());
    }
};

class WindowsRegistry : public Registry {
public:
    [[nodiscard]] std::optional<std::string> simulatorFolder() const override {
        HKEY key = nullptr;
        if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Microsoft Games\\Flight Simulator\\8.0",
                          0, KEY_QUERY_VALUE | KEY_WOW64_32KEY, &key) != ERROR_SUCCESS) {
            return std::nullopt;
        }
        std::array<wchar_t, 1024> buffer{};
        DWORD size = static_cast<DWORD>((buffer.size() - 1) * sizeof(wchar_t)); // a last NUL stays ours
        const LSTATUS status = RegQueryValueExW(key, L"EXE Path", nullptr, nullptr,
                                                reinterpret_cast<BYTE*>(buffer.data()), &size);
        RegCloseKey(key);
        if (status != ERROR_SUCCESS) return std::nullopt;
        return files::textOf(std::filesystem::path(buffer.data()));
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
        const std::wstring parameters = wideOf(commandLineWord(parameter));
        const std::wstring place = folder.empty() ? std::wstring() : folderOf(folder);
        const std::wstring program = programOf(file, folder);
        SHELLEXECUTEINFOW info{};
        info.cbSize = sizeof info;
        info.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI;
        info.hwnd = GetDesktopWindow();
        info.lpVerb = L"open";
        info.lpFile = program.c_str();
        info.lpParameters = parameters.c_str();
        info.lpDirectory = place.c_str();
        info.nShow = SW_SHOWNORMAL;
        if (!ShellExecuteExW(&info)) return std::nullopt;
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
    static std::wstring folderOf(const std::string& folder) {
        return files::resolve(folder).make_preferred().native();
    }

    /// A bare name is that of a program in the folder, or else one that the system knows.
    static std::wstring programOf(const std::string& file, const std::string& folder) {
        if (file.find_first_of("\\/:") != std::string::npos) return folderOf(file);
        const auto there = files::resolve(folder + "\\" + file).make_preferred();
        return files::kindOf(there) == files::Kind::File ? there.native() : wideOf(file);
    }

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

void useCallersConsole() {
    const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
    if (output != nullptr && output != INVALID_HANDLE_VALUE) return; // a file or a pipe
    if (AttachConsole(ATTACH_PARENT_PROCESS) == 0) return;
    (void)std::freopen("CONOUT$", "w", stdout);
    (void)std::freopen("CONOUT$", "w", stderr);
}

} // namespace gatewise::native

#endif
