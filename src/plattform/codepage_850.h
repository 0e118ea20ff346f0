// Batch files and the screen text of the interpreter are bytes of code page 850; everything inside is Windows-1252.
#pragma once

#include <string>
#include <string_view>

namespace jorv {

/// Windows-1252 of a code page 850 text. The turn is one to one: all characters of both pages keep their meaning, the
/// 31 frame and block signs that Windows-1252 lacks take its bytes that code page 850 lacks, so nach_850 brings every
/// byte back.
std::string aus_850(std::string_view bytes);

/// The way back.
std::string nach_850(std::string_view text);

}  // namespace jorv
