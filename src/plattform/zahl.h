// Numbers as text, without any locale: reading as a number at the start of a word, writing by pictures of "#", "0" and
// ".". The written notation is German (decimal comma) unless a routine says point.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace jorv {

/// The number at the start of a word: blanks anywhere are passed over; sign, digits, one point, exponent by E or D;
/// stops at the first other character. No number gives 0; one too large for a double gives infinity.
double zahl_lesen(std::string_view wort);

/// Rounded to the nearest integer, a tie to the even neighbour; nothing when it leaves the range of the type.
std::optional<std::int16_t> ganz16(double wert);
std::optional<std::int32_t> ganz32(double wert);

/// Whole words only: nothing unless every byte belongs to the number (blanks at the ends are allowed).
std::optional<double> zahl_streng(std::string_view text);
std::optional<int> ganz_streng(std::string_view text);

/// By a picture such as "#######.###" or "000000": "0" is a digit that is always written, "#" one that may be left out.
/// Rounds half away from zero on the decimal value. Decimal comma; the comma of a picture with a point is kept ("5,",
/// ",5", ",").
std::string format_bild(double wert, std::string_view muster);

/// As format_bild, filled with blanks on the left to the picture's length, every "," turned to ".".
std::string zahl_format(double wert, std::string_view muster);

/// As format_bild with the first "," turned to ".", then fuell put in front as often as the picture is longer.
std::string zahl_format_fuell(double wert, std::string_view muster, std::string_view fuell);

/// Decimal point, as many digits as needed, none behind a whole number: 0.5, 12, -3.25.
std::string zahl_text(double wert);

/// zahl_text with one blank ahead of a number that is not negative.
std::string zahl_text_blank(double wert);

/// Fixed count of decimals with a point, rounded half away from zero on the decimal value: fest(1.005, 2) is "1.01".
std::string fest(double wert, int stellen);

}  // namespace jorv
