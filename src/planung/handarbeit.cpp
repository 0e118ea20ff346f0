#include "planung/handarbeit.h"

#include <algorithm>

#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "planung/zeitfenster.h"
#include "plattform/text.h"

namespace jorv {

namespace {

constexpr int hoechstens_stationen = 4, genug_stationen = 3;
// The rover's window takes eight tenths of the picture, the margins one tenth each.
constexpr double rand_anteil = 0.125;

bool ueberlappt(const OBS& station, const OBS& rover)
{
    return station.Endzeit() > rover.Startzeit() && station.Startzeit() < rover.Endzeit();
}

Handzeile zeile(const OBS& obs, const Punkt& punkt, std::string_view art)
{
    Handzeile z;
    z.Dateiname = obs.Dateiname;
    z.Punktkennzeichen = punkt.Punktkennzeichen;
    z.Tag = verkettet(obs.Tag);
    z.Rechtswert = punkt.Rechtswert;
    z.Hochwert = punkt.Hochwert;
    z.Beginn = obs.Startzeit();
    z.Ende = obs.Endzeit();
    z.Hinweis = verkettet(art, obs.Dateiname, " Start: ", datum_text(z.Beginn), " Ende: ", datum_text(z.Ende));
    return z;
}

Punkt punkt_von(const Feld<Punkt>& punkte, int i)
{
    return i <= punkte.anzahl() ? punkte[i] : Punkt{};
}

Fehler wachstum_melden(Global& g, Handarbeit& h, int nummer, std::string_view routine, std::string_view anweisung)
{
    h.Detail.leeren();
    h.pos_s.leeren();
    stop_melden(g, dimensionierung_meldung(nummer, routine, anweisung));
    return Fehler::gesetzt;
}

Fehler detail_menge(Global& g, const OBS& rover, Handarbeit& h)
{
    if (!h.Detail.groesse_setzen(0)) return wachstum_melden(g, h, 2, "detail_menge", "    ReDim Detail(1)");
    for (int i = 1; i <= g.OBS_S.anzahl(); ++i) {
        if (!ueberlappt(g.OBS_S[i], rover)) continue;
        if (!h.Detail.anfuegen(zeile(g.OBS_S[i], punkt_von(g.S_Punkt, i), " TOREL: ")))
            return wachstum_melden(g, h, 3, "detail_menge",
                                   verkettet("    ReDim Preserve Detail(", h.Detail.anzahl() + 1, ")"));
    }
    return Fehler::keiner;
}

// Rows from top to bottom, bars on the axis of the rover's window.
Fehler zeitfenster(Global& g, const OBS& rover, Handarbeit& h)
{
    const int zeilen = h.Detail.anzahl();
    if (!h.pos_s.groesse_setzen(zeilen + 1))
        return wachstum_melden(g, h, 4, "zeitfenster", verkettet("    ReDim pos_s(", zeilen, ")"));
    for (int i = 0; i <= zeilen; ++i) h.pos_s[i + 1] = i;
    const Zeitfenster fenster = zeitfenster_von(rover);
    h.achse = Zeitachse(fenster.von, fenster.bis, rand_anteil);
    h.ROVER.balken = h.achse.balken(h.ROVER.Beginn, h.ROVER.Ende);
    for (auto& z : h.Detail) z.balken = h.achse.balken(z.Beginn, z.Ende);
    return Fehler::keiner;
}

int gewaehlte(const Handarbeit& h)
{
    return static_cast<int>(std::count_if(h.Detail.begin(), h.Detail.end(),
                                          [](const Handzeile& z) { return z.farbe == Zeilenfarbe::gelb; }));
}

void zuordnung_zeigen(const ROVER_TOREL_Satz& satz, Handarbeit& h)
{
    const auto ende = satz.TOREL_Dateiname.begin() + satz.Anzahl_Namen();
    for (auto& z : h.Detail)
        if (std::find(satz.TOREL_Dateiname.begin(), ende, z.Dateiname) != ende) z.farbe = Zeilenfarbe::gelb;
    if (satz.Status == 1) h.ROVER.farbe = Zeilenfarbe::gruen;
    if (satz.Status == 2) h.ROVER.farbe = Zeilenfarbe::gelb;
    h.Schutz = satz.Schutz;
}

bool passt_zur_auswahl(const Handarbeit& h, const Handzeile& neu)
{
    constexpr std::size_t tag_und_session = 5, zeichen = 4;
    const auto kennung = [](const Handzeile& z) { return mitte(z.Dateiname, tag_und_session, zeichen); };
    return std::none_of(h.Detail.begin(), h.Detail.end(),
                        [&](const Handzeile& z) { return z.farbe == Zeilenfarbe::gelb && kennung(z) != kennung(neu); });
}

void ampel_erneuern(Handarbeit& h)
{
    if (h.Detail.anzahl() < genug_stationen)
        h.ROVER.farbe = Zeilenfarbe::rot;
    else
        h.ROVER.farbe = gewaehlte(h) >= genug_stationen ? Zeilenfarbe::gruen : Zeilenfarbe::gelb;
}

struct Urteil {
    std::uint8_t Status, Grund;
};

Urteil urteil(Zeilenfarbe farbe)
{
    if (farbe == Zeilenfarbe::gruen) return {1, 0};
    return farbe == Zeilenfarbe::gelb ? Urteil{2, 2} : Urteil{3, 1};
}

}  // namespace

void handarbeit_hinweis_ok(Global& g, bool weiter_zeigen)
{
    g.Hinweis = weiter_zeigen ? '1' : '0';
}

Fehler handarbeit_oeffnen(Global& g, std::string_view rover, Handarbeit& h)
{
    const int i = Index_OBS_R(g, rover);
    if (i == 0) return Fehler::gesetzt;
    const OBS& obs = g.OBS_R[i];
    h.Titel = verkettet(" ROVER-Datei: ", obs.Dateiname, u8" mit TOREL-Dateien verknüpfen"_w);
    h.Knoten = obs.Dateiname;
    h.ROVER = zeile(obs, punkt_von(g.R_Punkt, i), " ROVER: ");
    h.ROVER.farbe = Zeilenfarbe::rot;
    if (ist_fehler(detail_menge(g, obs, h)) || ist_fehler(zeitfenster(g, obs, h))) return Fehler::gesetzt;
    if (const int satz = Index_ROVER_TOREL(g, rover); satz != 0) zuordnung_zeigen(g.ROVER_TOREL[satz], h);
    return Fehler::keiner;
}

void handarbeit_klick(Global& g, Handarbeit& h, int nummer)
{
    if (nummer < 1 || nummer > h.Detail.anzahl()) return;
    Handzeile& z = h.Detail[nummer];
    if (z.farbe == Zeilenfarbe::gelb) {
        z.farbe = Zeilenfarbe::grau;
    } else if (gewaehlte(h) >= hoechstens_stationen) {
        return g.oberflaeche->meldung(Symbol::info, u8"Es können max. 4 TOREL-Stationen ausgewählt werden!"_w);
    } else if (!passt_zur_auswahl(h, z)) {
        return g.oberflaeche->meldung(Symbol::info,
                                      u8"Angeklickte TOREL-Datei passt in Day und/oder Session\n"
                                      u8"nicht zu den bereits markierten TOREL-Dateien!"_w);
    } else {
        z.farbe = Zeilenfarbe::gelb;
    }
    ampel_erneuern(h);
}

void handarbeit_ok(Global& g, Handarbeit& h)
{
    if (const int i = Index_ROVER_TOREL(g, h.ROVER.Dateiname); i != 0) {
        ROVER_TOREL_Satz& satz = g.ROVER_TOREL[i];
        satz.TOREL_Dateiname = {};
        satz.Anzahl = 0;
        // A file name that two records bear is marked twice.
        for (const auto& z : h.Detail)
            if (z.farbe == Zeilenfarbe::gelb && satz.Anzahl < hoechstens_stationen)
                satz.TOREL_Dateiname[static_cast<std::size_t>(satz.Anzahl++)] = z.Dateiname;
        const Urteil u = urteil(h.ROVER.farbe);
        satz.Status = u.Status;
        satz.Grund = u.Grund;
        satz.Schutz = h.Schutz;
        if (u.Status == 3) h.Knoten = '3';
        if (i <= g.OBS_R.anzahl()) rover_bild_setzen(g, h.ROVER.Dateiname, rover_bild(g, i));
    }
    Datum_setzen(g);
}

Handausschnitt handarbeit_ausschnitt(const Handarbeit& h)
{
    Handausschnitt a = {h.ROVER.Rechtswert, h.ROVER.Rechtswert, h.ROVER.Hochwert, h.ROVER.Hochwert};
    for (const auto& z : h.Detail) {
        a.Rechtswert_min = std::min(a.Rechtswert_min, z.Rechtswert);
        a.Rechtswert_max = std::max(a.Rechtswert_max, z.Rechtswert);
        a.Hochwert_min = std::min(a.Hochwert_min, z.Hochwert);
        a.Hochwert_max = std::max(a.Hochwert_max, z.Hochwert);
    }
    return a;
}

}  // namespace jorv
