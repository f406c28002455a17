#include "simulator/StoredPositions.h"

#include "platform/Files.h"

#include <algorithm>
#include <string>

namespace gatewise {

StoredPositions storedPositionsOf(ByteView bytes) {
    StoredPositions slots;
    for (std::size_t i = 0; i < slots.size(); ++i) {
        const auto record = recordAt<StoredPosition>(bytes, i * recordSize<StoredPosition>());
        if (!record) break;
        slots[i] = *record;
    }
    return slots;
}

StoredPositions loadStoredPositions(std::string_view FsPath, std::string_view icao) {
    // The add-on's folder is known under two spellings, which may be two folders where letter case counts.
    for (const char* folder : {"\\SnapIt\\Positions\\", "\\SnapIT\\Positions\\"}) {
        const auto path = std::string(FsPath).append(folder).append(trimmed(icao)).append(".pf2");
        const files::RecordFile file(path);
        if (!file.isOpen()) continue;
        const auto longest =
            static_cast<long long>(kStoredPositions) * static_cast<long long>(recordSize<StoredPosition>());
        Bytes bytes(static_cast<std::size_t>(std::min(file.length(), longest)));
        if (file.read(0, bytes)) return storedPositionsOf(bytes);
    }
    return {};
}

} // namespace gatewise
