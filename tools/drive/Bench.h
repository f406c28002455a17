#pragma once

#include "drive/SoundRecorder.h"
#include "platform/simulated/SimulatedMachine.h"

#include <string>
#include <utility>

namespace gatewise::drive {

/// The simulated machine of a run, and the folder of the program on it.
struct Bench {
    /// `folder` is a text of the program.
    explicit Bench(std::string folder) : appDir(std::move(folder)) {}

    std::string appDir;
    SoundRecorder sounds{appDir};
    simulated::SimulatedMachine machine{sounds.device};
};

} // namespace gatewise::drive
