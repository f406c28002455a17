// Stands between a program and the system's file calls. It counts the calls that reach a folder and lets one
// of them fail: the tests preload it, the program knows nothing of it.
//
//     FAULT_FOLDER   calls on files below it count
//     FAULT_LOG      file that takes one line for each call: its name
//     FAULT_AT       number of the call that fails, from 1; none: all go through
//     FAULT_ERROR    the error that it fails with; 0: a read or write that is cut to half

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

constexpr int kHandles = 1024;
bool watched[kHandles]; // handles of files below the folder
int calls = 0;

const char* setting(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

bool inFolder(const char* path) {
    static const std::string folder = setting("FAULT_FOLDER");
    return path != nullptr && !folder.empty() && std::strncmp(path, folder.c_str(), folder.size()) == 0;
}

bool isWatched(int handle) {
    return handle >= 0 && handle < kHandles && watched[handle];
}

int watch(int handle) {
    if (handle >= 0 && handle < kHandles) watched[handle] = true;
    return handle;
}

template<class Function> Function real(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

void note(const char* name) {
    static const std::string log = setting("FAULT_LOG");
    if (log.empty()) return;
    static const auto openCall = real<int (*)(const char*, int, ...)>("open");
    static const auto writeCall = real<ssize_t (*)(int, const void*, size_t)>("write");
    static const int handle = openCall(log.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
    const std::string line = std::string(name) + "\n";
    (void)!writeCall(handle, line.data(), line.size());
}

/// Counts a call; true when it is the one that fails, with its error in errno (0: cut short).
bool fails(const char* name) {
    static const int at = std::atoi(setting("FAULT_AT"));
    static const int error = std::atoi(setting("FAULT_ERROR"));
    note(name);
    if (++calls != at) return false;
    errno = error;
    return true;
}

} // namespace

// A call that names a file, or works on an open one, and answers with -1 on an error.
#define ON_PATH(result, name, parameters, arguments, path)                                                   \
    extern "C" result name parameters {                                                                      \
        static const auto call = real<result(*) parameters>(#name);                                          \
        return inFolder(path) && fails(#name) ? -1 : call arguments;                                         \
    }
#define ON_HANDLE(result, name, parameters, arguments, handle)                                               \
    extern "C" result name parameters {                                                                      \
        static const auto call = real<result(*) parameters>(#name);                                          \
        return isWatched(handle) && fails(#name) ? -1 : call arguments;                                      \
    }

ON_PATH(int, stat, (const char* path, struct stat* out) noexcept, (path, out), path)
ON_PATH(int, lstat, (const char* path, struct stat* out) noexcept, (path, out), path)
ON_PATH(int, access, (const char* path, int mode) noexcept, (path, mode), path)
ON_PATH(int, rename, (const char* from, const char* to) noexcept, (from, to), to)
ON_PATH(int, unlink, (const char* path) noexcept, (path), path)
ON_PATH(int, remove, (const char* path) noexcept, (path), path)
ON_PATH(int, mkdir, (const char* path, mode_t mode) noexcept, (path, mode), path)
ON_PATH(ssize_t, readlink, (const char* path, char* out, size_t size) noexcept, (path, out, size), path)
ON_HANDLE(int, fstat, (int handle, struct stat* out) noexcept, (handle, out), handle)
ON_HANDLE(int, fsync, (int handle), (handle), handle)
ON_HANDLE(int, fchmod, (int handle, mode_t mode) noexcept, (handle, mode), handle)

// A read or write, which can also be cut to half.
#define MOVES_BYTES(name, parameters, arguments, shorter, size)                                              \
    extern "C" ssize_t name parameters {                                                                     \
        static const auto call = real<ssize_t(*) parameters>(#name);                                         \
        if (!isWatched(handle) || !fails(#name)) return call arguments;                                      \
        if (errno != 0 || (size) < 2) return errno != 0 ? -1 : call arguments;                               \
        return call shorter;                                                                                 \
    }

MOVES_BYTES(read, (int handle, void* out, size_t size), (handle, out, size), (handle, out, size / 2), size)
MOVES_BYTES(pread, (int handle, void* out, size_t size, off_t at), (handle, out, size, at),
            (handle, out, size / 2, at), size)
MOVES_BYTES(pread64, (int handle, void* out, size_t size, off64_t at), (handle, out, size, at),
            (handle, out, size / 2, at), size)
MOVES_BYTES(write, (int handle, const void* bytes, size_t size), (handle, bytes, size),
            (handle, bytes, size / 2), size)
MOVES_BYTES(writev, (int handle, const struct iovec* parts, int count), (handle, parts, count),
            (handle, parts, count - 1), static_cast<size_t>(count))

#define OPENS(name)                                                                                          \
    extern "C" int name(const char* path, int flags, ...) {                                                  \
        static const auto call = real<int (*)(const char*, int, ...)>(#name);                                \
        va_list rest;                                                                                        \
        va_start(rest, flags);                                                                               \
        const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;                               \
        va_end(rest);                                                                                        \
        if (!inFolder(path)) return call(path, flags, mode);                                                 \
        return fails(#name) ? -1 : watch(call(path, flags, mode));                                           \
    }

OPENS(open)
OPENS(open64)

#define OPENS_STREAM(name)                                                                                   \
    extern "C" FILE* name(const char* path, const char* mode) {                                              \
        static const auto call = real<FILE* (*)(const char*, const char*)>(#name);                           \
        if (!inFolder(path)) return call(path, mode);                                                        \
        if (fails(#name)) return nullptr;                                                                    \
        FILE* file = call(path, mode);                                                                       \
        if (file != nullptr) watch(fileno(file));                                                            \
        return file;                                                                                         \
    }

OPENS_STREAM(fopen)
OPENS_STREAM(fopen64)

extern "C" DIR* opendir(const char* path) {
    static const auto call = real<DIR* (*)(const char*)>("opendir");
    return inFolder(path) && fails("opendir") ? nullptr : call(path);
}

extern "C" int close(int handle) {
    static const auto call = real<int (*)(int)>("close");
    const bool counts = isWatched(handle);
    if (counts) watched[handle] = false;
    const int result = call(handle); // the handle is gone, whatever is said
    return counts && fails("close") ? -1 : result;
}
