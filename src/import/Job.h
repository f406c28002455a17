#pragma once

#include <string_view>

namespace gatewise::importer {

/// What a long work tells while it runs, and asks: called from the thread that works and from those that help
/// it. This one says nothing and never stops the work.
class Job {
public:
    Job() = default;
    Job(const Job&) = default;
    Job& operator=(const Job&) = default;
    virtual ~Job() = default;
    /// The work goes on to a part with this name.
    virtual void step(std::string_view) const {}
    /// How much of the part is done, 0 to 1.
    virtual void progress(double) const {}
    /// True when the work is to end as soon as it can.
    [[nodiscard]] virtual bool cancelled() const { return false; }
};

} // namespace gatewise::importer
