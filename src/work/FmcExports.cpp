#include "work/FmcExports.h"

#include "export/ExportFMC.h"
#include "platform/Files.h"

namespace gatewise {

namespace {

constexpr FmcProduct kProducts[] = {
    {&Settings::Fmc747, "\\Kestrelfold Software\\Fmc"},
    {&Settings::PF2Kfmc, ""},
    {&Settings::CPfmc, "\\Corporate Pilot\\Fmc"},
};

void exportFmcPlan(const std::string& folder, const Plan& plan, const NumberLocale& numbers) {
    const std::string path = folder + "\\fmsplans.fmc";
    (void)files::rewrite(path, [&](const Bytes& old) -> std::optional<Bytes> {
        const auto plans = fmcPlans(plan, asText(old), numbers);
        if (!plans) return std::nullopt;
        return Bytes(plans->begin(), plans->end());
    });
}

} // namespace

std::span<const FmcProduct> fmcProducts() {
    return kProducts;
}

bool hasPlansFile(const std::string& FsPath, const FmcProduct& product) {
    return files::fileExists(FsPath + product.folder + "\\FMSplans.fmc");
}

void exportToFmc(const Settings& settings, const Plan& plan, const NumberLocale& numbers) {
    for (const FmcProduct& product : kProducts) {
        if (settings.*product.wanted == 1 && hasPlansFile(settings.FsPath, product))
            exportFmcPlan(settings.FsPath + product.folder, plan, numbers);
    }
}

} // namespace gatewise
