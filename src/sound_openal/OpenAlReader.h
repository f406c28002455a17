#pragma once

#include "sound_openal/OpenAlVoice.h"

#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace gatewise {

/// The sound of a wave file. A long one comes without its samples: reading and sorting them would cost the
/// program a tenth of a second. Null when there is no such sound.
std::shared_ptr<OpenAlSound> openSound(const std::string& path);

/// Gives long sounds their buffers, one after the other, on a thread of its own. The library's context has to
/// stay current while there are orders.
class OpenAlReader {
public:
    using Sound = std::shared_ptr<OpenAlSound>;
    /// Is told on that thread; of no buffers, when the file is not what it was any more.
    using Ready = std::function<void(Sound sound, const OpenAlBuffers& buffers)>;

    explicit OpenAlReader(Ready ready) : ready_(std::move(ready)) {}
    ~OpenAlReader() { stop(); }
    OpenAlReader(const OpenAlReader&) = delete;
    OpenAlReader& operator=(const OpenAlReader&) = delete;

    /// Once for each sound, until it is stopped.
    void order(const Sound& sound);
    /// Waits for the one that is being read; what is still ordered is forgotten.
    void stop();
    /// Whether there is something to read.
    [[nodiscard]] bool busy() const;

private:
    void run();
    Sound next();

    const Ready ready_;
    mutable std::mutex guard_;
    std::deque<Sound> orders_; // behind the guard, as `working_`
    bool working_ = false;
    std::thread thread_;
};

} // namespace gatewise
