// Advice to the system about large pieces of memory.
#pragma once

#include <cstddef>

namespace jorv {

/// Asks for large pages for memory that is about to be filled from its beginning to its end: touching it for the first
/// time then costs a fraction. Without effect on small pieces and where the system has no such pages.
void grosse_seiten(void* beginn, std::size_t bytes);

}  // namespace jorv
