#include "work/ExportKinds.h"

#include "export/ExportACSGPS.h"
#include "export/ExportFS2000.h"
#include "export/ExportFSNav.h"
#include "export/ExportRC2.h"
#include "export/ExportSB.h"
#include "platform/FileNames.h"
#include "platform/Files.h"
#include "work/Notices.h"

namespace gatewise {

namespace {

constexpr const char* kFsNavigatorPlans = "\\Modules\\FSNavigator\\Plan";

ExportFlight flightOf(const ExportJob& job) {
    return {job.stem, job.HaveAlternate};
}

MagneticTable magneticTable(const ExportJob& job) {
    return MagneticTable(job.FsPath);
}

/// The message of a file that stands, else what kept it from standing.
Notice written(const std::error_code& error, Message message, std::string_view routine,
               const std::string& path) {
    if (error) return failure(error, routine, path);
    Notice notice = inform(message);
    notice.file = path;
    return notice;
}

/// The message stands whatever became of the file; beside it stands the truth.
Notice exportFs2000(const ExportJob& job, const std::string& path) {
    Notice notice = inform(Message::Fs2000Exported);
    notice.file = singleBackslashes(path);
    if (const auto error = writeFs2000Plan(job, path)) notice.reason = plainReason(error);
    return notice;
}

Notice ExportRC2(const ExportJob& job, const std::string& path) {
    const ExportMoment moment{job.longDate, twelveHourTime(job.now)};
    const auto plan = rc2Plan(job.plan, flightOf(job), moment, magneticTable(job), job.numbers);
    if (!plan) return warn(Message::PlanTooLong);
    return written(files::replace(singleBackslashes(path), *plan), Message::RadarContactExported, "ExportRC2",
                   singleBackslashes(path));
}

Notice ExportACSGPS(const ExportJob& job, const std::string& path) {
    return written(files::replace(singleBackslashes(path), acsGpsPlan(job.plan, job.numbers)),
                   Message::AcsGpsExported, "ExportACSGPS", singleBackslashes(path));
}

Notice ExportSB(const ExportJob& job, const std::string& path) {
    return written(
        files::replace(singleBackslashes(path), squawkBoxPlan(job.plan, magneticTable(job), job.numbers)),
        Message::SquawkBoxExported, "ExportSB", singleBackslashes(path));
}

/// The name is always that of the flight, in FSNavigator's own folder.
Notice ExportFSNav(const ExportJob& job, const std::string&) {
    std::error_code error;
    const auto path = files::namedIn(job.FsPath + kFsNavigatorPlans, job.stem + ".fsn", error);
    // What is there but cannot be read must not lose its tail.
    if (path)
        error = files::rewrite(*path, [&](const Bytes& old) -> std::optional<Bytes> {
            return fsnavPlan(job.plan, flightOf(job), old);
        });
    return written(error, Message::FsNavigatorExported, "ExportFSNav", path.value_or(""));
}

constexpr ExportKind kExports[] = {
    {.kind = "fs2k",
     .title = "Export FS2000 Flight Plan",
     .typeText = "FS2000 Plan (*.pln)",
     .extension = ".pln",
     .folder = "\\flights\\myflts",
     .write = exportFs2000},
    {.kind = "rc2",
     .title = "Export Radar Contact Flight Plan",
     .typeText = "Radar Contact (*.apl)",
     .extension = ".apl",
     .word = "RadarContact",
     .write = ExportRC2},
    {.kind = "sb",
     .title = "Export SquawkBox Flight Plan",
     .typeText = "SquawkBox Files (*.sbp)",
     .extension = ".sbp",
     .word = "SB",
     .write = ExportSB},
    {.kind = "acs",
     .title = "Export ACS-GPS Flight Plan",
     .typeText = "ACS-GPS Files (*.prg)",
     .extension = ".prg",
     .word = "ACS",
     .write = ExportACSGPS},
    {.kind = "fsnav",
     .title = "Export FSNavigator 4 Flight Plan",
     .typeText = "FSNavigator 4 Plans (*.fsn)",
     .extension = ".fsn",
     .folder = kFsNavigatorPlans,
     .ownName = true,
     .needsFolder = true,
     .missing = Message::NoFsNavigator,
     .write = ExportFSNav},
};

} // namespace

std::span<const ExportKind> exportKinds() {
    return kExports;
}

const ExportKind* exportKindOf(std::string_view kind) {
    for (const ExportKind& row : kExports) {
        if (row.kind == kind) return &row;
    }
    return nullptr;
}

std::vector<std::string> rememberedExports() {
    std::vector<std::string> words;
    for (const ExportKind& row : kExports) {
        if (row.word != nullptr) words.emplace_back(row.word);
    }
    return words;
}

std::error_code writeFs2000Plan(const ExportJob& job, const std::string& path) {
    return files::replace(singleBackslashes(path),
                          fs2000Plan(job.plan, {job.stem, job.HaveAlternate}, job.numbers));
}

} // namespace gatewise
