#include "plattform/codepage_850.h"

#include <array>
#include <cstddef>

#include "plattform/text.h"

namespace jorv {

namespace {

// Code points of the bytes 0x80 to 0xFF.
constexpr std::array<char32_t, 128> zeichen_80_ff = {
    0x00C7, 0x00FC, 0x00E9, 0x00E2, 0x00E4, 0x00E0, 0x00E5, 0x00E7, 0x00EA, 0x00EB, 0x00E8, 0x00EF, 0x00EE,
    0x00EC, 0x00C4, 0x00C5, 0x00C9, 0x00E6, 0x00C6, 0x00F4, 0x00F6, 0x00F2, 0x00FB, 0x00F9, 0x00FF, 0x00D6,
    0x00DC, 0x00F8, 0x00A3, 0x00D8, 0x00D7, 0x0192, 0x00E1, 0x00ED, 0x00F3, 0x00FA, 0x00F1, 0x00D1, 0x00AA,
    0x00BA, 0x00BF, 0x00AE, 0x00AC, 0x00BD, 0x00BC, 0x00A1, 0x00AB, 0x00BB, 0x2591, 0x2592, 0x2593, 0x2502,
    0x2524, 0x00C1, 0x00C2, 0x00C0, 0x00A9, 0x2563, 0x2551, 0x2557, 0x255D, 0x00A2, 0x00A5, 0x2510, 0x2514,
    0x2534, 0x252C, 0x251C, 0x2500, 0x253C, 0x00E3, 0x00C3, 0x255A, 0x2554, 0x2569, 0x2566, 0x2560, 0x2550,
    0x256C, 0x00A4, 0x00F0, 0x00D0, 0x00CA, 0x00CB, 0x00C8, 0x0131, 0x00CD, 0x00CE, 0x00CF, 0x2518, 0x250C,
    0x2588, 0x2584, 0x00A6, 0x00CC, 0x2580, 0x00D3, 0x00DF, 0x00D4, 0x00D2, 0x00F5, 0x00D5, 0x00B5, 0x00FE,
    0x00DE, 0x00DA, 0x00DB, 0x00D9, 0x00FD, 0x00DD, 0x00AF, 0x00B4, 0x00AD, 0x00B1, 0x2017, 0x00BE, 0x00B6,
    0x00A7, 0x00F7, 0x00B8, 0x00B0, 0x00A8, 0x00B7, 0x00B9, 0x00B3, 0x00B2, 0x25A0, 0x00A0};

using Bytetabelle = std::array<char, 256>;

constexpr std::size_t stelle(char byte)
{
    return static_cast<unsigned char>(byte);
}

constexpr Bytetabelle tabelle_aus_850()
{
    Bytetabelle tabelle{};
    std::array<bool, 256> vergeben{};
    for (std::size_t i = 0; i < 128; ++i) tabelle[i] = static_cast<char>(i);
    for (std::size_t i = 0; i < zeichen_80_ff.size(); ++i) {
        const int byte = jorv::detail::byte_1252(zeichen_80_ff[i]);
        if (byte < 0) continue;
        tabelle[0x80 + i] = static_cast<char>(byte);
        vergeben[static_cast<std::size_t>(byte)] = true;
    }
    std::size_t frei = 0x80;
    for (std::size_t i = 0; i < zeichen_80_ff.size(); ++i) {
        if (jorv::detail::byte_1252(zeichen_80_ff[i]) >= 0) continue;
        while (vergeben[frei]) ++frei;
        tabelle[0x80 + i] = static_cast<char>(frei++);
    }
    return tabelle;
}

constexpr Bytetabelle umgekehrt(const Bytetabelle& tabelle)
{
    Bytetabelle zurueck{};
    for (std::size_t i = 0; i < tabelle.size(); ++i) zurueck[stelle(tabelle[i])] = static_cast<char>(i);
    return zurueck;
}

constexpr Bytetabelle hin = tabelle_aus_850();
constexpr Bytetabelle her = umgekehrt(hin);

std::string gewandelt(std::string_view text, const Bytetabelle& tabelle)
{
    std::string neu(text);
    for (char& byte : neu) byte = tabelle[stelle(byte)];
    return neu;
}

}  // namespace

std::string aus_850(std::string_view bytes)
{
    return gewandelt(bytes, hin);
}

std::string nach_850(std::string_view text)
{
    return gewandelt(text, her);
}

}  // namespace jorv
