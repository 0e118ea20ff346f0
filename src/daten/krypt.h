// The additive cipher of the data files beside the program.
#pragma once

#include <string>
#include <string_view>

namespace jorv {

enum class Kryptmodus { chiffrieren = 1, dechiffrieren = 2 };

/// Adds the key's byte to each byte of the text (1) or takes it off (2). `fehler` is 0, or -1 for a text of more than
/// 255 bytes, a plain byte above 125 or a cipher byte below its key; then the result is empty. A result of code 0 ends
/// the text there.
std::string krypt(std::string_view text, int modus, int& fehler);

inline std::string krypt(std::string_view text, Kryptmodus modus, int& fehler)
{
    return krypt(text, static_cast<int>(modus), fehler);
}

}  // namespace jorv
