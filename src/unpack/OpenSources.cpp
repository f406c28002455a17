#include "unpack/OpenSources.h"

#include "unpack/Packing.h"

#include <algorithm>
#include <fstream>

namespace gatewise::unpack {

namespace fs = std::filesystem;

namespace {

using importer::Source;
using importer::SourceBytes;

class FileBytes : public SourceBytes {
public:
    explicit FileBytes(const fs::path& file) : in_(file, std::ios::binary) {
        if (!in_) error_ = "cannot be opened";
    }

    std::size_t read(std::span<char> out) override {
        if (!error_.empty() || in_.eof()) return 0;
        in_.read(out.data(), static_cast<std::streamsize>(out.size()));
        if (in_.bad()) error_ = "cannot be read";
        return static_cast<std::size_t>(in_.gcount());
    }
    [[nodiscard]] std::string error() const override { return error_; }

private:
    std::ifstream in_;
    std::string error_;
};

std::string utf8Name(const fs::path& file) {
    const auto name = file.filename().u8string();
    return {name.begin(), name.end()};
}

Source plain(const fs::path& file) {
    return {utf8Name(file), [file] { return std::make_unique<FileBytes>(file); }};
}

Source packed(const fs::path& file, Packing packing, std::size_t entry, std::string name) {
    return {std::move(name), [file, packing, entry] { return openPacked(file, packing, entry); }};
}

void addFile(const fs::path& file, std::vector<Source>& out) {
    const Packing packing = packingOf(file);
    if (packing == Packing::None) {
        out.push_back(plain(file));
    } else if (packing != Packing::Zip) {
        out.push_back(packed(file, packing, 0, utf8Name(file)));
    } else {
        std::string error;
        const auto entries = entriesOf(file, error);
        if (!error.empty() || entries.empty())
            out.push_back(packed(file, packing, entries.size(), utf8Name(file)));
        for (std::size_t i = 0; error.empty() && i < entries.size(); ++i)
            out.push_back(packed(file, packing, i, utf8Name(file) + "/" + entries[i]));
    }
}

} // namespace

std::vector<Source> openSources(const fs::path& path, std::vector<std::string>& faults) {
    std::vector<Source> out;
    std::error_code error;
    if (!fs::is_directory(path, error)) {
        if (fs::is_regular_file(path, error))
            addFile(path, out);
        else
            faults.push_back(path.string() + ": no such file or folder");
        return out;
    }
    std::vector<fs::path> files;
    for (fs::directory_iterator at(path, error), end; !error && at != end; at.increment(error))
        if (std::error_code none; at->is_regular_file(none)) files.push_back(at->path());
    std::sort(files.begin(), files.end());
    for (const fs::path& file : files) addFile(file, out);
    if (out.empty()) faults.push_back(path.string() + ": a folder without files");
    return out;
}

} // namespace gatewise::unpack
