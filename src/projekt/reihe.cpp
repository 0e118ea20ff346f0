#include "projekt/reihe.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "modell/Meldungen.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

// Nearly all words are plain digits; whatever else there is goes through the number parser.
template <typename T>
std::optional<T> ganz_lesen(std::string_view wort, std::optional<T> (*runden)(double))
{
    T wert = 0;
    const auto [ende, fehler] = std::from_chars(wort.data(), wort.data() + wort.size(), wert);
    if (fehler == std::errc{} && ende == wort.data() + wort.size()) return wert;
    return runden(zahl_lesen(wort));
}

}  // namespace

Reihe& Reihe::fehler(std::string_view feldwort)
{
    if (!m_gut) return *this;
    m_gut = false;
    stop_melden(m_g, verkettet(feldwort, " fehlerhaft in der Datei:\n", m_g.Verfahrensdatei, "\n\n",
                               u8"Datei überprüfen und ggf. reparieren!"_w));
    return *this;
}

bool Reihe::naechstes(std::string_view& wort, Feldwort feldwort)
{
    if (!m_gut) return false;
    const Wort w = m_worte.naechstes();
    if (w.status != Wortstatus::gefunden) fehler(feldwort.fehlt);
    wort = w.text;
    return m_gut;
}

template <typename T, typename Umwandlung>
Reihe& Reihe::wandeln(T& ziel, Feldwort wort, Umwandlung umwandlung)
{
    std::string_view text;
    if (!naechstes(text, wort)) return *this;
    const std::optional<T> wert = umwandlung(text);
    if (!wert) return fehler(wort.konvertierung);
    ziel = *wert;
    return *this;
}

Reihe& Reihe::text(std::string& ziel, Feldwort wort)
{
    std::string_view text;
    if (!naechstes(text, wort)) return *this;
    // Written last, a word would lose the tabs at its ends: so it loses them everywhere.
    const auto von = text.find_first_not_of('\t');
    if (von == std::string_view::npos) return fehler(wort.fehlt);
    ziel = text.substr(von, text.find_last_not_of('\t') - von + 1);
    return *this;
}

Reihe& Reihe::zahl(double& ziel, Feldwort wort)
{
    return wandeln(ziel, wort, [](std::string_view t) { return reihenzahl(zahl_lesen(t)); });
}

Reihe& Reihe::ganz(std::int16_t& ziel, Feldwort wort)
{
    return wandeln(ziel, wort, [](std::string_view t) { return ganz_lesen<std::int16_t>(t, ganz16); });
}

Reihe& Reihe::ganz(std::int32_t& ziel, Feldwort wort)
{
    return wandeln(ziel, wort, [](std::string_view t) { return ganz_lesen<std::int32_t>(t, ganz32); });
}

Reihe& Reihe::ganz(std::uint8_t& ziel, Feldwort wort)
{
    return wandeln(ziel, wort, [](std::string_view t) -> std::optional<std::uint8_t> {
        const auto wert = ganz32(zahl_lesen(t));
        if (!wert || *wert < 0 || *wert > std::numeric_limits<std::uint8_t>::max()) return std::nullopt;
        return static_cast<std::uint8_t>(*wert);
    });
}

Reihe& Reihe::auslassen(Feldwort wort)
{
    std::string_view text;
    naechstes(text, wort);
    return *this;
}

Reihe& Reihe::schalter(bool& ziel, Feldwort wort)
{
    return wandeln(ziel, wort, [](std::string_view t) {
        return t == "1" || t == "0" ? std::optional<bool>(t == "1") : std::nullopt;
    });
}

void wachstum_melden(Global& g, const Sektionsart& art, int neu)
{
    if (neu == 0)
        stop_melden(g, dimensionierung_meldung(art.nummer_erste, art.routine, art.anweisung_erste));
    else
        stop_melden(g, dimensionierung_meldung(art.nummer_weitere, art.routine,
                                               verkettet("    ReDim Preserve ", art.feldname, "(", neu, ")"),
                                               art.luecke_weitere));
}

std::string_view Reihenquelle::holen(int n, std::string& puffer) const
{
    const std::string_view ganz = m_profil.reihe(m_reihen, n);
    const std::string_view zeile = m_art.ganze_werte ? ganz : Profil::gekuerzt(ganz);
    if (!m_art.komma_zu_punkt || zeile.find(',') == std::string_view::npos) return zeile;
    puffer = zeile;
    std::replace(puffer.begin(), puffer.end(), ',', '.');
    return puffer;
}

std::optional<double> reihenzahl(double wert)
{
    constexpr double zu_gross = 1e15, nichts = 1e-9;
    if (!(std::fabs(wert) < zu_gross)) return std::nullopt;
    return std::fabs(wert) < nichts ? 0 : wert;
}

std::string als_wort(std::string_view text)
{
    return hat_trenner(text) ? verkettet("\"", text, "\"") : std::string(text);
}

}  // namespace jorv
