#include "daten/punkt_info.h"

#include <array>
#include <cstdint>
#include <optional>
#include <utility>

#include "daten/dateiname.h"
#include "daten/rinex_abtastung.h"
#include "daten/rinex_kopf.h"
#include "geo/gps_zeit.h"
#include "geo/xyz_nach_utm.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

// What each class is called where it goes wrong.
struct Artworte {
    Punktart art;
    int dimensionierung;
    std::string_view punkte, beobachtungen;  // the arrays
    std::string_view punkt, datei;           // in the message of a failed conversion
};
constexpr std::array<Artworte, 3> artworte = {{{Punktart::rover, 12, "R_Punkt", "OBS_R", "ROVER", "ROVER"},
                                               {Punktart::virtuell, 70, "V_Punkt", "OBS_V", "virt.", "virt. RINEX"},
                                               {Punktart::station, 13, "S_Punkt", "OBS_S", "TOREL", "TOREL"}}};

const Artworte& worte_von(Punktart art)
{
    return artworte[static_cast<std::size_t>(art)];
}

std::optional<Rinexkopf> kopf_lesen(Global& g, const std::string& name)
{
    auto datei = beobachtungsdatei_oeffnen(g, name, "Die Beobachtungsdatei:");
    if (!datei) return std::nullopt;
    auto kopf = rinexkopf_lesen(g, datei->strom, name);
    if (lesefehler_melden(g, *datei)) return std::nullopt;
    if (kopf && kopf->Satelliten) g.abtastung = Abtastung{datei->kennung, std::move(*kopf->Satelliten)};
    return kopf;
}

bool kopf_pruefen(Global& g, const Rinexkopf& kopf, std::string_view name)
{
    struct Pruefung {
        bool fehlt;
        std::string_view was;
    };
    const std::array<Pruefung, 4> pruefungen = {{{kopf.X == 0 && kopf.Y == 0 && kopf.Z == 0, "Koordinaten"},
                                                 {kopf.Antenne.empty(), "Antenneninformationen"},
                                                 {kopf.Start[0] == 0, "Startzeiten"},
                                                 {kopf.Ende[0] == 0, "Endzeiten"}}};
    for (const auto& p : pruefungen) {
        if (!p.fehlt) continue;
        stop_melden(g, verkettet("Keine ", p.was, " in der RINEX-Datei:\n", name, " gefunden!\n\n",
                                 u8"RINEX-Datei überprüfen und ggf. neu versuchen!"_w));
        return false;
    }
    return true;
}

struct Felder {
    Feld<Punkt>* punkte;
    Feld<OBS>* beobachtungen;
};

Felder felder_von(Global& g, Punktart art)
{
    switch (art) {
        case Punktart::rover:
            return {&g.R_Punkt, &g.OBS_R};
        case Punktart::virtuell:
            return {&g.V_Punkt, &g.OBS_V};
        case Punktart::station:
            break;
    }
    return {&g.S_Punkt, &g.OBS_S};
}

// Grows all arrays of the class or none.
bool vergroessern(Global& g, Punktart art)
{
    const auto [punkte, beobachtungen] = felder_von(g, art);
    const int neu = punkte->anzahl() + 1, obs_alt = beobachtungen->anzahl();
    if (punkte->anfuegen()) {
        if (beobachtungen->anfuegen()) {
            if (art != Punktart::rover || g.ROVER_Settings.anfuegen()) return true;
            (void)beobachtungen->groesse_setzen(obs_alt);
        }
        (void)punkte->groesse_setzen(neu - 1);
    }
    const auto& worte = worte_von(art);
    const auto zeile = [neu](std::string_view feld) {
        return verkettet("    ReDim Preserve ", feld, "(", zahl_text_blank(neu), ")");
    };
    stop_melden(g, dimensionierung_meldung(worte.dimensionierung, "punkt_info_lesen",
                                           verkettet(zeile(worte.punkte), "\n", zeile(worte.beobachtungen))));
    return false;
}

std::int32_t hhmmss(const Kopfzeit& zeit)
{
    std::string ziffern;
    for (std::size_t i = 3; i < zeit.size(); ++i) ziffern += zahl_format_fuell(zeit[i], "00", "0");
    return ganz32(zahl_lesen(ziffern)).value_or(0);
}

void obs_fuellen(OBS& obs, const Rinexkopf& kopf)
{
    const auto& a = kopf.Start;
    const auto& e = kopf.Ende;
    obs.Antenne = kopf.Antenne;
    obs.Startzeit_Jahr = a[0], obs.Startzeit_Monat = a[1], obs.Startzeit_Tag = a[2];
    obs.Startzeit_Stunde = a[3], obs.Startzeit_Minute = a[4], obs.Startzeit_Sekunde = a[5];
    obs.Startzeit_GPS_Sekunde = hhmmss(a);
    obs.Endzeit_Jahr = e[0], obs.Endzeit_Monat = e[1], obs.Endzeit_Tag = e[2];
    obs.Endzeit_Stunde = e[3], obs.Endzeit_Minute = e[4], obs.Endzeit_Sekunde = e[5];
    obs.Endzeit_GPS_Sekunde = hhmmss(e);
}

void settings_fuellen(ROVER_Settings_Satz& satz, const OBS& obs, std::int32_t intervall)
{
    satz = {};
    satz.ROVER_Dateiname = obs.Dateiname;
    satz.StartTime = obs.Startzeit_GPS_Sekunde;
    satz.EndTime = obs.Endzeit_GPS_Sekunde;
    satz.EpochRate = intervall;
}

}  // namespace

Punktart punktart(const Global& g, std::string_view name)
{
    if (rover_pruefen(g, name)) return Punktart::rover;
    return name.starts_with("virt") ? Punktart::virtuell : Punktart::station;
}

std::string umrechnung_meldung(Punktart art, std::string_view name)
{
    const auto& worte = worte_von(art);
    return verkettet("Fehler bei der Umrechnung von einem ", worte.punkt, "-Punkt!\n\n", worte.datei, "-Datei:", name,
                     "\n", u8"überprüfen und ggf. neu versuchen!"_w);
}

Fehler punkt_info_lesen(Global& g, const std::string& name)
{
    g.abtastung.reset();
    const auto kopf = kopf_lesen(g, name);
    if (!kopf || !kopf_pruefen(g, *kopf, name)) return Fehler::gesetzt;
    const Punktart art = punktart(g, name);
    if (!vergroessern(g, art)) return Fehler::gesetzt;

    Punkt punkt{std::string(links(name, 4)), 0, 0, kopf->X, kopf->Y, kopf->Z};
    if (ist_fehler(xyz_nach_utm(punkt.X, punkt.Y, punkt.Z, punkt.Rechtswert, punkt.Hochwert))) {
        stop_melden(g, umrechnung_meldung(art, name));
        return Fehler::gesetzt;
    }
    OBS obs;
    obs.Dateiname = name;
    obs.Punktkennzeichen = punkt.Punktkennzeichen;
    obs_fuellen(obs, *kopf);
    std::string tag(mitte(name, 5, 3));
    const auto& a = kopf->Start;
    // The end second stands beside the start's minute: so the virtual files have always been dated.
    if (art == Punktart::virtuell && ist_fehler(gps_zeit_holen(g, a[0], a[1], a[2], a[3], a[4], kopf->Ende[5], tag))) {
        stop_melden(g, verkettet("Fehler bei der Umrechnung der Startzeit in GPS-Sekunden!\n\nvirt. RINEX-Datei:", name,
                                 "\n", u8"überprüfen und ggf. neu versuchen!"_w));
        return Fehler::gesetzt;
    }
    obs.Tag = ganz16(zahl_lesen(tag)).value_or(0);

    const auto [punkte, beobachtungen] = felder_von(g, art);
    punkte->letztes() = std::move(punkt);
    beobachtungen->letztes() = std::move(obs);
    if (art == Punktart::rover) settings_fuellen(g.ROVER_Settings.letztes(), beobachtungen->letztes(), kopf->Intervall);
    return Fehler::keiner;
}

}  // namespace jorv
