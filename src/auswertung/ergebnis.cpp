#include "auswertung/ergebnis.h"

#include <array>
#include <optional>
#include <span>

#include "auswertung/basislinie.h"
#include "auswertung/ergebniszeile.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

namespace {

constexpr std::string_view kopf_bal =
    "von  nach           dx          dy          dz     distance      sX     sY     sZ     rXY    rYZ    rZX\r\n";

constexpr std::string_view nicht_geoeffnet = u8"konnte nicht geöffnet werden!"_w;
constexpr std::string_view nicht_gelesen = "konnte nicht richtig gelesen werden!";
constexpr std::string_view nicht_geschrieben = "konnte nicht richtig geschrieben werden!";
constexpr std::string_view nicht_kopiert = "konnte nicht kopiert werden!";
constexpr std::string_view nicht_geloescht = u8"konnte nicht gelöscht werden!"_w;

// A file that takes a piece of the line, and the words of its messages.
struct Ziel {
    std::string pfad;
    std::string_view oeffnen, schreiben;
    Dauer dauer = Dauer::fest;   // what is deleted again behind its copy needs no flush
    std::string_view kopf = {};  // first line of a new file
    bool neu = false;            // created by this evaluation
};

void ohne_extraktion_melden(Global& g, const std::string& extraktion, std::string_view protokoll)
{
    stop_melden(g, verkettet(datei_meldung("Die Extraktionsdatei:", extraktion, nicht_geoeffnet), "\n\n",
                             u8"Eventuell wurde die WaSoft nicht ordnungsgemäß durchgeführt."_w,
                             "\n\nBitte die Protokolldatei:\n", im_Verfahren(g, protokoll),
                             " auf ERROR-Meldungen untersuchen!"));
}

// Opening for append: a missing file is created with its head, an old one stays as it is.
bool oeffnen(Global& g, Ziel& ziel)
{
    const bool fehlte = !g.dateien.vorhanden(ziel.pfad);
    if (g.dateien.anhaengen(ziel.pfad, "", Dauer::fluechtig)) {
        stop_melden(g, datei_meldung(ziel.oeffnen, ziel.pfad, nicht_geoeffnet));
        return false;
    }
    ziel.neu = fehlte;
    if (!fehlte || ziel.kopf.empty() || !g.dateien.anhaengen(ziel.pfad, ziel.kopf, Dauer::fluechtig)) return true;
    stop_melden(g, datei_meldung(ziel.schreiben, ziel.pfad, nicht_geschrieben));
    return false;
}

bool anhaengen(Global& g, const Ziel& ziel, std::string_view stueck)
{
    if (!g.dateien.anhaengen(ziel.pfad, verkettet(stueck, "\r\n"), ziel.dauer)) return true;
    stop_melden(g, datei_meldung(ziel.schreiben, ziel.pfad, nicht_geschrieben));
    return false;
}

// The first line; an empty one holds no result and counts as not readable.
std::optional<std::string_view> ergebniszeile(Global& g, const std::string& extraktion, const std::string& text)
{
    const auto zeile = Zeilenleser(text).naechste();
    if (zeile && !trimmen(*zeile).empty()) return zeile;
    stop_melden(g, datei_meldung("Die Extraktionsdatei:", extraktion, nicht_gelesen));
    return std::nullopt;
}

// Cuts the line and appends its pieces, one for each target in their order.
template <typename Zerlegen>
bool anfuegen(Global& g, std::span<Ziel> ziele, const std::string& extraktion, const std::string& text,
              const Zerlegen& zerlegen)
{
    for (auto& ziel : ziele)
        if (!oeffnen(g, ziel)) return false;
    const auto zeile = ergebniszeile(g, extraktion, text);
    if (!zeile) return false;
    const auto stuecke = zerlegen(*zeile);
    for (std::size_t i = 0; i < ziele.size(); ++i)
        if (!anhaengen(g, ziele[i], stuecke[i])) return false;
    return true;
}

// The same. After a fault no file that was created here stays behind.
template <typename Zerlegen>
bool in_die_ergebnisse(Global& g, std::span<Ziel> ziele, const std::string& extraktion, const std::string& text,
                       const Zerlegen& zerlegen)
{
    if (anfuegen(g, ziele, extraktion, text, zerlegen)) return true;
    for (const auto& ziel : ziele)
        if (ziel.neu) (void)g.dateien.loeschen(ziel.pfad);
    return false;
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

void rover_auswerten(Global& g, const std::string& rover, bool langer_name, int& status)
{
    const std::string extraktion = extraktionsdatei(g, rover);
    const std::string utm = verkettet(rover, ".UTM"), krz = verkettet(rover, ".KRZ");
    const auto text = g.dateien.lesen(extraktion);
    if (!text) {
        ohne_extraktion_melden(g, extraktion, verkettet(links(rover, 8), ".vrt"));
        status = 99;
        return;
    }
    std::array<Ziel, 3> ziele = {
        {{im_Verfahren(g, utm), "Die RuNA-Eingabedatei:", "In die RuNA-Eingabedatei:", Dauer::fluechtig},
         {im_Verfahren(g, krz),
          "Die aktuelle Kurzprotokolldatei:", "In die aktuelle Kurprotokolldatei:", Dauer::fluechtig},
         {Verfahrens_Datei(g, ".KRZ"),
          "Die Kurzprotokolldatei aller Rover:", "In die Kurzprotokolldatei aller Rover:"}}};
    const auto zerlegen = [langer_name](std::string_view zeile) {
        const auto stuecke = extrakt_zerlegen(zeile, langer_name);
        return std::array{stuecke.utm, stuecke.bericht, stuecke.bericht};
    };
    if (!in_die_ergebnisse(g, ziele, extraktion, *text, zerlegen)) return;
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
    rover_auswerten(g, rover, g.MARKER_Info != "S", status);
}

void rover_auswerten_fremd(Global& g, const std::string& rover, int& status)
{
    rover_auswerten(g, rover, false, status);
}

void basis_auswerten(Global& g, const std::string& basislinie, int& status)
{
    const auto [von, nach] = basislinie_teilen(basislinie);
    const std::string extraktion = extraktionsdatei_basis(g, basislinie);
    const auto text = g.dateien.lesen(extraktion);
    if (!text) {
        ohne_extraktion_melden(g, extraktion,
                               verkettet("jorv_out\\lis_bas\\", ohne_ende(von, 4), "-", ohne_ende(nach, 4), ".lis"));
        status = 99;
        return;
    }
    const std::string export_stamm = im_Verfahren(g, verkettet("jorv_out\\export\\", g.Verfahrensnummer));
    const std::string bal = verkettet(g.Verfahrensnummer, ".BAL");
    constexpr std::string_view oeffnen_bal = "Die Ergebnisdatei der Basislinie:";
    constexpr std::string_view schreiben_bal = "In die Ergebnisdatei der Basislinie:";
    std::array<Ziel, 4> ziele = {
        {{export_stamm + ".MRK", u8"Die Ergebnisdatei für LOVENA:"_w, u8"In die Ergebnisdatei für LOVENA:"_w},
         {export_stamm + ".TEM", u8"Die Ergebnisdatei für Tem:"_w, u8"In die Ergebnisdatei für Tem:"_w},
         {im_Verfahren(g, bal), oeffnen_bal, schreiben_bal, Dauer::fluechtig, kopf_bal},
         {im_Verfahren(g, "jorv_out\\dat_bas\\" + bal), oeffnen_bal, schreiben_bal, Dauer::fest, kopf_bal}}};
    // It holds one baseline only: what a broken run has left must not come before the row.
    if (g.dateien.ist_datei(ziele[2].pfad)) (void)g.dateien.loeschen(ziele[2].pfad);
    const auto zerlegen = [](std::string_view zeile) {
        const auto stuecke = extrakt_zerlegen_basis(zeile);
        return std::array{stuecke.mrk, stuecke.tem, stuecke.bal, stuecke.bal};
    };
    if (!in_die_ergebnisse(g, ziele, extraktion, *text, zerlegen)) return;
    const std::string eigene = verkettet(links(von, 8), "-", links(nach, 8), ".BAL");
    if (ablegen(g, ziele[2].pfad, "dat_bas", eigene, "Die aktuelle Kurzprotokolldatei:"))
        loeschen(g, ziele[2].pfad, oeffnen_bal);
    loeschen(g, extraktion, "Die Extraktionsdatei der Basislinie:");
}

}  // namespace jorv
