#include "auswertung/ergebnis.h"

#include <array>
#include <optional>

#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

namespace {

constexpr std::size_t laenge_kurz = 101;       // short list with the four-character point name
constexpr std::size_t laenge_kurz_lang = 117;  // with the twenty-character name
constexpr std::size_t laenge_lang = 100;       // long list, the row of the short report

constexpr std::string_view nicht_geoeffnet = u8"konnte nicht geöffnet werden!"_w;
constexpr std::string_view nicht_gelesen = "konnte nicht richtig gelesen werden!";
constexpr std::string_view nicht_geschrieben = "konnte nicht richtig geschrieben werden!";
constexpr std::string_view nicht_kopiert = "konnte nicht kopiert werden!";
constexpr std::string_view nicht_geloescht = u8"konnte nicht gelöscht werden!"_w;

// A file that takes a piece of the line, and the words of its messages.
struct Ziel {
    std::string pfad;
    std::string_view oeffnen, schreiben;
    Dauer dauer = Dauer::fest;  // what is deleted again behind its copy needs no flush
    bool neu = false;           // created by this evaluation
};

void ohne_extraktion_melden(Global& g, const std::string& extraktion, std::string_view rover)
{
    const std::string protokoll = im_Verfahren(g, verkettet(links(rover, 8), ".vrt "));
    stop_melden(g, verkettet(datei_meldung("Die Extraktionsdatei:", extraktion, nicht_geoeffnet), "\n\n",
                             u8"Eventuell wurde die WaSoft nicht ordnungsgemäß durchgeführt."_w,
                             "\n\nBitte die Protokolldatei:\n", protokoll, "auf ERROR-Meldungen untersuchen!"));
}

// Opening for append: nothing is written, a missing file is created.
bool oeffnen(Global& g, Ziel& ziel)
{
    const bool fehlte = !g.dateien.vorhanden(ziel.pfad);
    if (g.dateien.anhaengen(ziel.pfad, "", Dauer::fluechtig)) {
        stop_melden(g, datei_meldung(ziel.oeffnen, ziel.pfad, nicht_geoeffnet));
        return false;
    }
    ziel.neu = fehlte;
    return true;
}

bool anhaengen(Global& g, const Ziel& ziel, std::string_view stueck)
{
    if (!g.dateien.anhaengen(ziel.pfad, verkettet(stueck, "\r\n"), ziel.dauer)) return true;
    stop_melden(g, datei_meldung(ziel.schreiben, ziel.pfad, nicht_geschrieben));
    return false;
}

// The pieces of the line, in the order of the targets.
using Stuecke = std::array<std::string_view, 3>;

Stuecke zerlegen(std::string_view zeile, std::size_t laenge_utm)
{
    const std::string_view bericht = rechts(zeile, laenge_lang);
    return {links(zeile, laenge_utm), bericht, bericht};
}

// The first line; an empty one holds no result and counts as not readable.
std::optional<std::string_view> ergebniszeile(Global& g, const std::string& extraktion, const std::string& text)
{
    const auto zeile = Zeilenleser(text).naechste();
    if (zeile && !trimmen(*zeile).empty()) return zeile;
    stop_melden(g, datei_meldung("Die Extraktionsdatei:", extraktion, nicht_gelesen));
    return std::nullopt;
}

bool in_die_ergebnisse(Global& g, std::array<Ziel, 3>& ziele, const std::string& extraktion, const std::string& text,
                       std::size_t laenge_utm)
{
    for (auto& ziel : ziele)
        if (!oeffnen(g, ziel)) return false;
    const auto zeile = ergebniszeile(g, extraktion, text);
    if (!zeile) return false;
    const Stuecke stuecke = zerlegen(*zeile, laenge_utm);
    for (std::size_t i = 0; i < ziele.size(); ++i)
        if (!anhaengen(g, ziele[i], stuecke[i])) return false;
    return true;
}

// The copy below jorv_out; the source must stay when it fails.
bool ablegen(Global& g, const std::string& quelle, std::string_view ordner, std::string_view name,
             std::string_view kopf)
{
    const std::string nach = im_Verfahren(g, verkettet("jorv_out\\", ordner, "\\", name));
    if (!g.dateien.kopieren(quelle, nach)) return true;
    stop_melden(g, datei_meldung(kopf, quelle, nicht_kopiert));
    return false;
}

void loeschen(Global& g, const std::string& pfad, std::string_view kopf)
{
    if (g.dateien.loeschen(pfad)) stop_melden(g, datei_meldung(kopf, pfad, nicht_geloescht));
}

void rover_auswerten(Global& g, const std::string& rover, std::size_t laenge_utm, int& status)
{
    const std::string extraktion = extraktionsdatei(g, rover);
    const std::string utm = verkettet(rover, ".UTM"), krz = verkettet(rover, ".KRZ");
    const auto text = g.dateien.lesen(extraktion);
    if (!text) {
        ohne_extraktion_melden(g, extraktion, rover);
        status = 99;
        return;
    }
    std::array<Ziel, 3> ziele = {
        {{im_Verfahren(g, utm), "Die RuNA-Eingabedatei:", "In die RuNA-Eingabedatei:", Dauer::fluechtig},
         {im_Verfahren(g, krz),
          "Die aktuelle Kurzprotokolldatei:", "In die aktuelle Kurprotokolldatei:", Dauer::fluechtig},
         {Verfahrens_Datei(g, ".KRZ"),
          "Die Kurzprotokolldatei aller Rover:", "In die Kurzprotokolldatei aller Rover:"}}};
    if (!in_die_ergebnisse(g, ziele, extraktion, *text, laenge_utm)) {
        for (const auto& ziel : ziele)
            if (ziel.neu) (void)g.dateien.loeschen(ziel.pfad);
        return;
    }
    const bool utm_abgelegt = ablegen(g, ziele[0].pfad, "dat_rov", utm, "Die RuNA-Eingabedatei:");
    const bool krz_abgelegt = ablegen(g, ziele[1].pfad, "krz_rov", krz, "Die aktuelle Kurzprotokolldatei:");
    loeschen(g, extraktion, "Die Extraktionsdatei:");
    if (utm_abgelegt) loeschen(g, ziele[0].pfad, "Die RuNa-Eingabedatei:");
    if (krz_abgelegt) loeschen(g, ziele[1].pfad, "Die aktuelle Kurzprotokolldatei:");
}

}  // namespace

std::string extraktionsdatei(const Global& g, std::string_view rover)
{
    return im_Verfahren(g, verkettet(links(rover, 8), ".ext"));
}

void rover_auswerten_vrs(Global& g, const std::string& rover, int& status)
{
    rover_auswerten(g, rover, g.MARKER_Info == "S" ? laenge_kurz : laenge_kurz_lang, status);
}

void rover_auswerten_fremd(Global& g, const std::string& rover, int& status)
{
    rover_auswerten(g, rover, laenge_kurz, status);
}

}  // namespace jorv
