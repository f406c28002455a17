#include "Import.h"

#include "import/Import.h"
#include "import/Install.h"
#include "platform/Files.h"
#include "platform/NativePath.h"
#include "unpack/OpenSources.h"

#include <atomic>
#include <cstdio>
#include <optional>

namespace {

using namespace gatewise;
namespace fs = std::filesystem;

/// Steps and tenths of them on standard error.
class TellingJob : public importer::Job {
public:
    void step(std::string_view name) const override {
        std::fprintf(stderr, "%.*s\n", static_cast<int>(name.size()), name.data());
        tenth_ = 0;
        routes_ = name == "Routes";
    }
    void progress(double share) const override {
        const int tenth = static_cast<int>(share * 10);
        int last = tenth_;
        while (routes_ && tenth > last && !tenth_.compare_exchange_weak(last, tenth)) {
        }
        if (routes_ && tenth > last) std::fprintf(stderr, "  %d %%\n", tenth * 10);
    }

private:
    mutable std::atomic<int> tenth_{0};
    mutable std::atomic<bool> routes_{false};
};

struct Arguments {
    std::vector<fs::path> sources;
    std::optional<fs::path> into, tables, report;
    importer::ImportOptions options;
};

std::optional<Arguments> understood(const std::vector<std::string>& words) {
    Arguments out;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        const bool more = i + 1 < words.size();
        if (word == "--every-flight")
            out.options.everyFlight = true;
        else if (word == "--skip-unknown")
            out.options.skipUnknown = true;
        else if (word == "--into" && more)
            out.into = files::pathOfUtf8(words[++i]);
        else if (word == "--name" && more)
            out.options.name = words[++i];
        else if (word == "--tables" && more)
            out.tables = files::pathOfUtf8(words[++i]);
        else if (word == "--report" && more)
            out.report = files::pathOfUtf8(words[++i]);
        else if (word.starts_with("--"))
            return std::nullopt;
        else
            out.sources.push_back(files::pathOfUtf8(word));
    }
    if (out.sources.empty() || !out.into) return std::nullopt;
    return out;
}

int failed(const gt1::Report& report) {
    for (const auto& line : report.errors()) std::fprintf(stderr, "error: %s\n", line.c_str());
    return 1;
}

int failed(const std::vector<std::string>& faults) {
    for (const auto& line : faults) std::fprintf(stderr, "error: %s\n", line.c_str());
    std::fputs("Nothing was written\n", stderr);
    return 1;
}

/// The report into its file, or onto standard output.
void tellReport(const Arguments& arguments, const std::string& text, gt1::Report& report) {
    if (!arguments.report) {
        std::fputs(text.c_str(), stdout);
    } else if (const auto error = files::replace(files::textOf(*arguments.report), std::string_view(text))) {
        report.error({arguments.report->string(), 0, 0, ""}, "a file that can be written", error.message());
    }
}

} // namespace

int importCommand(const std::vector<std::string>& words) {
    const auto arguments = understood(words);
    if (!arguments) return 2;
    std::vector<importer::Source> sources;
    std::vector<std::string> faults;
    for (const fs::path& path : arguments->sources)
        for (auto& source : unpack::openSources(path, faults)) sources.push_back(std::move(source));
    gt1::Report report;
    const gt1::World shared = importer::sharedOf(*arguments->into, report);
    if (report.failed()) return failed(report);
    if (!faults.empty()) return failed(faults);
    const importer::Imported made = importer::makeImport(sources, shared, arguments->options, TellingJob());
    tellReport(*arguments, made.report, report);
    if (!made.faults.empty()) return failed(made.faults);
    if (report.failed() || !importer::install(made, *arguments->into, report)) return failed(report);
    if (arguments->tables) importer::keepTables(made, *arguments->tables, report);
    if (report.failed()) return failed(report);
    std::printf("%s: %zu airports, %zu flights\n", made.name.c_str(), made.counts.airports,
                made.counts.own + made.counts.flown + made.counts.made);
    return 0;
}
