#include "simulator/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace jorv::simulator {

void fest(std::string& aus, double wert, int breite, int stellen)
{
    double faktor = 1;
    for (int i = 0; i < stellen; ++i) faktor *= 10;
    const long long skaliert = std::llround(wert * faktor);
    unsigned long long rest = static_cast<unsigned long long>(skaliert < 0 ? -skaliert : skaliert);
    char puffer[40];
    char* anfang = puffer + sizeof puffer;
    int ziffern = 0;
    do {
        if (stellen > 0 && ziffern == stellen) *--anfang = '.';
        *--anfang = static_cast<char>('0' + rest % 10);
        rest /= 10;
        ++ziffern;
    } while (rest != 0 || ziffern <= stellen);
    if (skaliert < 0) *--anfang = '-';
    const auto laenge = static_cast<int>(puffer + sizeof puffer - anfang);
    if (laenge < breite) aus.append(static_cast<std::size_t>(breite - laenge), ' ');
    aus.append(anfang, static_cast<std::size_t>(laenge));
}

void ganz(std::string& aus, long long wert, int breite, char fuell)
{
    char puffer[24];
    const auto ende = std::to_chars(puffer, puffer + sizeof puffer, wert).ptr;
    const auto laenge = static_cast<int>(ende - puffer);
    if (laenge < breite) aus.append(static_cast<std::size_t>(breite - laenge), fuell);
    aus.append(puffer, static_cast<std::size_t>(laenge));
}

namespace {
std::string wissenschaftlich(double wert, int stellen)
{
    char puffer[40];
    const auto ende = std::to_chars(puffer, puffer + sizeof puffer, wert, std::chars_format::scientific, stellen).ptr;
    return {puffer, ende};
}
}  // namespace

void exponent(std::string& aus, double wert, int breite, int stellen)
{
    std::string text = wissenschaftlich(wert, stellen);
    std::replace(text.begin(), text.end(), 'e', 'D');
    const auto platz = static_cast<std::size_t>(breite);
    if (text.size() < platz) aus.append(platz - text.size(), ' ');
    aus += text;
}

double gedruckt(double wert)
{
    return zahl(wissenschaftlich(wert, 12)).value_or(wert);
}

void links(std::string& aus, std::string_view wert, int breite)
{
    wert = wert.substr(0, static_cast<std::size_t>(breite));
    aus += wert;
    aus.append(static_cast<std::size_t>(breite) - wert.size(), ' ');
}

void kopfzeile(std::string& aus, std::string_view inhalt, std::string_view label)
{
    links(aus, inhalt, 60);
    aus += label;
    aus += '\n';
}

std::optional<double> zahl(std::string_view text)
{
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    double wert = 0;
    const auto ergebnis = std::from_chars(text.data(), text.data() + text.size(), wert);
    if (ergebnis.ec != std::errc() || ergebnis.ptr != text.data() + text.size() || !std::isfinite(wert)) return {};
    return wert;
}

}  // namespace jorv::simulator
