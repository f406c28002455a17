#pragma once

#include "platform/Files.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace gatewise::fuzz {

/// Where files of this process go: into memory where there is such a place, for there each run takes its
/// bytes from a file.
inline std::filesystem::path scratchPath(const std::string& name) {
    const std::filesystem::path memory = "/dev/shm";
    std::error_code none;
    const bool inMemory = std::filesystem::is_directory(memory, none) && ::access(memory.c_str(), W_OK) == 0;
    return (inMemory ? memory : std::filesystem::temp_directory_path()) /
           ("gatewise-fuzz-" + std::to_string(::getpid()) + "-" + name);
}

/// A file of this process that readers which want a path can be pointed at.
class OutsideFile {
public:
    explicit OutsideFile(const char* name) : path_(scratchPath(name).string()) {}
    ~OutsideFile() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
    OutsideFile(const OutsideFile&) = delete;
    OutsideFile& operator=(const OutsideFile&) = delete;

    [[nodiscard]] const std::string& path() const { return path_; }
    void fill(ByteView bytes) const {
        std::ofstream file(path_, std::ios::binary | std::ios::trunc);
        file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        if (!file.flush()) std::abort();
    }

private:
    std::string path_;
};

/// What must hold, whatever the bytes are.
inline void expect(bool holds) {
    if (!holds) std::abort();
}

} // namespace gatewise::fuzz
