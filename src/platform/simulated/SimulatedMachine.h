#pragma once

#include "platform/simulated/SimulatedLoop.h"

#include <array>
#include <deque>
#include <random>
#include <string>
#include <vector>

// A machine that only writes down what it was asked for. Texts are Windows-1252, as everywhere in the
// program.

namespace gatewise::simulated {

class SimulatedLocale : public Locale {
public:
    [[nodiscard]] std::string text(LocaleKey key) const override {
        return texts_[static_cast<std::size_t>(key)];
    }
    void set(LocaleKey key, std::string text) { texts_[static_cast<std::size_t>(key)] = std::move(text); }

private:
    std::array<std::string, 6> texts_ = {".", ",", ".", ",", ":", ","}; // by LocaleKey
};

class SimulatedDesktop : public Desktop {
public:
    [[nodiscard]] int dpi() const override { return dotsPerInch; }
    void setPointer(bool busyNow) override { busy = busyNow; }
    void paint() override {}
    void minimise() override { minimised = true; }
    void showHelp(const std::string& page) override { helpPages.push_back(page); }
    /// Nobody sits at this desk: the proposal is taken.
    std::optional<std::string> askSavePath(const std::string&, const std::string& proposal) override {
        return proposal;
    }
    std::optional<std::string> askOpenPath(const std::string&, const std::string& proposal) override {
        return proposal;
    }
    void notify(const std::string& text) override { notices.push_back(text); }
    void open(const std::string& path) override { opened.push_back(path); }
    void copy(const std::string& text) override { clipboard = text; }

    int dotsPerInch = 96;
    bool busy = false;
    bool minimised = false;
    std::vector<std::string> helpPages;
    std::vector<std::string> notices;
    std::vector<std::string> opened; // folders and files
    std::string clipboard;
};

class SimulatedRegistry : public Registry {
public:
    [[nodiscard]] std::optional<std::string> simulatorFolder() const override { return folder; }
    std::optional<std::string> folder;
};

/// A start, or the simulator brought to the front.
struct Launch {
    bool foreground = false;
    std::string file = {}, parameters = {}, folder = {};
};

/// Programs that are started end at once.
class SimulatedProcesses : public Processes {
public:
    [[nodiscard]] bool simulatorRunning() override { return running; }
    void bringSimulatorToFront() override { launches.push_back({.foreground = true}); }
    std::optional<int> start(const std::string& file, const std::string& parameters,
                             const std::string& folder) override {
        launches.push_back({.file = file, .parameters = parameters, .folder = folder});
        return ++last_;
    }
    [[nodiscard]] bool ended(int) override { return true; }

    bool running = false;
    std::vector<Launch> launches; // since they were last taken

private:
    int last_ = 0;
};

struct PrintedText {
    std::string font;
    int size = 0;
    std::string text;
    std::string file = {}; // that the pages were saved in; empty: paper
};

class SimulatedPrinter : public Printer {
public:
    std::error_code print(const std::string& font, int size, const std::string& text,
                          const std::vector<Drawing>&) override {
        printed.push_back({font, size, text});
        return {};
    }
    std::error_code save(const std::string& path, const std::string& font, int size, const std::string& text,
                         const std::vector<Drawing>&) override {
        printed.push_back({font, size, text, path});
        return {};
    }
    std::vector<PrintedText> printed; // since they were last taken
};

/// Draws that were given first, then those of a generator with a fixed seed.
class SimulatedRandom : public Random {
public:
    double draw() override;
    /// The clock of this machine stands still and so does its seed.
    void reseed() override {}

    void seed(std::uint32_t number) { generator_.seed(number); }
    /// The next draws, in place of those given before and not used yet.
    void setDraws(std::deque<double> draws) { draws_ = std::move(draws); }

private:
    std::deque<double> draws_;
    std::mt19937 generator_{1};
};

/// All of it, with the sound device that the caller brings.
struct SimulatedMachine {
    explicit SimulatedMachine(SoundDevice& sound)
        : machine{clock, locale, desktop, registry, processes, printer, random, loop, sound} {}

    SimulatedClock clock;
    SimulatedLocale locale;
    SimulatedDesktop desktop;
    SimulatedRegistry registry;
    SimulatedProcesses processes;
    SimulatedPrinter printer;
    SimulatedRandom random;
    SimulatedLoop loop{clock};
    Machine machine;
};

} // namespace gatewise::simulated
