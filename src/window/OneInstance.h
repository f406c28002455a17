#pragma once

#include <QFileSystemWatcher>
#include <QLockFile>

#include <functional>

namespace gatewise::window {

/// One program on one folder: two would write the same log book, each without the other's flights. The lock
/// beside the settings names the process that owns it; the lock of a process that has ended is taken over.
class OneInstance {
public:
    /// `folder` is the native folder of the user's files.
    explicit OneInstance(const QString& folder);

    /// False: another program works on the folder. A folder that takes no lock has no first program.
    [[nodiscard]] bool first() const { return first_; }

    /// Asks the first program to show its window.
    void callFirst() const;

    /// What the first program does when it is asked.
    void onCall(std::function<void()> show);

private:
    bool takesOver();
    void answer();

    QString call_; // a file that a second start leaves
    QLockFile lock_;
    bool first_ = true;
    QFileSystemWatcher watcher_;
    std::function<void()> show_;
};

} // namespace gatewise::window
