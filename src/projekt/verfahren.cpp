#include "projekt/verfahren.h"

#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "planung/automatik.h"
#include "planung/zeitfenster.h"
#include "plattform/pfad.h"
#include "plattform/profil.h"
#include "plattform/text.h"
#include "projekt/projektdatei_lesen.h"
#include "projekt/projektdatei_schreiben.h"
#include "projekt/verfahrensliste.h"
#include "projekt/verfahrenssperre.h"

namespace jorv {

namespace {

/// How the OK button of the new-project dialog ended.
enum class Anlage { angelegt, falscher_name, falsches_verzeichnis, gescheitert };

std::string projektdatei(std::string_view verzeichnis, std::string_view nummer)
{
    return verkettet(verzeichnis, "\\", nummer, ".INI");
}

// A directory as the project files carry it: no "\" at its end except behind a drive.
std::string_view verzeichnis_knapp(std::string_view verzeichnis)
{
    verzeichnis = trimmen(verzeichnis);
    while (verzeichnis.size() > 1 && verzeichnis.ends_with('\\') && !verzeichnis.ends_with(":\\"))
        verzeichnis.remove_suffix(1);
    return verzeichnis;
}

// The same for what a user has typed: a path of the host, or one without a root, becomes a DOS path.
std::string verzeichnis_aus_eingabe(const Global& g, std::string_view eingabe)
{
    const bool dos = ist_dos_pfad(trimmen(eingabe));
    const std::string text = dos ? ersetzt(std::string(eingabe), '/', '\\') : std::string(eingabe);
    const auto knapp = verzeichnis_knapp(text);
    if (knapp.empty() || dos) return std::string(knapp);
    return g.dateien.laufwerke().dos(g.dateien.host(knapp)).value_or(std::string(knapp));
}

bool name_annehmbar(Global& g, std::string_view name)
{
    if (name.empty()) {
        stop_melden(g, "Ein Verfahrensname ist zwingend erforderlich!");
        return false;
    }
    if (const int i = Index_zu_Name(g, name); i != 0) {
        stop_melden(g, verkettet("Der Verfahrensname: >", name, u8"< ist bereits für\ndas Verfahren Nr.: "_w,
                                 g.Verfahren[i].Nummer, u8" vergeben. Bitte einen anderen Namen wählen!"_w));
        return false;
    }
    return true;
}

bool verzeichnis_annehmbar(Global& g, std::string_view verzeichnis)
{
    if (verzeichnis.empty() || !g.dateien.ist_ordner(verzeichnis)) {
        if (!verzeichnis.empty() && !g.dateien.ordner_anlegen(verzeichnis)) return true;
        stop_melden(g, datei_meldung("Das Verfahrensverzeichnis:", verzeichnis, "konnt nicht angelegt werden!"));
        return false;
    }
    reste_wegraeumen(g, verzeichnis);
    if (g.dateien.ordner_lesen(verzeichnis).empty()) return true;
    stop_melden(g, datei_meldung("Das angegebene Verzeichnis:", verzeichnis,
                                 u8"existiert bereits und ist nicht leer!\n"
                                 u8"Bitte ein anderes Verzeichnis auswählen!"_w));
    return false;
}

bool ueberschreiben_erlaubt(Global& g, std::string_view verzeichnis, std::string_view datei)
{
    if (!g.dateien.vorhanden(datei)) return true;
    return g.oberflaeche->frage(Symbol::frage,
                                verkettet("Ein Verfahren: ", g.Verfahrensname, "\nim Arbeitsverzeichnis:\n",
                                          verzeichnis, u8"\nexistiert bereits!\nVerfahren überschreiben?"_w),
                                Antwort::nein) == Antwort::ja;
}

Fehler neue_datei_schreiben(Global& g, const Verfahren_Satz& v, std::string_view datei)
{
    std::error_code fehler;
    Profil profil = Profil::aus_datei(g.dateien, datei, fehler);
    profil.setzen("VERFAHREN", "Name", v.Name);
    profil.setzen("VERFAHREN", "Nummer", v.Nummer);
    profil.setzen("VERFAHREN", "Modus", v.Modus);
    profil.setzen("GRUNDEINSTELLUNGEN", "Arbeits-Verzeichnis", v.Pfad);
    if (!fehler) fehler = profil.schreiben(g.dateien, datei);
    if (!fehler) return Fehler::keiner;
    stop_melden(g, datei_meldung("In die Verfahrensdatei: ", datei, "konnt nicht fehlerfrei geschrieben werden!"));
    return Fehler::gesetzt;
}

// The new project becomes the open one.
Fehler neues_oeffnen(Global& g, std::string_view datei)
{
    vier_Menues(g, true);
    const Fehler geleert = Verfahrensdaten_leeren(g);
    g.oberflaeche->karte_zeichnen(true);
    baum_aufbauen(g);
    std::shared_ptr<const Sperre> sperre;
    if (ist_fehler(geleert) || ist_fehler(Verfahren_sperren(g, datei, sperre)) ||
        ist_fehler(Verfahren_lesen(g, datei))) {
        vier_Menues(g, false);
        return Fehler::gesetzt;
    }
    g.Verfahrenssperre = std::move(sperre);
    g.vollstaendig_gelesen = true;
    g.Zeitfenster_1h = "0";
    g.Auswertemodus = "L1";
    baum_aufbauen(g);
    return Fehler::keiner;
}

// Runs under the lock of the settings file, so that no other program gives the same number out.
Anlage unter_sperre_anlegen(Global& g, std::string_view name, std::string_view verzeichnis, std::string_view modus)
{
    Einstellungen_gesperrt einstellungen(g);
    Verfahrensliste_auffrischen(g, einstellungen.profil());
    if (!name_annehmbar(g, name)) return Anlage::falscher_name;
    if (!verzeichnis_annehmbar(g, verzeichnis)) return Anlage::falsches_verzeichnis;

    Verfahren_Satz v;
    v.Nummer = naechste_Nummer(g);
    v.Name = name;
    v.Pfad = verzeichnis;
    v.Modus = modus;
    v.ErstDatum = v.LetztDatum = datum_text(g.uhr->jetzt());
    const std::string datei = projektdatei(verzeichnis, v.Nummer);
    if (!ueberschreiben_erlaubt(g, verzeichnis, datei)) return Anlage::falsches_verzeichnis;
    if (ist_fehler(neue_datei_schreiben(g, v, datei))) return Anlage::falsches_verzeichnis;
    if (!g.Verfahren.anfuegen(std::move(v))) {
        stop_melden(g,
                    dimensionierung_meldung(63, "frmverfahr_OK",
                                            verkettet("    ReDim Preserve Verfahren(", g.Verfahren.anzahl() + 1, ")")));
        return Anlage::gescheitert;
    }
    if (ist_fehler(neues_oeffnen(g, datei))) return Anlage::gescheitert;
    Verfahrensliste_eintragen(g, einstellungen.profil());
    return ist_fehler(einstellungen.schreiben()) ? Anlage::gescheitert : Anlage::angelegt;
}

// The list knows only 999 numbers.
Fehler Nummer_frei(Global& g)
{
    if (naechste_Nummer(g) != "000") return Fehler::keiner;
    stop_melden(g,
                u8"Mehr als 999 Verfahren in der Verfahrensliste!\n"
                u8"Bitte zuerst einige Verfahren sichern und löschen"_w);
    return Fehler::gesetzt;
}

Anlage anlegen(Global& g, const Verfahrenswahl& wahl)
{
    m_datei_sichern(g);
    const std::string name(trimmen(wahl.name)), verzeichnis = verzeichnis_aus_eingabe(g, wahl.verzeichnis);
    return unter_sperre_anlegen(g, name, verzeichnis, wahl.modus);
}

void fehlt_melden(Global& g, std::string_view kopf, std::string_view pfad, const Verfahren_Satz& v)
{
    stop_melden(g, verkettet(kopf, "\n", pfad, u8"\nfür das Verfahren >"_w, v.Name, "< (", v.Nummer,
                             ")\nexistiert nicht mehr!"));
}

Fehler daten_lesen(Global& g, const std::string& datei, const Profil& profil)
{
    if (ist_fehler(Verfahrensdaten_leeren(g))) return Fehler::gesetzt;
    Verfahren_lesen(g, datei, profil);
    reste_wegraeumen(g);
    vier_Menues(g, true);
    if (ist_fehler(Dateidaten_lesen(g, profil))) return Fehler::gesetzt;
    g.vollstaendig_gelesen = true;
    automatik(g);
    return Fehler::keiner;
}

}  // namespace

void reste_wegraeumen(const Global& g)
{
    const std::string ausgaben = im_Verfahren(g, "jorv_out");
    g.dateien.reste_wegraeumen(g.Arbeitsverzeichnis);
    for (const auto& eintrag : g.dateien.ordner_lesen(ausgaben))
        if (eintrag.ordner) g.dateien.reste_wegraeumen(verkettet(ausgaben, "\\", eintrag.name));
}

void vier_Menues(Global& g, bool an)
{
    g.menue = {an, an, an, an};
    g.oberflaeche->menue_erneuern();
}

Fehler Verfahrensdaten_leeren(Global& g)
{
    g.vollstaendig_gelesen = false;
    g.ungelesene_Sektionen.clear();
    g.BASISLINIE.leeren();
    g.geo_fertig = true;
    return all_ini(g);
}

void Verfahren_schliessen(Global& g)
{
    vier_Menues(g, false);
    (void)Verfahrensdaten_leeren(g);
    g.Verfahrenssperre.reset();
    g.Verfahrensname.clear();
    g.Verfahrensnummer.clear();
    g.Verfahrensmodus.clear();
    g.Zeitfenster_1h = "0";
    g.Auswertemodus = "L1";
    g.oberflaeche->karte_zeichnen(true);
    baum_aufbauen(g);
    g.oberflaeche->titel_setzen(Titel(g));
    (void)menue_zeitfenster(g);
}

Fehler m_datei_neu(Global& g)
{
    if (ist_fehler(Nummer_frei(g))) return Fehler::gesetzt;
    auto ergebnis = Anlage::angelegt;
    const auto ok = [&](const Verfahrenswahl& wahl) -> std::optional<Verfahrensfeld> {
        ergebnis = anlegen(g, wahl);
        if (ergebnis == Anlage::falscher_name) return Verfahrensfeld::name;
        if (ergebnis == Anlage::falsches_verzeichnis) return Verfahrensfeld::verzeichnis;
        return std::nullopt;
    };
    g.oberflaeche->neues_verfahren({"", g.Datei_Verzeichnis, "1"}, naechste_Nummer(g), ok);
    (void)menue_zeitfenster(g);
    return ergebnis == Anlage::gescheitert ? Fehler::gesetzt : Fehler::keiner;
}

Fehler Verfahren_anlegen(Global& g, const Verfahrenswahl& wahl)
{
    if (ist_fehler(Nummer_frei(g)) || anlegen(g, wahl) != Anlage::angelegt) return Fehler::gesetzt;
    (void)menue_zeitfenster(g);
    return Fehler::keiner;
}

Fehler Verfahren_oeffnen(Global& g, std::string_view verfahrensname, Zugriff zugriff)
{
    const std::string name(verfahrensname);  // may be a slot of the list that changes below
    m_datei_sichern(g);
    if (Index_zu_Name(g, name) == 0) {
        g.oberflaeche->meldung(Symbol::info, verkettet("Das Verfahren >", name,
                                                       u8"< wurde mit einer ältern Jorv-Version erstellt!\n"
                                                       u8"Bitte das Verfahren importieren."_w));
        Liste_entfernen(g, name);
        return Fehler::gesetzt;
    }
    if (ist_fehler(Verfahren_pruefen(g, name))) return Fehler::gesetzt;
    const Verfahren_Satz& eintrag = g.Verfahren[Index_zu_Name(g, name)];
    const std::string datei = projektdatei(eintrag.Pfad, eintrag.Nummer);
    std::shared_ptr<const Sperre> sperre;
    if (zugriff == Zugriff::aendern && ist_fehler(Verfahren_sperren(g, datei, sperre))) return Fehler::gesetzt;
    Profil profil;
    if (ist_fehler(Projektdatei_laden(g, datei, profil))) return Fehler::gesetzt;
    g.Verfahrenssperre = std::move(sperre);
    const Fehler gelesen = daten_lesen(g, datei, profil);
    if (ist_fehler(gelesen)) {
        vier_Menues(g, false);
        baum_aufbauen(g);
    }
    g.oberflaeche->karte_zeichnen(true);
    (void)menue_zeitfenster(g);
    return gelesen;
}

Fehler m_dateien_verfahren(Global& g, int n)
{
    if (n < 1 || n > g.Anzahl_Liste) return Fehler::gesetzt;
    return Verfahren_oeffnen(g, g.Liste_Name[static_cast<std::size_t>(n - 1)]);
}

Fehler Verfahren_pruefen(Global& g, std::string_view name)
{
    const int stelle = Index_zu_Name(g, name);
    if (stelle == 0) return Fehler::gesetzt;
    const Verfahren_Satz v = g.Verfahren[stelle];
    const std::string datei = projektdatei(v.Pfad, v.Nummer);
    const bool ordner_da = g.dateien.ist_ordner(v.Pfad);
    if (ordner_da && g.dateien.vorhanden(datei)) return Fehler::keiner;
    if (ordner_da)
        fehlt_melden(g, "Die Verfahrensdatei:", datei, v);
    else
        fehlt_melden(g, "Das Verzeichnis:", v.Pfad, v);
    Verfahren_loeschen(g, v.Nummer);
    Liste_entfernen(g, v.Name);
    if (g.Verfahrensname == v.Name) Verfahren_schliessen(g);
    return Fehler::gesetzt;
}

void m_datei_sichern(Global& g)
{
    if (g.Verfahren_offen()) (void)Verfahren_sichern(g);
}

}  // namespace jorv
