// Calls of the system that a signal has interrupted.
#pragma once

#include <cerrno>

namespace jorv {

/// Makes the call again as long as it fails with EINTR.
template <typename Aufruf>
auto ungestoert(Aufruf aufruf)
{
    auto ergebnis = aufruf();
    while (ergebnis < 0 && errno == EINTR) ergebnis = aufruf();
    return ergebnis;
}

}  // namespace jorv
