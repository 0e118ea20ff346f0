// Text of this system is Windows-1252, one byte a character. This file turns UTF-8 literals into it at compile time,
// converts at the two borders to UTF-8 (screen, host file names) and holds the few byte-wise text helpers.
#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace jorv {

namespace detail {

/// Code points of the bytes 0x80 to 0x9F; the five bytes without a character keep their C1 control code.
inline constexpr std::array<char32_t, 32> zeichen_80_9f = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The byte of a code point, or -1 when Windows-1252 has none.
constexpr int byte_1252(char32_t zeichen)
{
    if (zeichen < 0x80 || (zeichen >= 0xA0 && zeichen <= 0xFF)) return static_cast<int>(zeichen);
    for (std::size_t i = 0; i < zeichen_80_9f.size(); ++i)
        if (zeichen_80_9f[i] == zeichen) return static_cast<int>(0x80 + i);
    return -1;
}

constexpr char32_t zeichen_1252(char byte)
{
    const auto code = static_cast<unsigned char>(byte);
    return code >= 0x80 && code <= 0x9F ? zeichen_80_9f[code - 0x80u] : code;
}

template <std::size_t N>
struct Utf8_literal {
    char8_t bytes[N]{};
    consteval Utf8_literal(const char8_t (&text)[N])
    {
        for (std::size_t i = 0; i < N; ++i) bytes[i] = text[i];
    }
};

template <std::size_t N>
struct Text_1252 {
    std::array<char, N> bytes{};
    std::size_t laenge = 0;
};

template <std::size_t N>
consteval Text_1252<N> umwandeln(const Utf8_literal<N>& literal)
{
    Text_1252<N> text;
    for (std::size_t i = 0; i + 1 < N;) {
        const char32_t erstes = literal.bytes[i];
        const std::size_t folge = erstes < 0x80 ? 0 : erstes < 0xE0 ? 1 : erstes < 0xF0 ? 2 : 3;
        char32_t zeichen = folge == 0 ? erstes : erstes & (0x3Fu >> folge);
        for (std::size_t k = 1; k <= folge; ++k) zeichen = (zeichen << 6) | (literal.bytes[i + k] & 0x3Fu);
        const int byte = byte_1252(zeichen);
        if (byte < 0) throw "character outside Windows-1252";
        text.bytes[text.laenge++] = static_cast<char>(byte);
        i += folge + 1;
    }
    return text;
}

template <Utf8_literal T>
inline constexpr auto text_1252 = umwandeln(T);

}  // namespace detail

/// u8"geöffnet"_w : the Windows-1252 bytes of a UTF-8 literal, made at compile time.
template <detail::Utf8_literal T>
consteval std::string_view operator""_w()
{
    return {detail::text_1252<T>.bytes.data(), detail::text_1252<T>.laenge};
}

/// UTF-8 of a Windows-1252 text.
std::string utf8_aus_1252(std::string_view text);

/// Windows-1252 of a UTF-8 text; nothing when a character has no byte or the UTF-8 is broken.
std::optional<std::string> text_aus_utf8(std::string_view utf8);

/// Like text_aus_utf8, but what can't be held becomes "?". For display and user input, never for file names.
std::string text_aus_utf8_mit_ersatz(std::string_view utf8);

/// Upper and lower case of one Windows-1252 byte, umlauts included ("ß" has no upper case).
char gross(char byte);
char klein(char byte);
std::string gross(std::string_view text);
std::string klein(std::string_view text);

/// Equality without regard to case.
bool gleich_ohne_gross(std::string_view a, std::string_view b);

/// Without the blanks (and tabs) at both ends.
std::string_view trimmen(std::string_view text);

/// The part [von, von + anzahl) counted from 1, as much of it as there is.
constexpr std::string_view mitte(std::string_view text, std::size_t von, std::size_t anzahl = std::string_view::npos)
{
    return von < 1 || von > text.size() ? std::string_view{} : text.substr(von - 1, anzahl);
}

/// The first or last bytes, as many as there are.
constexpr std::string_view links(std::string_view text, std::size_t anzahl)
{
    return text.substr(0, anzahl);
}
constexpr std::string_view rechts(std::string_view text, std::size_t anzahl)
{
    return anzahl >= text.size() ? text : text.substr(text.size() - anzahl);
}

/// The text less its last bytes; empty when it is shorter.
constexpr std::string_view ohne_ende(std::string_view text, std::size_t anzahl)
{
    return anzahl >= text.size() ? std::string_view{} : text.substr(0, text.size() - anzahl);
}

/// All occurrences of a character or a text replaced.
std::string ersetzt(std::string text, char alt, char neu);
std::string ersetzt(std::string_view text, std::string_view alt, std::string_view neu);

/// The texts one after the other: verkettet("a", 1, "b") is written with numbers as plain decimal.
namespace detail {
inline void anhaengen(std::string& ziel, std::string_view teil)
{
    ziel += teil;
}
inline void anhaengen(std::string& ziel, char teil)
{
    ziel += teil;
}
void anhaengen_zahl(std::string& ziel, long long teil);
template <std::integral Ganzzahl>
void anhaengen(std::string& ziel, Ganzzahl teil)
{
    anhaengen_zahl(ziel, static_cast<long long>(teil));
}
}  // namespace detail
template <typename... Teile>
std::string verkettet(const Teile&... teile)
{
    std::string text;
    (detail::anhaengen(text, teile), ...);
    return text;
}

/// Walks the lines of a text: ends at LF, a CR before it is dropped; a last line without an end counts.
class Zeilenleser {
public:
    explicit Zeilenleser(std::string_view text) : m_rest(text) {}
    /// The next line, or nothing behind the last one.
    std::optional<std::string_view> naechste();
    bool am_ende() const { return m_rest.empty(); }

private:
    std::string_view m_rest;
};

}  // namespace jorv
