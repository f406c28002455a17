// The services of Windows as the program asks for them. Needs no test library: there is none for this system
// among the distribution's packages.
//     check_services FOLDER           in a new folder: registry, signs and dates of the person's settings,
//     programs that are
//                                     started, the simulator's window, folders, names of files
//     check_services press CLASS KEY  a key for the window in front whose class begins so
//     check_services close CLASS      its end

#include "platform/AppFolder.h"
#include "platform/Files.h"
#include "platform/Native.h"
#include "platform/NativePath.h"
#include "platform/Profile.h"
#include "platform/UserFolders.h"

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace {

using namespace gatewise;
namespace fs = std::filesystem;

int failures = 0;

void expect(bool holds, const char* what) {
    if (holds) return;
    ++failures;
    std::printf("FAILED: %s\n", what);
}

std::string read(const fs::path& file) {
    std::ostringstream out;
    out << std::ifstream(file, std::ios::binary).rdbuf();
    return out.str();
}

constexpr const wchar_t* kSimulatorKey = L"SOFTWARE\\Microsoft\\Microsoft Games\\Flight Simulator\\8.0";

/// What the simulator's installer leaves, as it is for programs of 32 bits.
void leaveWord(const std::wstring& folder, bool terminated) {
    HKEY key = nullptr;
    const LSTATUS made = RegCreateKeyExW(HKEY_LOCAL_MACHINE, kSimulatorKey, 0, nullptr, 0,
                                         KEY_WRITE | KEY_WOW64_32KEY, nullptr, &key, nullptr);
    expect(made == ERROR_SUCCESS, "the registry can be written");
    if (made != ERROR_SUCCESS) return;
    const auto length = static_cast<DWORD>((folder.size() + (terminated ? 1 : 0)) * sizeof(wchar_t));
    RegSetValueExW(key, L"EXE Path", 0, REG_SZ, reinterpret_cast<const BYTE*>(folder.c_str()), length);
    RegCloseKey(key);
}

void theSimulatorsFolderIsRead() {
    const auto registry = native::systemRegistry();
    if (registry->simulatorFolder()) {
        std::puts("A simulator is installed here: its word in the registry is left alone.");
        return;
    }
    leaveWord(L"C:\\Jeux d'\u00e9t\u00e9\\FS2002\\", true);
    expect(registry->simulatorFolder() == "C:\\Jeux d'\xE9t\xE9\\FS2002\\", "the folder is read in the page");
    leaveWord(L"C:\\FS2002", false);
    expect(registry->simulatorFolder() == "C:\\FS2002", "a value without its end is read to its length");
    leaveWord(std::wstring(5000, L'x'), true);
    expect(!registry->simulatorFolder(), "a value that no path can be is none");
    RegDeleteKeyExW(HKEY_LOCAL_MACHINE, kSimulatorKey, KEY_WOW64_32KEY, 0);
    expect(!registry->simulatorFolder(), "without the key there is none");
}

/// A setting of the person at the desk, put back at the end.
class Setting {
public:
    Setting(LCTYPE type, const wchar_t* value) : type_(type) {
        GetLocaleInfoW(LOCALE_USER_DEFAULT, type, before_.data(), static_cast<int>(before_.size()));
        expect(SetLocaleInfoW(LOCALE_USER_DEFAULT, type, value) != 0, "a setting can be changed");
    }
    ~Setting() { SetLocaleInfoW(LOCALE_USER_DEFAULT, type_, before_.data()); }
    Setting(const Setting&) = delete;
    Setting& operator=(const Setting&) = delete;

private:
    LCTYPE type_;
    std::array<wchar_t, 128> before_{};
};

void signsAndDatesAreThePersons() {
    const Setting decimal(LOCALE_SDECIMAL, L",");
    const Setting thousand(LOCALE_STHOUSAND, L"\u00a0");
    const Setting money(LOCALE_SMONDECIMALSEP, L"'");
    const Setting list(LOCALE_SLIST, L";");
    const Setting brief(LOCALE_SSHORTDATE, L"dd.MM.yyyy");
    const Setting full(LOCALE_SLONGDATE, L"d'. of 'MMMM yyyy");
    const auto locale = native::userLocale();
    expect(locale->text(LocaleKey::Decimal) == ",", "the decimal sign is the person's");
    expect(locale->text(LocaleKey::Thousand) == "\xA0", "a sign of the page is one byte");
    expect(locale->text(LocaleKey::MoneyDecimal) == "'", "the sign of money is the person's");
    expect(locale->text(LocaleKey::List) == ";", "the sign of lists is the person's");
    expect(locale->shortDate({2002, 6, 5}) == "05.06.2002", "the short date has the person's form");
    expect(locale->longDate({2002, 6, 5}) == "5. of June 2002", "the long date has the person's form");
    expect(!locale->shortDate({1, 1, 1}).empty(),
           "a day before the system's first has the program's own form");
}

void theClockRuns() {
    const auto clock = native::systemClock();
    TIME_ZONE_INFORMATION zone{};
    GetTimeZoneInformation(&zone);
    expect(clock->bias() == zone.Bias, "the bias is that of standard time");
    expect(clock->now().year >= 2024 && clock->now().second <= 59, "the clock tells the time");
    const std::int64_t before = clock->ticks();
    Sleep(50);
    expect(clock->ticks() > before, "ticks run forward");
}

/// Whether a program ends; a busy machine takes its time.
bool ends(Processes& processes, int process) {
    for (int i = 0; i < 6000 && !processes.ended(process); ++i) Sleep(10);
    return processes.ended(process);
}

/// Copies of this program that write down how they were called (see `helper`).
void programsAreStarted(const fs::path& folder) {
    std::array<wchar_t, 32768> self{};
    GetModuleFileNameW(nullptr, self.data(), static_cast<DWORD>(self.size()));
    const fs::path place = folder / L"Vol d'\u00e9t\u00e9";
    const fs::path work = folder / L"work place";
    fs::create_directories(place);
    fs::create_directories(work);
    fs::copy_file(self.data(), place / "helper.exe", fs::copy_options::overwrite_existing);
    const auto processes = native::systemProcesses({});
    const auto said = [&](const std::string& file, const char* parameter, const fs::path& where) {
        fs::remove(where / "said");
        const auto process = processes->start(file, parameter, files::textOf(where));
        if (!process) return std::string("not started");
        return ends(*processes, *process) ? read(where / "said") : std::string("still running");
    };
    expect(said("helper.exe", "", place) == "0\n", "a bare name is a program of the folder, without a word");
    expect(said("helper.exe", "/gt now \"x\" \\", place) == "1\n/gt now \"x\" \\\n",
           "a parameter with blanks, quotes and a backslash at its end is one");
    expect(said(files::textOf(place) + "\\helper.exe", "/gt", work) == "1\n/gt\n",
           "a program starts in the folder that is named");
    expect(!processes->start("missing.exe", "", files::textOf(place)), "what is not there does not start");
    expect(processes->ended(12345), "a program that was never started has ended");
}

void theSimulatorIsKnownByItsWindow() {
    const auto processes = native::systemProcesses({});
    expect(!processes->simulatorRunning(), "no simulator is up");
    WNDCLASSA kind{};
    kind.lpfnWndProc = DefWindowProcA;
    kind.hInstance = GetModuleHandleA(nullptr);
    kind.lpszClassName = "FS98MAIN";
    RegisterClassA(&kind);
    const HWND window = CreateWindowA("FS98MAIN", "A simulator", WS_OVERLAPPEDWINDOW, 0, 0, 200, 100, nullptr,
                                      nullptr, kind.hInstance, nullptr);
    if (window == nullptr) {
        std::puts("There is no screen here: a window of the simulator is not looked for.");
        return;
    }
    expect(processes->simulatorRunning(), "its window is found");
    processes->bringSimulatorToFront();
    DestroyWindow(window);
    expect(!processes->simulatorRunning(), "without its window it has ended");
}

void foldersAreTheUsers() {
    expect(userDataFolder() == fs::path(_wgetenv(L"LOCALAPPDATA")), "data lie in the user's own folder");
    const UserFolders folders = userFolders();
    expect(!folders.home.empty() && !folders.settings.empty(), "the user has a home");
    expect(folders.documents.size() > 3 && folders.documents[1] == ':', "the user has documents");
}

void aFolderThatCannotBeWrittenIsLeftAlone(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder / "program" / "Images");
    AppFolders found = chooseFolders(folder / "program", folder / "user", error);
    expect(!error && found.delivered == folder / "program", "what came with the program lies beside it");
    expect(found.AppDir == files::textOf(folder / "program"), "a folder that can be written holds all");
    expect(!fs::exists(folder / "user") && !fs::exists(folder / "program" / "gatewise-probe.tmp"),
           "nothing else comes into being");
    // A folder in the place of the file that is tried cannot be written over, whoever one is.
    fs::create_directories(folder / "program" / "gatewise-probe.tmp" / "kept");
    found = chooseFolders(folder / "program", folder / "user", error);
    expect(!error && found.AppDir == files::textOf(folder / "user" / "Gatewise Terminal"),
           "else the user's files lie in the user's folder");
    expect(found.delivered == folder / "program", "and what came with the program stays where it is");
}

void namesOfAnyKindAreFiles(const fs::path& folder) {
    std::wstring deep = L"\u0141\u00f3d\u017a \u6771\u4eac";
    while (deep.size() < 400) deep += L"\\a folder that goes on";
    const fs::path place = folder / deep;
    std::error_code error;
    fs::create_directories(files::reachable(place), error);
    expect(!error, "a folder deeper than 260 characters is made");
    const std::string config = files::textOf(place) + "\\GT.cfg";
    expect(!WriteValue("Main", "Last", "H\xE4rt", config), "a profile is written there");
    expect(read(files::reachable(place / "GT.cfg")) == "[Main]\r\nLast=H\xE4rt\r\n", "byte for byte");
    expect(Profile(files::readAll(config).value_or(Bytes())).find("Main", "Last") == "H\xE4rt",
           "and read again");
    expect(!files::readAll(files::textOf(folder) + "\\NUL"), "a device is no file");
}

/// Windows come from the front to the back.
BOOL CALLBACK keepWindow(HWND window, LPARAM place) {
    auto& [kind, found] = *reinterpret_cast<std::pair<std::wstring, HWND>*>(place);
    std::array<wchar_t, 256> text{};
    GetClassNameW(window, text.data(), static_cast<int>(text.size()));
    if (IsWindowVisible(window) != 0 && std::wstring_view(text.data()).starts_with(kind)) found = window;
    return found == nullptr ? TRUE : FALSE;
}

int message(const std::vector<std::string>& words) {
    std::pair<std::wstring, HWND> wanted{files::pathOfUtf8(words[1]).native(), nullptr};
    EnumWindows(keepWindow, reinterpret_cast<LPARAM>(&wanted));
    if (wanted.second == nullptr) return EXIT_FAILURE;
    if (words[0] == "close")
        return PostMessageW(wanted.second, WM_CLOSE, 0, 0) != 0 ? EXIT_SUCCESS : EXIT_FAILURE;
    const auto key = static_cast<WPARAM>(std::atoi(words[2].c_str()));
    const auto scan = static_cast<LPARAM>(MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_VSC)) << 16;
    const bool down = PostMessageW(wanted.second, WM_KEYDOWN, key, scan | 1) != 0;
    return down && PostMessageW(wanted.second, WM_KEYUP, key, scan | static_cast<LPARAM>(0xC0000001U)) != 0
               ? EXIT_SUCCESS
               : EXIT_FAILURE;
}

/// What a program that was started writes down: how many words it got, and which.
int helper(const std::vector<std::string>& words) {
    std::ofstream out("said.tmp", std::ios::binary);
    out << words.size() << '\n';
    for (const std::string& word : words) out << word << '\n';
    out.close();
    std::error_code error;
    fs::rename("said.tmp", "said", error);
    return error ? EXIT_FAILURE : EXIT_SUCCESS;
}

} // namespace

int main(int count, char** arguments) {
    const auto words = files::commandLine(count, arguments);
    std::array<wchar_t, 32768> self{};
    GetModuleFileNameW(nullptr, self.data(), static_cast<DWORD>(self.size()));
    if (fs::path(self.data()).stem() == "helper") return helper(words);
    if (words.size() == 3 && words[0] == "press") return message(words);
    if (words.size() == 2 && words[0] == "close") return message(words);
    if (words.size() != 1) return 2;
    const fs::path folder = files::pathOfUtf8(words[0]);
    fs::create_directories(folder);
    theSimulatorsFolderIsRead();
    signsAndDatesAreThePersons();
    theClockRuns();
    programsAreStarted(folder);
    theSimulatorIsKnownByItsWindow();
    foldersAreTheUsers();
    aFolderThatCannotBeWrittenIsLeftAlone(folder);
    namesOfAnyKindAreFiles(folder);
    std::printf("services of Windows: %d failed\n", failures);
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
