#include "suite/spalten.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace jorv::suite {

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
    const auto [ende, fehler] =
        std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert, std::chars_format::fixed, stellen);
    const auto laenge = static_cast<std::size_t>(ende - puffer.data());
    const auto platz = static_cast<std::size_t>(breite);
    if (fehler != std::errc{} || laenge > platz) {
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
