#include "planung/gesamtuebersicht.h"

#include <array>

#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

namespace {

// One kind of observations in the overview.
struct Art {
    const Feld<OBS>* quelle;
    Feld<Uebersichtszeile>* ziel;
    std::string_view hinweis, feldname;
    int nummer_weitere;
    bool erster_gilt;  ///< the first record replaces both ends of the axis
};

// The light that the rover has in the tree.
Zeilenfarbe lichtfarbe(const Global& g, int rover)
{
    constexpr std::array<Zeilenfarbe, 4> farben = {Zeilenfarbe::grau, Zeilenfarbe::gruen, Zeilenfarbe::gelb,
                                                   Zeilenfarbe::rot};
    const auto bild = static_cast<std::size_t>(rover_bild(g, rover));
    return bild < farben.size() ? farben[bild] : Zeilenfarbe::grau;
}

bool ganzes_Verfahren(const Global& g)
{
    return g.zeit_tag < 1 || g.zeit_tag > g.tage.anzahl();
}

bool gehoert_dazu(const Global& g, const OBS& obs)
{
    return ganzes_Verfahren(g) || obs.Tag == g.tage[g.zeit_tag];
}

void achse_weiten(const Global& g, const Art& art, Gesamtuebersicht& u)
{
    for (int i = 1; i <= art.quelle->anzahl(); ++i) {
        const OBS& obs = (*art.quelle)[i];
        if (!gehoert_dazu(g, obs)) continue;
        const bool ersetzen = i == 1 && art.erster_gilt;
        if (ersetzen || obs.Startzeit() < u.frueheste) u.frueheste = obs.Startzeit();
        if (ersetzen || obs.Endzeit() > u.spaeteste) u.spaeteste = obs.Endzeit();
    }
}

Fehler gescheitert(Global& g, Gesamtuebersicht& u, const std::string& text)
{
    u.zeit_r.leeren(), u.zeit_s.leeren(), u.zeit_v.leeren(), u.pos_s.leeren();
    stop_melden(g, text);
    return Fehler::gesetzt;
}

Fehler zeilen_fuellen(Global& g, const Art& art, Gesamtuebersicht& u)
{
    if (!art.ziel->groesse_setzen(0))
        return gescheitert(g, u,
                           dimensionierung_meldung(5, "detail_menge", verkettet("    ReDim ", art.feldname, "(1)")));
    const bool rover = art.quelle == &g.OBS_R;
    for (int i = 1; i <= art.quelle->anzahl(); ++i) {
        const OBS& obs = (*art.quelle)[i];
        if (!gehoert_dazu(g, obs)) continue;
        Uebersichtszeile z;
        z.farbe = rover ? lichtfarbe(g, i) : Zeilenfarbe::blau;
        z.Dateiname = obs.Dateiname;
        z.Beginn = obs.Startzeit();
        z.Ende = obs.Endzeit();
        z.Hinweis =
            verkettet(art.hinweis, obs.Dateiname, " Start: ", datum_text(z.Beginn), " Ende: ", datum_text(z.Ende));
        z.balken = u.achse.balken(z.Beginn, z.Ende);
        if (!art.ziel->anfuegen(std::move(z)))
            return gescheitert(g, u,
                               dimensionierung_meldung(
                                   art.nummer_weitere, "detail_menge",
                                   verkettet("    ReDim Preserve ", art.feldname, "(", art.ziel->anzahl() + 1, ")")));
    }
    return Fehler::keiner;
}

Fehler zeitfenster(Global& g, Gesamtuebersicht& u)
{
    const int zeilen = u.zeit_r.anzahl() + u.zeit_s.anzahl() + u.zeit_v.anzahl();
    if (!u.pos_s.groesse_setzen(zeilen))
        return gescheitert(g, u,
                           dimensionierung_meldung(9, "zeitfenster", verkettet("    ReDim pos_s(", zeilen, ")"), ""));
    for (int i = 1; i <= zeilen; ++i) u.pos_s[i] = i - 1;
    return Fehler::keiner;
}

}  // namespace

Fehler gesamtuebersicht_oeffnen(Global& g, Gesamtuebersicht& u)
{
    const Feld<OBS> keine;
    const std::array<Art, 3> arten = {
        {{&g.OBS_R, &u.zeit_r, " ROVER: ", "zeit_r", 7, true},
         {ist_E_oder_S(g) ? &g.OBS_S : &keine, &u.zeit_s, " TOREL: ", "zeit_s", 6, false},
         {ist_F(g) ? &g.OBS_V : &keine, &u.zeit_v, " virt.Referenzstation: ", "zeit_v", 74, true}}};
    u.Titel = u8"Zeitenübersicht "_w;
    u.Titel += ganzes_Verfahren(g) ? "Gesamtverfahren" : verkettet(u8"für Tag: "_w, g.tage[g.zeit_tag]);
    u.frueheste = {3000, 1, 1, 0, 0, 0};
    u.spaeteste = {1900, 1, 1, 0, 0, 0};
    for (const auto& art : arten) achse_weiten(g, art, u);
    u.achse = Zeitachse(u.frueheste, u.spaeteste);
    for (const auto& art : arten)
        if (ist_fehler(zeilen_fuellen(g, art, u))) return Fehler::gesetzt;
    return zeitfenster(g, u);
}

Fehler m_grafik_zeiten(Global& g, int eintrag, Gesamtuebersicht& u)
{
    g.zeit_tag = static_cast<std::int16_t>(eintrag);
    return gesamtuebersicht_oeffnen(g, u);
}

}  // namespace jorv
