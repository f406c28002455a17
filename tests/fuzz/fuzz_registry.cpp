#include "platform/posix/WinePrefix.h"

#include <cstddef>
#include <cstdint>

// Any bytes as the registry file of a compatibility layer.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    (void)gatewise::native::registryText({reinterpret_cast<const char*>(data), size}, "Software\\A",
                                         "EXE Path");
    return 0;
}
