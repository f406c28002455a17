#pragma once

#include "import/Imported.h"
#include "import/Job.h"
#include "import/Source.h"

#include <vector>

// The import as a whole: from public tables to our plain ones. Nothing is read but the sources, nothing is
// written; the same sources in any order give the same tables.

namespace gatewise::importer {

/// Makes a further data set beside the sets that share `shared`.
Imported makeImport(const std::vector<Source>& sources, const gt1::World& shared,
                    const ImportOptions& options, const Job& job);

} // namespace gatewise::importer
