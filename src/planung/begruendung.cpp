#include "planung/begruendung.h"

#include <array>

#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "planung/einstellungen_rover.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

constexpr std::array<std::string_view, 4> ampeln = {"unbeurteilt", u8"grün"_w, "gelb", "rot"};

// In the order of the enumeration.
constexpr std::array<std::string_view, 15> pruefungen = {
    "keine Figur gezeichnet",
    "von Hand zugeordnet",
    "liegt in keiner Figur",
    u8"in einer Figur, aber keine Datei deckt den ROVER ab"_w,
    "weniger Dateien als Ecken der Figur",
    "so viele Dateien wie Ecken der Figur",
    "mehr Dateien als Ecken der Figur",
    "Tagesdatum einer Station weicht vom ROVER ab",
    "Tagesdatum oder Session der Stationen nicht einheitlich",
    "Beobachtung des ROVER mindestens 60 Minuten lang",
    "Stationen bieten weniger als eine Stunde",
    "Stationen bieten eine Stunde um den ROVER",
    u8"Beobachtungen der Stationen enden zu früh"_w,
    u8"nächste passende fremde Referenzstation zugeordnet"_w,
    u8"keine fremde Referenzstation deckt den ROVER mit einer Stunde ab"_w,
};

// "" when in time, else " 12 min zu spät" or, below a minute, in seconds.
std::string verfehlung(std::string_view wort, std::int64_t minuten, std::int64_t sekunden)
{
    if (minuten <= 0 && sekunden <= 0) return "";
    const bool in_minuten = minuten > 0;
    return verkettet(", ", wort, " ", zahl_text(static_cast<double>(in_minuten ? minuten : sekunden)),
                     in_minuten ? " min" : " s");
}

// A foreign station may stand where the rover stands: its distance is told also when it is 0.
std::string fremde_text(const Dateiurteil& u)
{
    constexpr std::int64_t stunde = 60;
    return verkettet(", Strecke ", fest(u.Strecke, 0), " m, ", zahl_text(static_cast<double>(u.Minuten_Laenge)),
                     " min lang", u.Minuten_Laenge < stunde ? u8" (kürzer als 60 min)"_w : "");
}

std::string verfehlungen(const Dateiurteil& u)
{
    return verkettet(verfehlung(u8"beginnt zu spät um"_w, u.Minuten_vorher, u.Sekunden_vorher),
                     verfehlung(u8"endet zu früh um"_w, u.Minuten_nachher, u.Sekunden_nachher));
}

std::string urteil_text(const Dateiurteil& u, bool fremd)
{
    return verkettet(u.TOREL_Dateiname, u.genommen ? "  genommen" : "  nicht genommen", verfehlungen(u),
                     fremd ? fremde_text(u) : "");
}

std::string figur_text(const Global& g, const Begruendung& b)
{
    if (b.Figur < 1 || b.Figur > g.GEO_Punkt.anzahl()) return "";
    const auto& figur = g.GEO_Punkt[b.Figur];
    std::string ecken;
    for (int i = 0; i < figur.Anzahl; ++i) ecken += verkettet(" ", figur.Punkt[static_cast<std::size_t>(i)]);
    return verkettet("Figur ", b.Figur, ":", ecken);
}

// In front of each kind of line, in the order of the enumeration.
constexpr std::array<std::string_view, 7> einzug = {"", "  ", "    ", "    ", "  - ", "  ", "  "};

std::string aufgezaehlt(const std::vector<std::string>& namen)
{
    std::string text;
    for (const auto& name : namen) text += verkettet(text.empty() ? "" : ", ", name);
    return text;
}

}  // namespace

std::string_view ampel_text(std::uint8_t status)
{
    return status < ampeln.size() ? ampeln[status] : "?";
}

std::string grund_text(std::uint8_t status, std::uint8_t grund)
{
    const std::string zeilen = ampel_bedeutung(status, grund);
    const auto bruch = zeilen.find('\n');
    return verkettet(zeilen.substr(0, bruch), " ", trimmen(zeilen.substr(bruch + 1)));
}

std::string_view pruefung_text(Pruefung pruefung)
{
    return pruefungen.at(static_cast<std::size_t>(pruefung));
}

// In mode F the rover's light is the image that it has in the tree.
std::string_view ampel_text(const Global& g, int i)
{
    constexpr int aus = 9;
    const int bild = rover_bild(g, i);
    return bild == aus ? "-" : ampel_text(static_cast<std::uint8_t>(bild));
}

std::string_view grund_fremd(const Global& g, int i)
{
    const bool ohne = i <= g.ROVER_VIRT.anzahl() && g.ROVER_VIRT[i].VIRT_Index == 0;
    return ohne ? pruefung_text(Pruefung::keine_fremde) : std::string_view{};
}

std::string zuordnung_text(const Global& g, int i)
{
    std::string text = g.OBS_R[i].Dateiname;
    if (ist_F(g)) {
        const std::string_view warum = grund_fremd(g, i);
        return verkettet(text, ": ", ampel_text(g, i), warum.empty() ? "" : ", ", warum, "\n");
    }
    if (i <= g.ROVER_TOREL.anzahl()) {
        const auto& zeile = g.ROVER_TOREL[i];
        text += verkettet(": ", ampel_text(zeile.Status));
        if (zeile.Status != 0) text += verkettet(", ", grund_text(zeile.Status, zeile.Grund));
    }
    return text + "\n";
}

std::string weg_text(const Weg& weg)
{
    std::vector<std::string> teile;
    switch (weg.art) {
        case Wegart::keiner:
            return std::string(
                u8"keiner mit den Dateien des Verfahrens. Es fehlen Dateien von drei TOREL-Stationen, die den ROVER "
                u8"überdecken."_w);
        case Wegart::schutz_aufheben:
            return "den Schutz der Einstellungen aufheben.";
        case Wegart::figur:
            return verkettet("auf der Karte die TOREL-Punkte ", aufgezaehlt(weg.Punkte),
                             " zu einem Dreieck verbinden.");
        case Wegart::von_hand:
            for (const auto& datei : weg.Dateien) {
                const std::string fehlt = verfehlungen(datei);
                teile.push_back(fehlt.empty() ? datei.TOREL_Dateiname
                                              : verkettet(datei.TOREL_Dateiname, " (", fehlt.substr(2), ")"));
            }
            return verkettet("den ROVER mit ", aufgezaehlt(teile), u8" verknüpfen und die Einstellungen schützen."_w);
        case Wegart::einfuegen:
            for (const auto& bedarf : weg.Bedarf)
                teile.push_back(verkettet(bedarf.TOREL_Dateiname, " (", datum_text(bedarf.von), " bis ",
                                          datum_text(bedarf.bis), ")"));
            return verkettet(u8"Stationsdateien einfügen: "_w, aufgezaehlt(teile), ".");
    }
    return {};
}

std::vector<Begruendungszeile> begruendung_zeilen(const Global& g, int i)
{
    std::string kopf = zuordnung_text(g, i);
    kopf.pop_back();
    std::vector<Begruendungszeile> zeilen = {{Zeilenart::kopf, std::move(kopf)}};
    if (static_cast<std::size_t>(i) > g.Begruendungen.size()) return zeilen;
    const Begruendung& b = g.Begruendungen[static_cast<std::size_t>(i - 1)];
    if (std::string figur = figur_text(g, b); !figur.empty()) zeilen.push_back({Zeilenart::figur, std::move(figur)});
    for (const auto& urteil : b.Dateien)
        zeilen.push_back(
            {urteil.genommen ? Zeilenart::genommen : Zeilenart::nicht_genommen, urteil_text(urteil, ist_F(g))});
    for (const Pruefung schritt : b.Schritte)
        zeilen.push_back({Zeilenart::schritt, std::string(pruefung_text(schritt))});
    if (!b.abweichende_Datei.empty())
        zeilen.push_back({Zeilenart::zusatz, verkettet("abweichende Datei: ", b.abweichende_Datei)});
    zeilen.push_back({Zeilenart::zusatz,
                      verkettet("Beobachtung des ROVER: ", zahl_text(static_cast<double>(b.Minuten_ROVER)), " min")});
    if (b.Minuten_Spanne > 0)
        zeilen.push_back(
            {Zeilenart::zusatz, verkettet("die Stationen bieten ", zahl_text(static_cast<double>(b.Minuten_Spanne)),
                                          " min (", datum_text(b.Spanne_von), " bis ", datum_text(b.Spanne_bis), ")")});
    if (const auto weg = weg_zu_gruen(g, i))
        zeilen.push_back({Zeilenart::weg, verkettet(u8"Weg zu Grün: "_w, weg_text(*weg))});
    return zeilen;
}

std::string begruendung_text(const Global& g, int i)
{
    std::string text;
    for (const auto& zeile : begruendung_zeilen(g, i))
        text += verkettet(einzug.at(static_cast<std::size_t>(zeile.art)), zeile.text, "\n");
    return text;
}

}  // namespace jorv
