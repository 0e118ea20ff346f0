#include <algorithm>
#include <array>
#include <cmath>
#include <nlohmann/json.hpp>

#include "konsole/Befehle.h"
#include "konsole/Lage.h"
#include "konsole/Tabelle.h"
#include "planung/gesamtuebersicht.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

constexpr int breite = 60;  // characters of the axis
constexpr int hoechstens_marken = 8;

// The kinds of rows from top to bottom.
struct Art {
    std::string_view name;
    const Feld<Uebersichtszeile>& zeilen;
};

std::array<Art, 3> arten(const Gesamtuebersicht& u)
{
    return {{{"ROVER", u.zeit_r}, {"TOREL", u.zeit_s}, {"virt.Referenzstation", u.zeit_v}}};
}

// The character of a fraction of the axis.
std::size_t zeichen(double anteil)
{
    return static_cast<std::size_t>(std::lround(std::clamp(anteil, 0.0, 1.0) * breite));
}

// A bar within the axis is at least one character wide, one beside it leaves its row empty.
std::string balken_text(const Balken& balken)
{
    std::string text(breite, '.');
    if (balken.bis <= balken.von) return text;
    const std::size_t von = std::min(zeichen(balken.von), static_cast<std::size_t>(breite - 1));
    const std::size_t bis = std::max(zeichen(balken.bis), von + 1);
    return text.replace(von, bis - von, bis - von, '=');
}

// The marks' texts at their places; one that would run into the one before or over the end is left out.
std::string achse_text(const Zeitachse& achse)
{
    std::string text;
    for (const auto& marke : achse.marken(hoechstens_marken)) {
        if (marke.anteil < 0 || marke.anteil > 1) continue;
        const std::size_t ort = zeichen(marke.anteil);
        if (ort + marke.Text.size() > breite || (!text.empty() && ort < text.size() + 1)) continue;
        text.resize(ort, ' ');
        text += marke.Text;
    }
    return text;
}

std::string uebersicht_text(const Gesamtuebersicht& u)
{
    Tabelle tabelle({"Datei", "Start", "Ende", achse_text(u.achse)});
    for (const auto& art : arten(u))
        for (const auto& z : art.zeilen)
            tabelle.zeile({z.Dateiname, datum_text(z.Beginn), datum_text(z.Ende), balken_text(z.balken)});
    return verkettet(trimmen(u.Titel), "\n", tabelle.text(""));
}

std::string uebersicht_json(const Gesamtuebersicht& u)
{
    using Json = nlohmann::ordered_json;
    Json zeilen = Json::array(), marken = Json::array();
    for (const auto& art : arten(u))
        for (const auto& z : art.zeilen)
            zeilen.push_back(Json{{"Art", art.name},
                                  {"Dateiname", utf8_aus_1252(z.Dateiname)},
                                  {"Start", datum_text(z.Beginn)},
                                  {"Ende", datum_text(z.Ende)},
                                  {"von", z.balken.von},
                                  {"bis", z.balken.bis}});
    for (const auto& m : u.achse.marken(hoechstens_marken))
        marken.push_back(Json{{"Anteil", m.anteil}, {"Text", m.Text}});
    return Json{{"Titel", utf8_aus_1252(trimmen(u.Titel))},
                {"von", datum_text(u.frueheste)},
                {"bis", datum_text(u.spaeteste)},
                {"Zeilen", zeilen},
                {"Marken", marken}}
               .dump(2) +
           "\n";
}

// Chooses the day as the entry of the menu does. False for a word that is no number.
bool tag_waehlen(Lage& lage, std::string_view wort)
{
    lage.g.zeit_tag = 0;
    if (wort.empty()) return true;
    const auto tag = ganz_streng(wort);
    if (!tag) return false;
    for (int i = 1; i <= lage.g.tage.anzahl(); ++i)
        if (lage.g.tage[i] == *tag) lage.g.zeit_tag = static_cast<std::int16_t>(i);
    return true;
}

Ausgang zeiten(Lage& lage)
{
    if (!tag_waehlen(lage, lage.wort(1))) return lage.falsch(verkettet(lage.wort(1), " ist kein Tag des Jahres."));
    if (lage.g.tage.anzahl() == 0) return lage.stop("Im Verfahren gibt es keine Beobachtungen!");
    if (!lage.wort(1).empty() && lage.g.zeit_tag == 0)
        return lage.stop(verkettet("Am Tag ", lage.wort(1), " gibt es im Verfahren keine Beobachtungen!"));
    Gesamtuebersicht u;
    if (ist_fehler(gesamtuebersicht_oeffnen(lage.g, u))) return Ausgang::misslungen;
    lage.aus << (lage.aufruf.json ? uebersicht_json(u) : utf8_aus_1252(uebersicht_text(u)));
    return Ausgang::gut;
}

constexpr Befehl befehle[] = {
    {"zeiten",
     "NR [TAG]",
     "zeigt die Beobachtungen des Verfahrens oder eines Tages als Balken auf einer Zeitachse\n"
     "TAG ist die Nummer des Tages im Jahr, wie sie im Dateinamen steht.",
     "jorv zeiten 1 167",
     1,
     2,
     {},
     Grundlage::nur_lesen,
     zeiten},
};

}  // namespace

std::span<const Befehl> befehle_zeiten()
{
    return befehle;
}

}  // namespace jorv
