#include "modell/Menue.h"

#include <algorithm>
#include <array>

#include "modell/Gemeinsam.h"
#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv {

namespace {

using Regel = bool (*)(const Global&);

bool immer(const Global&)
{
    return true;
}
bool offen(const Global& g)
{
    return g.Verfahren_offen();
}
bool nur_modus_b(const Global& g)
{
    return ist_B(g);
}
bool gesamtbatch(const Global& g)
{
    return g.Gesamtbatch == "J";
}
bool figuren(const Global& g)
{
    return offen(g) && ist_E_oder_S(g);
}
bool zeitfenster(const Global& g)
{
    return figuren(g) && g.menue.m_grund_zeitfenster_1h;
}
bool loeschen(const Global& g)
{
    return g.menue.m_datei_loeschen;
}
bool sichern(const Global& g)
{
    return g.menue.m_datei_sichern;
}
bool einstellungen_alle(const Global& g)
{
    return g.menue.m_grund_EinstellungenAlle;
}

bool hat_kinder(const Global& g, std::string_view schluessel)
{
    const Hauptknoten* knoten = g.baum.finden(schluessel);
    return knoten && !knoten->Kinder.empty();
}

bool im_projekt_vorhanden(const Global& g, std::string_view endung)
{
    return offen(g) && g.dateien.vorhanden(Verfahrens_Datei(g, endung));
}

bool auswerten(const Global& g)
{
    if (!offen(g) || g.Antennen_Dateien.anzahl() == 0) return false;
    if (ist_B(g)) return hat_kinder(g, "B_Datei");
    return g.berechnete_ROVER > 0 && hat_kinder(g, "R_Datei");
}

bool mitteln(const Global& g)
{
    return !ist_B(g) && hat_kinder(g, "E_Datei");
}

bool zeichnen(const Global& g)
{
    return offen(g) && g.dateien.vorhanden(im_Verfahren(g, verkettet("HB", g.Verfahrensnummer, ".DAT")));
}

bool protokoll(const Global& g)
{
    if (!offen(g)) return false;
    if (ist_B(g))
        return g.dateien.vorhanden(im_Verfahren(g, verkettet("jorv_out\\lis_bas\\", g.Verfahrensnummer, ".LIS")));
    const auto eintraege = g.dateien.ordner_lesen(im_Verfahren(g, "jorv_out\\lis_rov"));
    return std::any_of(eintraege.begin(), eintraege.end(), [](const auto& e) { return !e.ordner; });
}

bool kurzprotokoll(const Global& g)
{
    return im_projekt_vorhanden(g, ".KRZ");
}
bool kurzprotokoll_alle(const Global& g)
{
    return im_projekt_vorhanden(g, ".ALL");
}
bool fehlerprotokoll(const Global& g)
{
    return im_projekt_vorhanden(g, ".ERR");
}
bool verkleinern(const Global& g)
{
    return g.vergroessert;
}
bool zeiten(const Global& g)
{
    return g.tage.anzahl() > 0;
}

bool kein_haken(const Global&)
{
    return false;
}
bool haken_zeitfenster(const Global& g)
{
    return g.Zeitfenster_1h == "1";
}
bool haken_grenzen(const Global& g)
{
    return g.Grenzen == "1";
}
bool haken_pkz(const Global& g)
{
    return g.PKZ == "1";
}

bool haken_definieren(const Global& g)
{
    return g.menue.m_geo_definieren;
}
bool haken_leiste(const Global& g)
{
    return g.Fenster_Werkzeugleiste == "1";
}

struct Eintrag {
    std::string name, text;
    Regel an = immer, sichtbar = immer, haken = kein_haken;
    std::string_view eltern = {};
};
struct Gruppe {
    std::string_view text;
    std::vector<Eintrag> eintraege;
};

std::string text(std::string_view beschriftung)
{
    return std::string(beschriftung);
}

// With a directory the bare name stands behind a colon.
std::string editor_text(const Global& g)
{
    const bool mit_ordner = g.Editor.find_last_of("\\/:") != std::string::npos;
    return mit_ordner ? verkettet("Editor: \"", pfad_name(g.Editor), "\"") : verkettet("Editor \"", g.Editor, "\"");
}

// One entry for the whole project and one a day.
void tage_anhaengen(const Global& g, std::vector<Eintrag>& eintraege)
{
    for (int i = 1; i <= g.tage.anzahl(); ++i)
        eintraege.push_back(
            {verkettet("m_grafik_zeiten(", i, ")"), verkettet(u8"Zeiten-Übersicht für Tag: "_w, g.tage[i])});
}

std::vector<Gruppe> menueleiste(const Global& g)
{
    return {{"&Datei",
             {{"m_datei_neu", "&Neues Verfahren..."},
              {"m_datei_laden", text(u8"Verfahren &öffnen..."_w)},
              {"m_datei_sichern", "Verfahren &sichern", sichern},
              {"m_datei_loeschen", text(u8"Verfahren &löschen..."_w), loeschen},
              {"m_datei_importieren", "Verfahren &importieren..."},
              {"m_datei_rinex", text(u8"&RINEX-Dateien einfügen..."_w), offen},
              {"m_datei_antenne", text(u8"&Antennen-Dateien einfügen..."_w), offen},
              {"m_datei_basis", "&Basislinien", nur_modus_b, nur_modus_b},
              {"m_datei_basis_liste", "aus &Liste...", nur_modus_b, nur_modus_b, kein_haken, "m_datei_basis"},
              {"m_datei_basis_dialog", "im &Dialog...", nur_modus_b, nur_modus_b, kein_haken, "m_datei_basis"},
              {"m_datei_ende", "&Beenden"}}},
            {"&Grundeinstellungen",
             {{"m_grund_zeitfenster_1h", "&Auswerte-Zeitfenster von 1[h]", zeitfenster, immer, haken_zeitfenster},
              {"m_grund_EinstellungenAlle", text(u8"&Einstellungen für alle ROVER..."_w), einstellungen_alle},
              {"m_grund_editor", editor_text(g)}}},
            {"G&rafik",
             {{"m_grafik_orginal", text(u8"&Orginalgröße"_w)},
              {"m_grafik_verkleinern", text(u8"&Verkleinerung um ½"_w), verkleinern},
              {"m_grafik_vergroessern", text(u8"V&ergrößern"_w)},
              {"m_grafik_grenzen", "&Grenzen einblenden", immer, immer, haken_grenzen},
              {"m_grafik_ablage", "in &Zwischenablage kopieren"},
              {"m_grafik_pkz", "&PKZ einblenden", immer, immer, haken_pkz},
              {"m_grafik_alles", "&alles zeigen"},
              {"m_grafik_speichern", "&Bild speichern..."},
              {"m_grafik_leiste", "&Werkzeugleiste", immer, immer, haken_leiste},
              {"m_grafik_zeiten", text(u8"&Zeiten-Übersicht: Gesamtverfahren "_w), zeiten}}},
            {"Geo&metrie",
             {{"m_geo", "Geo&metrie", figuren},
              {"m_geo_definieren", "Dreiecke/Vierecke &definieren", figuren, immer, haken_definieren, "m_geo"},
              {"m_geo_loeschen", text(u8"letzte Definition &löschen"_w), figuren, immer, kein_haken, "m_geo"}}},
            {"&Programme",
             {{"m_wasoft_run_n", text(u8"&WaSoft ausführen"_w), auswerten},
              {"m_wasoft_erstellen", "nur WaSoft-&Batchdatei erstellen", offen, gesamtbatch},
              {"m_wasoft_batch", text(u8"nur WaSoft-&Batchdatei ausführen"_w), offen, gesamtbatch},
              {"m_wasoft_run", text(u8"&WaSoft ausführen"_w), offen, gesamtbatch},
              {"m_basis_erstellen", "nur Basislinien-&Batchdatei erstellen", nur_modus_b, nur_modus_b},
              {"m_basis_batch", text(u8"nur &Basislinien-Batchdatei ausführen"_w), nur_modus_b, nur_modus_b},
              {"m_basis_run", text(u8"Basislinien &berechnen"_w), nur_modus_b, nur_modus_b},
              {"m_basis_esa", "&ESA-Auswertung", nur_modus_b, nur_modus_b},
              {"m_basis_i95", "&I95-Auswertung", nur_modus_b, nur_modus_b},
              {"m_basis_lovena", text(u8"&RV-Datei für LOVENA erstellen"_w), nur_modus_b, nur_modus_b},
              {"m_wasoft_runa", "&Koordinatenmittelung", mitteln},
              {"m_wasoft_holbek", "&Graphik", zeichnen}}},
            {"Pro&tokolle",
             {{"m_protkoll_einsehen",
               ist_B(g) ? "&Berechnungs-Protokoll aller Basislinien" : "&Berechnungs-Protokoll aller ROVER", protokoll},
              {"m_protkoll_kurz", "&Kurzprotokoll der letzten Berechnung", kurzprotokoll},
              {"m_protkoll_kurz_aller", "K&urzprotokoll aller ROVER", kurzprotokoll_alle},
              {"m_protkoll_fehler", "&Fehlerprotokoll der letzten Berechnung", fehlerprotokoll},
              {"m_protkoll_editieren", "beliebige &Dateien editieren"}}},
            {"&Hilfe", {{"m_hilfe_handbuch", "Benutzer&handbuch"}, {"m_hilfe_neuerungen", "&Neuerungen..."}}}};
}

}  // namespace

std::vector<Menueeintrag> menue_setzen(const Global& g)
{
    std::vector<Menueeintrag> menue;
    for (auto& gruppe : menueleiste(g)) {
        if (!gruppe.eintraege.empty() && gruppe.eintraege.back().name == "m_grafik_zeiten")
            tage_anhaengen(g, gruppe.eintraege);
        for (const auto& e : gruppe.eintraege)
            menue.push_back(
                {e.name, std::string(gruppe.text), e.text, std::string(e.eltern), e.an(g), e.sichtbar(g), e.haken(g)});
    }
    return menue;
}

const Menueeintrag* menueeintrag(const std::vector<Menueeintrag>& menue, std::string_view name)
{
    const auto fund = std::find_if(menue.begin(), menue.end(), [&](const auto& e) { return e.Name == name; });
    return fund == menue.end() ? nullptr : &*fund;
}

}  // namespace jorv
