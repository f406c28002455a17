#include "platform/Files.h"
#include "platform/Native.h"
#include "platform/Numbers.h"
#include "platform/Text.h"

#include <chrono>
#include <random>

// What needs nothing but the standard library.

namespace gatewise::native {

namespace {

class SystemRandom : public Random {
public:
    SystemRandom() { SystemRandom::reseed(); }
    double draw() override { return static_cast<double>(generator_()) / 4294967296.0; }
    void reseed() override {
        const auto now = std::chrono::system_clock::now().time_since_epoch().count();
        generator_.seed(static_cast<std::uint32_t>(now ^ (now >> 32)));
    }

private:
    std::mt19937 generator_;
};

class FilePrinter : public Printer {
public:
    FilePrinter(std::string folder, const Clock& clock, Notify notify)
        : folder_(std::move(folder)), clock_(clock), notify_(std::move(notify)) {}

    std::error_code print(const std::string&, int, const std::string& text,
                          const std::vector<Drawing>&) override {
        std::error_code error;
        std::filesystem::create_directories(files::resolve(folder_), error);
        if (error) return error;
        const std::string file = freeName();
        error = files::replace(file, std::string_view(text));
        if (!error && notify_)
            notify_("The printed text lies in " + files::textOf(files::resolve(file)) + ".");
        return error;
    }

private:
    /// "Printout 2002-06-15 083000.txt", with a number behind where that is taken.
    [[nodiscard]] std::string freeName() const {
        const DateTime now = clock_.now();
        const auto two = [](int value) { return formatInteger("00", value); };
        const std::string stem = folder_ + "\\Printout " + std::to_string(now.year) + "-" + two(now.month) +
                                 "-" + two(now.day) + " " + two(now.hour) + two(now.minute) + two(now.second);
        std::string name = stem + ".txt";
        for (int i = 2; files::fileExists(name); ++i) name = stem + " " + std::to_string(i) + ".txt";
        return name;
    }

    std::string folder_;
    const Clock& clock_;
    Notify notify_;
};

} // namespace

std::unique_ptr<Random> systemRandom() {
    return std::make_unique<SystemRandom>();
}

std::unique_ptr<Printer> filePrinter(std::string folder, const Clock& clock, Notify notify) {
    return std::make_unique<FilePrinter>(std::move(folder), clock, std::move(notify));
}

} // namespace gatewise::native
