// How long one call of a program may last before it counts as hanging.
#pragma once

#include <chrono>

namespace jorv {

/// JORV_FRIST in seconds, at least 2 (so that a program can give up before its caller does); without it ten minutes.
std::chrono::seconds zeitgrenze();

}  // namespace jorv
