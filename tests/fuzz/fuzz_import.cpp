#include "import/Import.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace gatewise;

namespace {

/// The bytes between two of these are a source each.
constexpr char kBetween = '\x1E';

std::vector<importer::Source> sourcesIn(std::string_view text) {
    std::vector<importer::Source> out;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(kBetween), text.size());
        out.push_back(
            importer::textSource("s" + std::to_string(out.size()), std::string(text.substr(0, end))));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return out;
}

void expect(bool holds) {
    if (!holds) std::abort();
}

} // namespace

/// Sources of any bytes, each read as what it looks like: the import makes six tables or says why not.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    importer::ImportOptions options;
    options.skipUnknown = true;
    const auto made = importer::makeImport(sourcesIn(text), {}, options, importer::Job());
    expect(made.faults.empty() ? made.tables.size() == 6 && made.shared.size() == 5 : made.tables.empty());
    expect(!made.report.empty());
    return 0;
}
