#include <sys/mman.h>

#include <cstdint>

#include "plattform/speicher.h"

namespace jorv {

void grosse_seiten(void* beginn, std::size_t bytes)
{
    constexpr std::uintptr_t seite = 4096;
    constexpr std::size_t lohnt_ab = std::size_t{4} << 20;
    if (bytes < lohnt_ab) return;
    const auto ort = (reinterpret_cast<std::uintptr_t>(beginn) + seite - 1) / seite * seite;
    const std::size_t rest = bytes - static_cast<std::size_t>(ort - reinterpret_cast<std::uintptr_t>(beginn));
    ::madvise(reinterpret_cast<void*>(ort), rest / seite * seite, MADV_HUGEPAGE);
}

}  // namespace jorv
