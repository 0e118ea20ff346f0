#include "suite/spalten.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace jorv::suite {

namespace {

// Powers of ten that a double holds exactly; with a whole number below 10^15 one division or product gives the nearest
// double, as the slower ways do.
constexpr int GROESSTE_POTENZ = 22;
constexpr int ZIFFERN = 15;
constexpr std::array<double, GROESSTE_POTENZ + 1> ZEHN_HOCH = [] {
    std::array<double, GROESSTE_POTENZ + 1> potenzen{1.0};
    for (std::size_t i = 1; i < potenzen.size(); ++i) potenzen[i] = potenzen[i - 1] * 10.0;
    return potenzen;
}();

// Digits from `stelle` on, appended to `wert`; returns their count.
int ziffern(std::string_view feld, std::size_t& stelle, std::uint64_t& wert)
{
    int anzahl = 0;
    for (; stelle < feld.size() && feld[stelle] >= '0' && feld[stelle] <= '9' && anzahl < ZIFFERN; ++stelle, ++anzahl)
        wert = 10 * wert + static_cast<std::uint64_t>(feld[stelle] - '0');
    return anzahl;
}

// The numbers of the files almost without exception: few digits, a small exponent. Nothing for any other text.
std::optional<double> kurze_zahl(std::string_view feld)
{
    std::size_t stelle = feld.starts_with('-') ? 1 : 0;
    std::uint64_t mantisse = 0, hochzahl = 0;
    int exponent = 0;
    const int vor = ziffern(feld, stelle, mantisse);
    int nach = 0;
    if (stelle < feld.size() && feld[stelle] == '.') nach = ziffern(feld, ++stelle, mantisse);
    if (vor + nach == 0 || vor + nach > ZIFFERN) return {};
    if (stelle < feld.size() && std::string_view("EeDd").find(feld[stelle]) != std::string_view::npos) {
        const bool minus = ++stelle < feld.size() && feld[stelle] == '-';
        if (stelle < feld.size() && (minus || feld[stelle] == '+')) ++stelle;
        const int anzahl = ziffern(feld, stelle, hochzahl);
        if (anzahl == 0 || anzahl > 3) return {};
        exponent = static_cast<int>(hochzahl) * (minus ? -1 : 1);
    }
    exponent -= nach;
    if (stelle != feld.size() || exponent < -GROESSTE_POTENZ || exponent > GROESSTE_POTENZ) return {};
    const auto betrag = static_cast<double>(mantisse);
    const double wert = exponent < 0 ? betrag / ZEHN_HOCH[static_cast<std::size_t>(-exponent)]
                                     : betrag * ZEHN_HOCH[static_cast<std::size_t>(exponent)];
    return feld.front() == '-' ? -wert : wert;
}

// The decimal rounding of a number by whole numbers, unless it lies so near to a tie that the product could hide it.
bool kurzer_text(double wert, int stellen, std::array<char, 64>& puffer, std::size_t& laenge)
{
    if (!(std::abs(wert) < 1e11) || stellen > 7 || std::signbit(wert) == (wert >= 0)) return false;
    const double betrag = std::abs(wert) * ZEHN_HOCH[static_cast<std::size_t>(stellen)], ganz = std::floor(betrag);
    if (betrag > 1e12 || std::abs(betrag - ganz - 0.5) < 1e-3) return false;
    auto rest = static_cast<std::uint64_t>(ganz) + (betrag - ganz > 0.5 ? 1 : 0);
    std::size_t stelle = puffer.size();
    for (int i = 0; rest > 0 || i <= stellen; ++i, rest /= 10) {
        if (i == stellen && stellen > 0) puffer[--stelle] = '.';
        puffer[--stelle] = static_cast<char>('0' + rest % 10);
    }
    if (wert < 0) puffer[--stelle] = '-';
    laenge = puffer.size() - stelle;
    std::copy(puffer.begin() + static_cast<std::ptrdiff_t>(stelle), puffer.end(), puffer.begin());
    return true;
}

}  // namespace

std::string_view spalten(std::string_view zeile, std::size_t ab, std::size_t anzahl)
{
    if (ab >= zeile.size()) return {};
    std::string_view feld = zeile.substr(ab, anzahl);
    while (!feld.empty() && (feld.back() == ' ' || feld.back() == '\r')) feld.remove_suffix(1);
    while (!feld.empty() && feld.front() == ' ') feld.remove_prefix(1);
    return feld;
}

std::optional<double> spaltenzahl(std::string_view feld)
{
    if (!feld.empty() && feld.front() == '+') feld.remove_prefix(1);
    if (feld.empty()) return {};
    if (const auto kurz = kurze_zahl(feld)) return kurz;
    std::array<char, 40> puffer{};
    if (const auto stelle = feld.find_first_of("Dd"); stelle != std::string_view::npos) {
        if (feld.size() > puffer.size()) return {};
        std::copy(feld.begin(), feld.end(), puffer.begin());
        puffer[stelle] = 'e';
        feld = std::string_view(puffer.data(), feld.size());
    }
    double wert = 0.0;
    const auto [ende, fehler] = std::from_chars(feld.data(), feld.data() + feld.size(), wert);
    if (fehler != std::errc{} || ende != feld.data() + feld.size() || !std::isfinite(wert)) return {};
    return wert;
}

std::optional<int> spaltenganz(std::string_view feld)
{
    if (!feld.empty() && feld.front() == '+') feld.remove_prefix(1);
    int wert = 0;
    const auto [ende, fehler] = std::from_chars(feld.data(), feld.data() + feld.size(), wert);
    if (feld.empty() || fehler != std::errc{} || ende != feld.data() + feld.size()) return {};
    return wert;
}

void anhaengen_fest(std::string& ziel, double wert, int breite, int stellen)
{
    std::array<char, 64> puffer;
    const auto platz = static_cast<std::size_t>(breite);
    std::size_t laenge = 0;
    if (!kurzer_text(wert, stellen, puffer, laenge)) {
        const auto [ende, fehler] =
            std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert, std::chars_format::fixed, stellen);
        laenge = fehler == std::errc{} ? static_cast<std::size_t>(ende - puffer.data()) : platz + 1;
    }
    if (laenge > platz) {
        ziel.append(platz, '*');
        return;
    }
    ziel.append(platz - laenge, ' ').append(puffer.data(), laenge);
}

void anhaengen_links(std::string& ziel, std::string_view text, std::size_t breite)
{
    text = text.substr(0, breite);
    ziel.append(text).append(breite - text.size(), ' ');
}

}  // namespace jorv::suite
