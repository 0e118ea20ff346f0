// The entry of libFuzzer: one target a program.
#include <cstddef>
#include <cstdint>

#include "ziel.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t anzahl)
{
    jorv::fuzz::ziele().front().pruefen({reinterpret_cast<const char*>(bytes), anzahl});
    return 0;
}
