#include "plattform/zahl.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace jorv {

namespace {

// The shortest decimal digits of a value: 0.d1d2d3... times ten to the exponent.
struct Dezimal {
    std::string ziffern;
    int exponent = 0;  // digits in front of the point
    bool negativ = false;
};

Dezimal dezimal(double wert)
{
    Dezimal d;
    d.negativ = std::signbit(wert);
    char puffer[40];
    const auto ende = std::to_chars(puffer, puffer + sizeof puffer, std::fabs(wert), std::chars_format::scientific).ptr;
    const auto e = std::find(puffer, ende, 'e');
    for (const char* z = puffer; z != e; ++z)
        if (*z != '.') d.ziffern += *z;
    std::from_chars(e[1] == '+' ? e + 2 : e + 1, ende, d.exponent);
    ++d.exponent;
    return d;
}

// Cuts to the wanted number of decimals, half away from zero on the decimal digits.
void runden(Dezimal& d, int stellen)
{
    const int behalten = d.exponent + stellen;
    if (behalten < 0) {
        d.ziffern.clear();
        return;
    }
    if (static_cast<std::size_t>(behalten) >= d.ziffern.size()) return;
    const bool auf = d.ziffern[static_cast<std::size_t>(behalten)] >= '5';
    d.ziffern.resize(static_cast<std::size_t>(behalten));
    if (!auf) return;
    for (std::size_t i = d.ziffern.size(); i-- > 0;) {
        if (d.ziffern[i] != '9') {
            ++d.ziffern[i];
            return;
        }
        d.ziffern[i] = '0';
    }
    d.ziffern.insert(d.ziffern.begin(), '1');
    ++d.exponent;
}

// Sign, whole part with at least `ganz` digits, mark, decimals between `min` and `max`.
std::string ausgeben(double wert, std::size_t ganz, std::size_t min, std::size_t max, char marke, bool mit_marke)
{
    if (!std::isfinite(wert)) return std::isnan(wert) ? "NaN" : wert < 0 ? "-Inf" : "Inf";
    Dezimal d = dezimal(wert);
    runden(d, static_cast<int>(max));
    std::string vor, nach;
    for (int i = 0; i < std::max(d.exponent, 0); ++i)
        vor += static_cast<std::size_t>(i) < d.ziffern.size() ? d.ziffern[static_cast<std::size_t>(i)] : '0';
    for (int i = std::min(d.exponent, 0); i < 0; ++i) nach += '0';
    if (d.exponent < static_cast<int>(d.ziffern.size()))
        nach += d.ziffern.substr(static_cast<std::size_t>(std::max(d.exponent, 0)));
    nach.resize(max, '0');
    while (nach.size() > min && nach.back() == '0') nach.pop_back();
    vor.erase(0, std::min(vor.find_first_not_of('0'), vor.size()));
    if (vor.size() < ganz) vor.insert(0, ganz - vor.size(), '0');
    const auto ist_null = [](const std::string& t) { return t.find_first_not_of('0') == std::string::npos; };
    std::string text = d.negativ && !(ist_null(vor) && ist_null(nach)) ? "-" : "";
    text += vor;
    if (mit_marke) text += marke;
    return text + nach;
}

}  // namespace

double zahl_lesen(std::string_view wort)
{
    char puffer[512] = {};
    std::size_t n = 0;
    bool ziffer = false, punkt = false, exponent = false;
    for (const char roh : wort) {
        if (roh == ' ') continue;
        const char z = roh == 'D' || roh == 'd' || roh == 'e' ? 'E' : roh;
        if (n + 1 >= sizeof puffer) break;
        if (z >= '0' && z <= '9') {
            ziffer = true;
        } else if (z == '+' || z == '-') {
            if (n != 0 && puffer[n - 1] != 'E') break;
            if (z == '+') {
                // from_chars takes no plus sign in front; behind an exponent it does.
                if (n == 0) continue;
            }
        } else if (z == '.') {
            if (punkt || exponent) break;
            punkt = true;
        } else if (z == 'E') {
            if (exponent || !ziffer) break;
            exponent = true;
        } else {
            break;
        }
        puffer[n++] = z;
    }
    double wert = 0;
    const auto [ende, fehler] = std::from_chars(puffer, puffer + n, wert);
    if (fehler == std::errc::result_out_of_range) {
        // Too small counts as 0, too large as infinite.
        const std::string_view text(puffer, n);
        const auto e = text.find('E');
        const bool klein = e != std::string_view::npos && e + 1 < n && text[e + 1] == '-';
        if (klein) return 0;
        return puffer[0] == '-' ? -std::numeric_limits<double>::infinity() : std::numeric_limits<double>::infinity();
    }
    return fehler == std::errc{} ? wert : 0;
}

std::optional<std::int16_t> ganz16(double wert)
{
    const auto g = ganz32(wert);
    if (!g || *g < std::numeric_limits<std::int16_t>::min() || *g > std::numeric_limits<std::int16_t>::max())
        return std::nullopt;
    return static_cast<std::int16_t>(*g);
}

std::optional<std::int32_t> ganz32(double wert)
{
    if (!std::isfinite(wert)) return std::nullopt;
    const double unten = std::floor(wert), rest = wert - unten;
    double g = unten;
    if (rest > 0.5 || (rest == 0.5 && std::fmod(unten, 2.0) != 0.0)) g += 1;
    if (g < std::numeric_limits<std::int32_t>::min() || g > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return static_cast<std::int32_t>(g);
}

namespace {
template <typename T>
std::optional<T> streng(std::string_view text)
{
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    if (text.size() > 1 && text.front() == '+' && text[1] != '-') text.remove_prefix(1);
    T wert{};
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), wert);
    if (fehler != std::errc{} || ende != text.data() + text.size()) return std::nullopt;
    return wert;
}
}  // namespace

std::optional<double> zahl_streng(std::string_view text)
{
    const auto wert = streng<double>(text);
    return wert && std::isfinite(*wert) ? wert : std::nullopt;
}

std::optional<int> ganz_streng(std::string_view text)
{
    return streng<int>(text);
}

std::string format_bild(double wert, std::string_view muster)
{
    const auto punkt = muster.find('.');
    const auto vor = muster.substr(0, punkt);
    const auto nach = punkt == std::string_view::npos ? std::string_view{} : muster.substr(punkt + 1);
    const auto nullen = [](std::string_view t) {
        return static_cast<std::size_t>(std::count(t.begin(), t.end(), '0'));
    };
    return ausgeben(wert, nullen(vor), nullen(nach), nach.size(), ',', punkt != std::string_view::npos);
}

std::string zahl_format(double wert, std::string_view muster)
{
    std::string text = format_bild(wert, muster);
    if (text.size() < muster.size()) text.insert(0, muster.size() - text.size(), ' ');
    std::replace(text.begin(), text.end(), ',', '.');
    return text;
}

std::string zahl_format_fuell(double wert, std::string_view muster, std::string_view fuell)
{
    std::string text = format_bild(wert, muster);
    if (const auto komma = text.find(','); komma != std::string::npos) text[komma] = '.';
    std::string vorn;
    for (std::size_t i = text.size(); i < muster.size(); ++i) vorn += fuell;
    return vorn + text;
}

std::string zahl_text(double wert)
{
    if (!std::isfinite(wert)) return "0";
    char puffer[400];
    const auto ende =
        std::to_chars(puffer, puffer + sizeof puffer, wert == 0 ? 0.0 : wert, std::chars_format::fixed).ptr;
    return std::string(puffer, ende);
}

std::string zahl_text_blank(double wert)
{
    return (wert < 0 ? "" : " ") + zahl_text(wert);
}

std::string fest(double wert, int stellen)
{
    const auto n = static_cast<std::size_t>(std::max(stellen, 0));
    return ausgeben(wert, 1, n, n, '.', n > 0);
}

}  // namespace jorv
