#pragma once

#include "platform/Drawing.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

// The seam to the computer. The program reaches everything outside its own files through this one struct of
// small interfaces; a family of implementations each stands in posix/, windows/ and simulated/.

namespace gatewise {

/// A moment of local time; without anything said, the first of the calendar's year 1.
struct DateTime {
    int year = 1;
    int month = 1;       // 1 to 12
    int day = 1;         // 1 to 31
    int hour = 0;        // 0 to 23
    int minute = 0;      // 0 to 59
    int second = 0;      // 0 to 59
    int millisecond = 0; // 0 to 999
};

/// Days since 30 December 1899, the day in which date serials count, and the way back (midnight).
long long daySerial(const DateTime& moment);
DateTime fromDaySerial(long long days);
/// The day of a serial out of a file; nothing for one that no calendar holds.
std::optional<DateTime> calendarDay(double serial);
/// 0 Sunday to 6 Saturday.
int weekday(const DateTime& moment);

class Clock {
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual DateTime now() const = 0;
    /// Minutes with UTC = local time + bias.
    [[nodiscard]] virtual int bias() const = 0;
    /// Milliseconds on a clock that only runs forward.
    [[nodiscard]] virtual std::int64_t ticks() const = 0;
};

enum class LocaleKey { MoneyDecimal, MoneyThousand, Decimal, Thousand, Time, List };

class Locale {
public:
    virtual ~Locale() = default;
    [[nodiscard]] virtual std::string text(LocaleKey key) const = 0;
    /// "Saturday, June 15, 2002" and "6/15/2002".
    [[nodiscard]] virtual std::string longDate(const DateTime& moment) const;
    [[nodiscard]] virtual std::string shortDate(const DateTime& moment) const;
};

class Desktop {
public:
    virtual ~Desktop() = default;
    [[nodiscard]] virtual int dpi() const = 0;
    virtual void setPointer(bool busy) = 0;
    /// Brings what the forms hold onto the screen at once, in the middle of work.
    virtual void paint() = 0;
    virtual void minimise() = 0;
    /// Opens the help; `page` as the system names it: file, "::", topic.
    virtual void showHelp(const std::string& page) = 0;
    /// Asks where a file is to be written, with a title and a first proposal (a path); nothing when the
    /// person gives up.
    virtual std::optional<std::string> askSavePath(const std::string& title, const std::string& proposal) = 0;
    /// Asks for a file to read, with a title and a first proposal (a path); nothing when the person gives up,
    /// or nobody can be asked.
    virtual std::optional<std::string> askOpenPath(const std::string& title, const std::string& proposal) {
        (void)title, (void)proposal;
        return std::nullopt;
    }
    /// Asks for a folder to read from, with a title; nothing when the person gives up, or nobody can be
    /// asked.
    virtual std::optional<std::string> askFolder(const std::string& title) {
        (void)title;
        return std::nullopt;
    }
    /// Tells the person at the desk something that the system's own screens have no words for (where a
    /// printout lies, what is missing to start the simulator). Does not wait.
    virtual void notify(const std::string& text) = 0;
    /// The same about a file (a path) that the person may want to see: its folder can be opened from there,
    /// and a page for the eye (PDF) itself.
    virtual void notifyFile(const std::string& text, const std::string& file) {
        (void)file;
        notify(text);
    }
    /// Opens a folder, or a file with the program that the person uses for it.
    virtual void open(const std::string& path) { (void)path; }
    /// Puts a text where other programs can paste it from.
    virtual void copy(const std::string& text) = 0;
};

/// The registry value that names the simulator's folder, as read, without its terminator; nothing when the
/// key is absent.
class Registry {
public:
    virtual ~Registry() = default;
    [[nodiscard]] virtual std::optional<std::string> simulatorFolder() const = 0;
};

class Processes {
public:
    virtual ~Processes() = default;
    /// Whether a simulator window is up.
    [[nodiscard]] virtual bool simulatorRunning() = 0;
    virtual void bringSimulatorToFront() = 0;
    /// Starts a program in a folder. `file` is a path, or a name in that folder; the program gets `parameter`
    /// as its only one, blanks and all, and none when it is empty. The result names the process for `ended`;
    /// nothing when the start failed.
    virtual std::optional<int> start(const std::string& file, const std::string& parameter,
                                     const std::string& folder) = 0;
    [[nodiscard]] virtual bool ended(int process) = 0;
};

class Printer {
public:
    virtual ~Printer() = default;
    /// Prints the whole text in one piece, its lines ended by LF or CR LF, in a fixed-pitch font of `size`
    /// points; the drawings stand on a sheet behind it. Where there is no printer, the pages go into a file
    /// and the person is told where. An error: there are no pages, neither on paper nor in a file.
    virtual std::error_code print(const std::string& font, int size, const std::string& text,
                                  const std::vector<Drawing>& drawings) = 0;
    /// The same pages in a file that the person named: a picture where its name ends in ".png", the drawings
    /// above the text, else a PDF. An error: the file is as it was.
    virtual std::error_code save(const std::string& path, const std::string& font, int size,
                                 const std::string& text, const std::vector<Drawing>& drawings) = 0;
};

class Random {
public:
    virtual ~Random() = default;
    /// Next draw, 0 up to but not including 1.
    virtual double draw() = 0;
    /// A fresh seed from the clock.
    virtual void reseed() = 0;
};

class EventLoop {
public:
    virtual ~EventLoop() = default;
    /// Runs events and timers until `done` says so: the wait of a modal screen, which `screen` names.
    virtual void runModal(std::string_view screen, const std::function<bool()>& done) = 0;
    /// Runs events and timers for so many milliseconds, in the middle of work.
    virtual void wait(std::int64_t milliseconds) = 0;
    /// Does long work that touches nothing of the program's own, and returns when it is done. A window lets
    /// events and timers run meanwhile; here it is done on the spot.
    virtual void work(const std::function<void()>& job) { job(); }
};

/// The output of sound; see sound/Device.h.
class SoundDevice;

struct Machine {
    Clock& clock;
    Locale& locale;
    Desktop& desktop;
    Registry& registry;
    Processes& processes;
    Printer& printer;
    Random& random;
    EventLoop& loop;
    SoundDevice& sound;
};

} // namespace gatewise
