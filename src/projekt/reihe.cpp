#include "projekt/reihe.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "modell/Meldungen.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

Reihe& Reihe::fehler(std::string_view feldwort)
{
    if (!m_gut) return *this;
    m_gut = false;
    stop_melden(m_g, verkettet(feldwort, " fehlerhaft in der Datei:\n", m_g.Verfahrensdatei, "\n\n",
                               u8"Datei überprüfen und ggf. reparieren!"_w));
    return *this;
}

bool Reihe::naechstes(std::string_view& wort, const Feldwort& feldwort)
{
    if (!m_gut) return false;
    const Wort w = m_worte.naechstes();
    if (w.status != Wortstatus::gefunden) fehler(feldwort.fehlt);
    wort = w.text;
    return m_gut;
}

template <typename T, typename Umwandlung>
Reihe& Reihe::wandeln(T& ziel, const Feldwort& wort, Umwandlung umwandlung)
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
    return wandeln(ziel, wort, [](std::string_view t) { return std::optional<std::string>(t); });
}

Reihe& Reihe::zahl(double& ziel, Feldwort wort)
{
    return wandeln(ziel, wort, [](std::string_view t) {
        const double wert = zahl_lesen(t);
        return std::isfinite(wert) ? std::optional<double>(wert) : std::nullopt;
    });
}

Reihe& Reihe::ganz(std::int16_t& ziel, Feldwort wort)
{
    return wandeln(ziel, wort, [](std::string_view t) { return ganz16(zahl_lesen(t)); });
}

Reihe& Reihe::ganz(std::int32_t& ziel, Feldwort wort)
{
    return wandeln(ziel, wort, [](std::string_view t) { return ganz32(zahl_lesen(t)); });
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

std::string reihe_holen(const Profil& profil, const Sektionsart& art, int n)
{
    const std::string schluessel = verkettet(n);
    std::string zeile(art.ganze_werte ? profil.wert_ganz(art.sektion, schluessel)
                                      : profil.wert(art.sektion, schluessel));
    if (art.komma_zu_punkt) std::replace(zeile.begin(), zeile.end(), ',', '.');
    return zeile;
}

std::string als_wort(std::string_view text)
{
    return text.find(' ') == std::string_view::npos ? std::string(text) : verkettet("\"", text, "\"");
}

}  // namespace jorv
