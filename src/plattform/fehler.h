// The outcome word of a fallible routine. The routine has already shown its own message when it gives Fehler::gesetzt.
#pragma once

#include <cstdint>

namespace jorv {

/// 0 on success, 99 on failure; the caller tests it and must not drop it.
enum class [[nodiscard]] Fehler : std::int32_t{keiner = 0, gesetzt = 99};

constexpr bool ist_fehler(Fehler fehler)
{
    return fehler != Fehler::keiner;
}

}  // namespace jorv
