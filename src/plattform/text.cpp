#include "plattform/text.h"

#include <array>
#include <charconv>

namespace jorv {

namespace {

void utf8_anhaengen(std::string& ziel, char32_t zeichen)
{
    if (zeichen < 0x80) {
        ziel += static_cast<char>(zeichen);
    } else if (zeichen < 0x800) {
        ziel += static_cast<char>(0xC0 | (zeichen >> 6));
        ziel += static_cast<char>(0x80 | (zeichen & 0x3F));
    } else {
        ziel += static_cast<char>(0xE0 | (zeichen >> 12));
        ziel += static_cast<char>(0x80 | ((zeichen >> 6) & 0x3F));
        ziel += static_cast<char>(0x80 | (zeichen & 0x3F));
    }
}

// Takes one code point off the front; 0xFFFFFFFF for a broken sequence (one byte is then passed over).
char32_t utf8_nehmen(std::string_view& rest)
{
    constexpr char32_t kaputt = 0xFFFFFFFF;
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(rest[i]); };
    const unsigned char erstes = byte(0);
    const std::size_t folge = erstes < 0x80   ? 0
                              : erstes < 0xC2 ? 9
                              : erstes < 0xE0 ? 1
                              : erstes < 0xF0 ? 2
                              : erstes < 0xF5 ? 3
                                              : 9;
    if (folge == 9 || rest.size() <= folge) {
        rest.remove_prefix(1);
        return kaputt;
    }
    char32_t zeichen = folge == 0 ? erstes : erstes & (0x3Fu >> folge);
    for (std::size_t k = 1; k <= folge; ++k) {
        if ((byte(k) & 0xC0) != 0x80) {
            rest.remove_prefix(1);
            return kaputt;
        }
        zeichen = (zeichen << 6) | (byte(k) & 0x3Fu);
    }
    rest.remove_prefix(folge + 1);
    return zeichen;
}

}  // namespace

std::string utf8_aus_1252(std::string_view text)
{
    std::string utf8;
    utf8.reserve(text.size());
    for (const char byte : text) utf8_anhaengen(utf8, detail::zeichen_1252(byte));
    return utf8;
}

std::optional<std::string> text_aus_utf8(std::string_view utf8)
{
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const int byte = detail::byte_1252(utf8_nehmen(utf8));
        if (byte < 0) return std::nullopt;
        text += static_cast<char>(byte);
    }
    return text;
}

std::string text_aus_utf8_mit_ersatz(std::string_view utf8)
{
    std::string text;
    while (!utf8.empty()) {
        const int byte = detail::byte_1252(utf8_nehmen(utf8));
        text += byte < 0 ? '?' : static_cast<char>(byte);
    }
    return text;
}

char gross(char byte)
{
    const auto code = static_cast<unsigned char>(byte);
    if ((code >= 'a' && code <= 'z') || (code >= 0xE0 && code <= 0xFE && code != 0xF7))
        return static_cast<char>(code - 32);
    if (code == 0x9A || code == 0x9C || code == 0x9E) return static_cast<char>(code - 16);
    if (code == 0xFF) return static_cast<char>(0x9F);
    return byte;
}

namespace {

// Looked up for each byte of each name that is compared.
constexpr std::array<char, 256> kleine = [] {
    std::array<char, 256> tabelle{};
    for (unsigned code = 0; code < tabelle.size(); ++code) {
        unsigned neu = code;
        if ((code >= 'A' && code <= 'Z') || (code >= 0xC0 && code <= 0xDE && code != 0xD7)) neu = code + 32;
        if (code == 0x8A || code == 0x8C || code == 0x8E) neu = code + 16;
        if (code == 0x9F) neu = 0xFF;
        tabelle[code] = static_cast<char>(neu);
    }
    return tabelle;
}();

}  // namespace

char klein(char byte)
{
    return kleine[static_cast<unsigned char>(byte)];
}

std::string gross(std::string_view text)
{
    std::string neu(text);
    for (char& byte : neu) byte = gross(byte);
    return neu;
}

std::string klein(std::string_view text)
{
    std::string neu(text);
    for (char& byte : neu) byte = klein(byte);
    return neu;
}

bool gleich_ohne_gross(std::string_view a, std::string_view b)
{
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (a[i] != b[i] && klein(a[i]) != klein(b[i])) return false;
    return true;
}

std::string_view trimmen(std::string_view text)
{
    const auto blank = [](char byte) { return byte == ' ' || byte == '\t'; };
    while (!text.empty() && blank(text.front())) text.remove_prefix(1);
    while (!text.empty() && blank(text.back())) text.remove_suffix(1);
    return text;
}

std::string ersetzt(std::string text, char alt, char neu)
{
    for (char& byte : text)
        if (byte == alt) byte = neu;
    return text;
}

std::string ersetzt(std::string_view text, std::string_view alt, std::string_view neu)
{
    std::string ergebnis;
    for (std::size_t ab = 0;;) {
        const auto fund = alt.empty() ? std::string_view::npos : text.find(alt, ab);
        ergebnis += text.substr(ab, fund == std::string_view::npos ? fund : fund - ab);
        if (fund == std::string_view::npos) return ergebnis;
        ergebnis += neu;
        ab = fund + alt.size();
    }
}

void detail::anhaengen_zahl(std::string& ziel, long long teil)
{
    char puffer[24];
    const auto [ende, fehler] = std::to_chars(puffer, puffer + sizeof puffer, teil);
    ziel.append(puffer, ende);
}

std::optional<std::string_view> Zeilenleser::naechste()
{
    if (m_rest.empty()) return std::nullopt;
    const auto ende = m_rest.find('\n');
    auto zeile = m_rest.substr(0, ende);
    m_rest.remove_prefix(ende == std::string_view::npos ? m_rest.size() : ende + 1);
    if (!zeile.empty() && zeile.back() == '\r') zeile.remove_suffix(1);
    return zeile;
}

}  // namespace jorv
