#include "platform/simulated/SimulatedMachine.h"

namespace gatewise::simulated {

double SimulatedRandom::draw() {
    if (!draws_.empty()) {
        const double next = draws_.front();
        draws_.pop_front();
        return next;
    }
    return static_cast<double>(generator_()) / 4294967296.0;
}

} // namespace gatewise::simulated
