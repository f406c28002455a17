#include "window/QtMachine.h"

#include "input/UserEvents.h"
#include "platform/Files.h"
#include "platform/Proposals.h"
#include "platform/Text.h"
#include "window/Desk.h"
#include "window/FileDialogs.h"
#include "window/QtText.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QUrl>
#include <atomic>
#include <exception>
#include <thread>

namespace gatewise::window {

namespace {

constexpr const char* kFirstPage = "gt_gt.htm";

/// "file::/topic" names a page of the help folder.
std::string topicOf(const std::string& page) {
    const auto colons = page.rfind("::");
    std::string topic = colons == std::string::npos ? std::string() : page.substr(colons + 2);
    topic.erase(0, topic.find_last_of("/\\") + 1);
    return topic;
}

/// Where a dialog begins for which work proposes a path.
QString startOf(const std::string& proposal, const std::string& AppDir) {
    return nativePath(proposalFor(proposal, AppDir, userFolders()));
}

std::optional<std::string> pathOrNothing(const QString& native) {
    return native.isEmpty() ? std::nullopt : std::optional(pathText(native));
}

} // namespace

void QtDesktop::setPointer(bool busy) {
    if (busy == busy_) return;
    busy_ = busy;
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

std::optional<std::string> QtDesktop::askSavePath(const std::string& title, const std::string& proposal) {
    if (desk_ == nullptr) return std::nullopt;
    return pathOrNothing(askNewFile(desk_->skin(), toQt(title), startOf(proposal, folder_)));
}

std::optional<std::string> QtDesktop::askOpenPath(const std::string& title, const std::string& proposal) {
    if (desk_ == nullptr) return std::nullopt;
    return pathOrNothing(askFile(desk_->skin(), toQt(title), startOf(proposal, folder_)));
}

std::optional<std::string> QtDesktop::askFolder(const std::string& title) {
    if (desk_ == nullptr) return std::nullopt;
    return pathOrNothing(window::askFolder(desk_->skin(), toQt(title), startOf({}, folder_)));
}

void QtDesktop::paint() {
    if (desk_ != nullptr) desk_->paint();
}

void QtDesktop::minimise() {
    if (desk_ != nullptr) desk_->mainWindow().showMinimized();
}

void QtDesktop::showHelp(const std::string& page) {
    std::string file = folder_ + "\\help\\" + topicOf(page);
    if (topicOf(page).empty() || !files::fileExists(file)) file = folder_ + "\\help\\" + kFirstPage;
    const QString native = nativePath(file);
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(native))) {
        notify("The help could not be opened. It lies at " + fromQt(native));
    }
}

void QtDesktop::notify(const std::string& text) {
    if (desk_ != nullptr) desk_->showNote(toQt(text));
}

void QtDesktop::notifyFile(const std::string& text, const std::string& file) {
    if (desk_ != nullptr) desk_->showNote(toQt(text), nativePath(file));
}

void QtDesktop::open(const std::string& path) {
    const QString native = nativePath(path);
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(native)))
        notify("No program of this computer opens " + fromQt(native));
}

void QtDesktop::copy(const std::string& text) {
    QGuiApplication::clipboard()->setText(toQt(text));
}

void QtLoop::runModal(std::string_view, const std::function<bool()>& done) {
    if (desk_ == nullptr) return;
    desk_->sync();
    // The program may be busy behind the screen, but the screen waits for the pilot.
    const bool busy = QApplication::overrideCursor() != nullptr;
    if (busy) QApplication::changeOverrideCursor(Qt::ArrowCursor);
    while (!done()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (busy && QApplication::overrideCursor() != nullptr) QApplication::changeOverrideCursor(Qt::WaitCursor);
    desk_->sync();
}

void QtLoop::wait(std::int64_t milliseconds) {
    if (desk_ != nullptr) desk_->sync();
    time_.pass(milliseconds);
}

void QtLoop::work(const std::function<void()>& job) {
    if (desk_ != nullptr) desk_->sync();
    std::atomic<bool> done{false};
    std::exception_ptr failure;
    std::thread worker([&] {
        try {
            job();
        } catch (...) {
            failure = std::current_exception();
        } // goes on where the work was asked for
        done = true;
        QCoreApplication::postEvent(qApp, new QEvent(QEvent::User)); // ends the wait below
    });
    while (!done) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    worker.join();
    if (desk_ != nullptr) desk_->sync();
    if (failure) std::rethrow_exception(failure);
}

QtTimers::QtTimers(TimeSource& time) : time_(time) {
    time_.due = [this](Timer& timer) { due(timer); };
}

QtTimers::~QtTimers() {
    time_.due = nullptr;
}

void QtTimers::arm(Timer& timer) {
    time_.arm(timer, timer.interval());
}

void QtTimers::disarm(Timer& timer) {
    late_.erase(&timer);
    time_.disarm(timer);
}

void QtTimers::due(Timer& timer) {
    if (desk_ == nullptr) return;
    if (!desk_->painting()) {
        desk_->act([&] { user::tick(timer); });
        return;
    }
    // A paint in the middle of work must not run other work: the tick comes right after.
    if (!late_.insert(&timer).second) return;
    QTimer::singleShot(1, this, [this, &timer] {
        if (late_.erase(&timer) > 0 && timer.enabled) due(timer);
    });
}

} // namespace gatewise::window
