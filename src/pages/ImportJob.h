#pragma once

#include "import/Job.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <string>
#include <string_view>

namespace gatewise {

/// What an import on another thread tells the screen, and the screen the import.
class ImportJob : public importer::Job {
public:
    /// Before a new job.
    void begin() {
        cancelled_ = false;
        step("");
    }
    void cancel() { cancelled_ = true; }

    void step(std::string_view name) const override {
        const std::lock_guard lock(mutex_);
        step_ = name;
        percent_ = 0;
    }
    void progress(double share) const override { percent_ = static_cast<int>(share * 100); }
    [[nodiscard]] bool cancelled() const override { return cancelled_; }

    /// How much of the step is done, 0 to 100.
    [[nodiscard]] int percent() const { return std::clamp<int>(percent_, 0, 100); }

    /// The step's name and how far it is: "Routes 40 %", UTF-8.
    [[nodiscard]] std::string words() const {
        const std::lock_guard lock(mutex_);
        return percent_ > 0 ? step_ + " " + std::to_string(percent_) + " %" : step_;
    }

private:
    mutable std::mutex mutex_;
    mutable std::string step_;
    mutable std::atomic<int> percent_{0};
    std::atomic<bool> cancelled_{false};
};

} // namespace gatewise
