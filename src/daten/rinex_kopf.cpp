#include "daten/rinex_kopf.h"

#include <cmath>
#include <utility>

#include "daten/wortzahl.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

constexpr std::array<Wertname, 6> startworte = {{
    {"Konvertierungsfehler beim Startjahr", "Startjahr", "Startjahr"},
    {"Konvertierungsfehler beim Startmonat", "Startmonat", "Startmonat"},
    {"Konvertierungsfehler beim Starttag", "Starttag", "Starttag"},
    {"Konvertierungsfehler bei der Startstunde", "Die Startstunde", "Startstunde"},
    {"Konvertierungsfehler bei der Startminute", "Die Startminute", "Startminute"},
    {"Konvertierungsfehler bei der Startsekunde", "Die Startsekunde", "Startsekunde"},
}};
constexpr std::array<Wertname, 6> endworte = {{
    {"Konvertierungsfehler beim Endjahr", "Endjahr", "Endjahr"},
    {"Konvertierungsfehler beim Endmonat", "Endmonat", "Endmonat"},
    {"Konvertierungsfehler beim Endtag", "Endtag", "Endtag"},
    {"Konvertierungsfehler bei der Endstunde", "Die Endstunde", "Endstunde"},
    {"Konvertierungsfehler bei der Endminute", "Die Endminute", "Endminute"},
    {"Konvertierungsfehler bei der Endsekunde", "Die Endsekunde", "Endsekunde"},
}};

bool zeit_holen(Global& g, std::string_view zeile, const std::array<Wertname, 6>& namen, const Leseort& ort,
                Kopfzeit& zeit)
{
    for (std::size_t i = 0; i < zeit.size(); ++i) {
        const auto zahl = ganz16_holen(g, zeile, static_cast<int>(i) + 1, namen[i], ort);
        if (!zahl) return false;
        zeit[i] = *zahl;
    }
    return true;
}

// One header line into the fields; false after a message.
bool kopfzeile_lesen(Global& g, std::string_view zeile, const Leseort& ort, Rinexkopf& kopf)
{
    if (ist_kopfzeile(zeile, "COMMENT")) return true;
    if (ist_kopfzeile(zeile, "APPROX POSITION XYZ")) return xyz_holen(g, zeile, 1, ort, kopf.X, kopf.Y, kopf.Z);
    if (ist_kopfzeile(zeile, "TIME OF FIRST OBS")) return zeit_holen(g, zeile, startworte, ort, kopf.Start);
    if (ist_kopfzeile(zeile, "TIME OF LAST OBS")) return zeit_holen(g, zeile, endworte, ort, kopf.Ende);
    if (ist_kopfzeile(zeile, "ANT # / TYPE"))
        kopf.Antenne = ersetzt(std::string(links(zeile, 40)), ',', '.');
    else if (ist_kopfzeile(zeile, "# / TYPES OF OBSERV") && kopf.Typen == 0)
        kopf.Typen = typen_lesen(zeile);
    else if (ist_kopfzeile(zeile, "INTERVAL"))
        kopf.Intervall = ganz32(zahl_lesen(ersetzt(std::string(links(zeile, 6)), ',', '.'))).value_or(0);
    else if (ist_kopfzeile(zeile, "END OF HEADER"))
        kopf.abgeschlossen = true;
    return true;
}

// The last epoch gives a two-digit year, which lies in the century of the start.
bool endzeit_aus_epoche(Global& g, std::string_view zeile, const Leseort& ort, Rinexkopf& kopf)
{
    const auto jahr = zahl_holen(g, zeile, 1, endworte[0], ort);
    if (!jahr) return false;
    const auto mit_jahrhundert = ganz16(std::floor(kopf.Start[0] / 100.0) * 100 + *jahr);
    if (!mit_jahrhundert) {
        stop_melden(g, wort_meldung(endworte[0], Wortfehler::konvertierung, ort.datei, ort.zeile));
        return false;
    }
    kopf.Ende[0] = *mit_jahrhundert;
    for (std::size_t i = 1; i < kopf.Ende.size(); ++i) {
        const auto zahl = ganz16_holen(g, zeile, static_cast<int>(i) + 1, endworte[i], ort);
        if (!zahl) return false;
        kopf.Ende[i] = *zahl;
    }
    return true;
}

}  // namespace

std::optional<Rinexkopf> rinexkopf_lesen(Global& g, Zeilenstrom& strom, std::string_view name)
{
    Rinexkopf kopf;
    while (!kopf.abgeschlossen) {
        const auto zeile = strom.naechste();
        if (!zeile) break;
        if (!kopfzeile_lesen(g, *zeile, {name, strom.nummer()}, kopf)) return std::nullopt;
    }
    if (kopf.abgeschlossen && kopf.Ende[0] != 0) return kopf;
    auto epochen = epochen_abtasten(strom, kopf.Typen);
    if (strom.fehler()) return std::nullopt;
    if (!endzeit_aus_epoche(g, epochen.letzte_Zeile, {name, strom.nummer()}, kopf)) return std::nullopt;
    if (kopf.abgeschlossen) kopf.Satelliten = std::move(epochen.Satelliten);
    return kopf;
}

}  // namespace jorv
