#include "daten/antennen_datei.h"

#include <algorithm>

#include "daten/antennen_text.h"
#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/profil.h"
#include "plattform/text.h"
#include "projekt/projektdatei_schreiben.h"

namespace jorv {

namespace {

constexpr std::string_view kopf_datei = "Die Antennendatei:";

// The list of refused files of one run of a generator.
class Kaputte {
public:
    Kaputte(Global& g, Feld<std::string>& liste, std::string_view routine)
        : m_g(&g), m_liste(&liste), m_routine(routine)
    {
    }
    bool leeren(int nummer)
    {
        m_liste->leeren();
        return m_liste->groesse_setzen(0) || melden(nummer, "    ReDim l_kaputte_antenne(0)");
    }
    bool aufnehmen(int nummer, const std::string& name)
    {
        if (m_liste->anfuegen(name)) return true;
        return melden(nummer, verkettet("    ReDim Preserve l_kaputte_antenne(", m_liste->anzahl(), ")"));
    }
    bool leer() const { return m_liste->anzahl() == 0; }

private:
    bool melden(int nummer, std::string_view anweisung)
    {
        stop_melden(*m_g, dimensionierung_meldung(nummer, m_routine, anweisung));
        return false;
    }
    Global* m_g;
    Feld<std::string>* m_liste;
    std::string_view m_routine;
};

// Reads an antenna file of the project; a failure has shown its message.
Gelesen oeffnen(Global& g, const std::string& name)
{
    const std::string pfad = im_Verfahren(g, name);
    Gelesen datei = g.dateien.lesen_stufenweise(pfad);
    if (!datei.gut())
        stop_melden(g, datei_meldung(kopf_datei, pfad,
                                     datei.stufe == Dateistufe::oeffnen ? u8"konnte nicht geöffnet werden!"_w
                                                                        : "konnte nicht richtig gelesen werden!"));
    return datei;
}

std::string_view art_wort(std::string_view art)
{
    return art == "A" ? "absolut" : art == "R" ? "relativ" : "???";
}

void ablehnung_melden(Global& g, Kalibrierurteil urteil, std::string_view zeile, const Kalibrierung& bisher,
                      const std::string& name)
{
    if (urteil == Kalibrierurteil::andere_art)
        stop_melden(
            g, verkettet(u8"Relativ und absolut kalibrierte Antennen dürfen in einem Verfahren\nnicht "_w,
                         u8"gemischt werden!\nDie bisher geprüften Antennen waren >"_w, art_wort(bisher.Art),
                         "< kalibriert.\n\nDie Antennendatei:\n", name, "\nwird nicht in das Verfahren integriert!"));
    else
        stop_melden(g, verkettet(u8"Relativ kalibrierte Antennen dürfen in einem Verfahren\nnur auf die gleiche "_w,
                                 u8"Referenzantenne bezogen sein!\nDie bisher geprüften Antennen waren auf >"_w,
                                 trimmen(bisher.Referenzantenne), "< bezogen.\n\nDie Antennendatei:\n", name,
                                 u8"\nenthält eine andere Referenzantenne >"_w, trimmen(mitte(zeile, 21, 20)),
                                 "< und wird\ndeshalb nicht in das Verfahren integriert!"));
}

// One file of the checking pass; false stops the generator.
bool datei_pruefen(Global& g, const std::string& name, bool erste_datei, Kalibrierung& bisher, Kaputte& kaputte)
{
    const Gelesen datei = oeffnen(g, name);
    if (datei.stufe == Dateistufe::oeffnen) return kaputte.aufnehmen(81, name);
    if (!datei.gut()) return false;
    std::string_view zeile;
    const auto urteil = kalibrierung_pruefen(datei.text, erste_datei, bisher, zeile);
    if (urteil == Kalibrierurteil::passt) return true;
    ablehnung_melden(g, urteil, zeile, bisher, name);
    return kaputte.aufnehmen(urteil == Kalibrierurteil::andere_art ? 82 : 83, name);
}

// Writes the project file whole.
bool projektdatei_schreiben(Global& g, const std::string& pfad, std::string_view inhalt)
{
    const Dateistufe stufe = g.dateien.schreiben_stufenweise(pfad, inhalt);
    if (stufe == Dateistufe::gut) return true;
    if (stufe == Dateistufe::oeffnen)
        stop_melden(g, datei_meldung(kopf_datei, pfad, u8"konnte nicht angelegt/überschrieben werden!"_w));
    else
        stop_melden(g, datei_meldung("In die Antennendatei:", pfad, "konnte nicht richtig geschreiben werden!"));
    return false;
}

void fertig(Global& g)
{
    Datum_setzen(g);
    g.oberflaeche->menue_erneuern();
}

void kaputte_entfernen(Global& g, const Feld<std::string>& kaputte)
{
    for (const auto& name : kaputte) antennen_loeschen(g, name);
}

Fehler atx_schreiben(Global& g, Kaputte& kaputte)
{
    std::string inhalt;
    for (const auto& name : g.Antennen_Dateien) {
        const Gelesen datei = oeffnen(g, name);
        if (!datei.gut() && (datei.stufe != Dateistufe::oeffnen || !kaputte.aufnehmen(84, name)))
            return Fehler::gesetzt;
        inhalt += zeilen_mit_umbruch(datei.text);
    }
    if (!projektdatei_schreiben(g, Verfahrens_Datei(g, ".ATX"), inhalt)) return Fehler::gesetzt;
    fertig(g);
    return Fehler::keiner;
}

// The list of antenna files less one name; false when it can't be resized.
bool aus_liste(Global& g, std::string_view name)
{
    auto& liste = g.Antennen_Dateien;
    const auto stelle = std::find(liste.begin(), liste.end(), name);
    if (stelle == liste.end()) return true;
    std::rotate(stelle, stelle + 1, liste.end());
    return liste.groesse_setzen(liste.anzahl() - 1);
}

std::string preserve(const Global& g)
{
    return verkettet("    ReDim Preserve Antennen_Dateien(", g.Antennen_Dateien.anzahl() - 1, ")");
}

}  // namespace

Fehler VerfahrensATX_erzeugen(Global& g, Feld<std::string>& kaputte)
{
    Kaputte liste(g, kaputte, "VerfahrensATX_erzeugen");
    if (!liste.leeren(80)) return Fehler::gesetzt;
    Kalibrierung bisher;
    for (int i = 1; i <= g.Antennen_Dateien.anzahl(); ++i)
        if (!datei_pruefen(g, g.Antennen_Dateien[i], i == 1, bisher, liste)) return Fehler::gesetzt;
    Fehler fehler = Fehler::gesetzt;
    if (liste.leer()) fehler = atx_schreiben(g, liste);
    kaputte_entfernen(g, kaputte);
    return fehler;
}

Fehler VerfahrensATX_erzeugen(Global& g)
{
    Feld<std::string> kaputte;
    return VerfahrensATX_erzeugen(g, kaputte);
}

Fehler VerfahrensAPC_erzeugen(Global& g, Feld<std::string>& kaputte)
{
    Kaputte liste(g, kaputte, "VerfahrensAPC_erzeugen");
    if (!liste.leeren(51)) return Fehler::gesetzt;
    std::string inhalt;
    for (const auto zeile : apc_kopf) inhalt += verkettet(zeile, "\r\n");
    for (const auto& name : g.Antennen_Dateien) {
        const Gelesen datei = oeffnen(g, name);
        if (datei.stufe == Dateistufe::oeffnen) {
            if (!liste.aufnehmen(52, name)) return Fehler::gesetzt;
            continue;
        }
        if (!datei.gut()) return Fehler::gesetzt;
        if (const auto teil = apc_inhalt(datei.text)) {
            inhalt += *teil;
            continue;
        }
        stop_melden(g, datei_meldung(kopf_datei, im_Verfahren(g, name), "hat nicht den richtigen Aufbau!"));
        if (liste.aufnehmen(53, name)) kaputte_entfernen(g, kaputte);
        return Fehler::gesetzt;
    }
    const bool geschrieben = projektdatei_schreiben(g, Verfahrens_Datei(g, ".APC"), inhalt);
    if (geschrieben) fertig(g);
    kaputte_entfernen(g, kaputte);
    return geschrieben ? Fehler::keiner : Fehler::gesetzt;
}

Fehler VerfahrensAPC_erzeugen(Global& g)
{
    Feld<std::string> kaputte;
    return VerfahrensAPC_erzeugen(g, kaputte);
}

void antennen_loeschen(Global& g, std::string_view name)
{
    if (!aus_liste(g, name)) stop_melden(g, dimensionierung_meldung(54, "antennen_loeschen", preserve(g)));
}

namespace {

// A save has blanked the row behind the shortened list; here its key goes outright.
Fehler letzten_schluessel_entfernen(Global& g)
{
    constexpr std::string_view sektion = "ANTENNEN-DATEIEN";
    const std::string schluessel = verkettet(g.Antennen_Dateien.anzahl() + 1);
    std::error_code grund;
    Profil profil = Profil::aus_datei(g.dateien, g.Verfahrensdatei, grund);
    if (!grund && !profil.hat(sektion, schluessel)) return Fehler::keiner;
    profil.entfernen(sektion, schluessel);
    if (!grund) grund = profil.schreiben(g.dateien, g.Verfahrensdatei);
    if (!grund) return Fehler::keiner;
    stop_melden(
        g, datei_meldung("In die Verfahrensdatei: ", g.Verfahrensdatei, "konnt nicht fehlerfrei geschrieben werden!"));
    return Fehler::gesetzt;
}

}  // namespace

Fehler Antennen_Datei_loeschen(Global& g, const std::string& name)
{
    const std::string frage = verkettet(
        "Die Antennendatei: ", name, " wird aus dem Verfahren entfernt!\n",
        u8"Sie wird dabei auch im Verzeichnis des Verfahrens physikalisch gelöscht!\n\nDie Funktion jetzt ausführen?"_w);
    if (g.oberflaeche->frage(Symbol::frage, frage, Antwort::nein) == Antwort::nein) return Fehler::keiner;
    const auto abbrechen = [&g](std::string_view text) {
        stop_melden(g, text);
        return Fehler::gesetzt;
    };
    const std::string pfad = im_Verfahren(g, name);
    if (!g.dateien.vorhanden(pfad))
        return abbrechen(verkettet("Die Antennedatei: ", name, "\nist nicht mehr im Verfahrensverzeichnis: ",
                                   g.Arbeitsverzeichnis, u8"\nvorhanden! Löschfunktion abgebrochen"_w));
    const Feld<std::string> vorher = g.Antennen_Dateien;
    if (!aus_liste(g, name))
        return abbrechen(verkettet("Dimensionierungsfehler! (65 in Antennen_Datei_loeschen)\n", preserve(g),
                                   "\nevtl. Speicherplatzprobleme!"));
    // The project forgets the file before it goes: an entry without a file could never be removed.
    const Fehler gesichert = Verfahren_sichern(g);
    if (ist_fehler(gesichert) || g.dateien.loeschen(pfad)) {
        g.Antennen_Dateien = vorher;
        if (ist_fehler(gesichert)) return gesichert;
        (void)Verfahren_sichern(g);
        return abbrechen(
            verkettet("Die Antennedatei: ", name, u8"\nkonnte nicht gelöscht werden! Löschfunktion abgebrochen"_w));
    }
    const std::string format = Antennenformat(g);
    if (Verfahren_Satz* verfahren = aktuelles_Verfahren(g); verfahren && g.Antennen_Dateien.anzahl() == 0)
        verfahren->Antenne.assign(1, '?');
    else if (format == "ATX")
        (void)VerfahrensATX_erzeugen(g);
    else if (format == "APC")
        (void)VerfahrensAPC_erzeugen(g);
    baum_aufbauen(g);
    if (const Fehler fehler = Verfahren_sichern(g); ist_fehler(fehler)) return fehler;
    return letzten_schluessel_entfernen(g);
}

}  // namespace jorv
