#include "unpack/Packing.h"

#include <array>
#include <fstream>

namespace gatewise::unpack {

Packing packingOf(const std::filesystem::path& file) {
    std::array<char, 6> bytes{};
    std::ifstream in(file, std::ios::binary);
    in.read(bytes.data(), bytes.size());
    const std::string_view head(bytes.data(), static_cast<std::size_t>(in.gcount()));
    if (head.starts_with("\x1F\x8B")) return Packing::Gz;
    if (head.starts_with(std::string_view("\xFD\x37zXZ\0", 6))) return Packing::Xz;
    if (head.starts_with("PK\x03\x04") || head.starts_with("PK\x05\x06")) return Packing::Zip;
    return Packing::None;
}

std::string nameOf(Packing packing) {
    switch (packing) {
    case Packing::Gz:
        return "gz";
    case Packing::Xz:
        return "xz";
    case Packing::Zip:
        return "zip";
    default:
        return "none";
    }
}

} // namespace gatewise::unpack
