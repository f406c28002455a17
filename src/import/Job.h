#pragma once

#include <cstddef>
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

/// A walk through the rows of a step: it tells how much of the step is done and asks whether to go on, for
/// one row in kRows. Several walks of a step tell of one part each; one of no rows only asks.
class Walk {
public:
    static constexpr std::size_t kRows = 256;

    Walk(const Job& job, std::size_t rows, double from = 0, double to = 1)
        : job_(job), rows_(rows), from_(from), to_(to) {}

    /// To be asked before every row: false when the work is to end.
    bool goesOn() {
        if (at_++ % kRows != 0) return !ended_;
        ended_ = ended_ || job_.cancelled();
        if (!ended_ && rows_ > 0)
            job_.progress(from_ + (to_ - from_) * static_cast<double>(at_) / static_cast<double>(rows_));
        return !ended_;
    }

private:
    const Job& job_;
    std::size_t rows_;
    double from_, to_;
    std::size_t at_ = 0;
    bool ended_ = false;
};

} // namespace gatewise::importer
