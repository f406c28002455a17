#pragma once

#include "session/Settings.h"
#include "work/ExportKinds.h"

#include <span>

namespace gatewise {

/// A flight management computer that keeps company routes in fmsplans.fmc.
struct FmcProduct {
    int Settings::*wanted; // its box on the hub
    const char* folder;    // below FsPath
};

std::span<const FmcProduct> fmcProducts();

/// Whether the product has its file of routes.
bool hasPlansFile(const std::string& FsPath, const FmcProduct& product);

/// The plan into the routes of every product that is wanted and there. A file that cannot be read or written,
/// or is too long, stays as it is, and nobody is told.
void exportToFmc(const Settings& settings, const Plan& plan, const NumberLocale& numbers);

} // namespace gatewise
