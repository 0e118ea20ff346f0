#include "projekt/importieren.h"

#include <array>

#include "modell/Batchzeilen.h"
#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "planung/automatik.h"
#include "planung/zeitfenster.h"
#include "plattform/pfad.h"
#include "plattform/profil.h"
#include "plattform/text.h"
#include "plattform/zahl.h"
#include "projekt/geo_lesen.h"
#include "projekt/import_batch.h"
#include "projekt/projektdatei_lesen.h"
#include "projekt/verfahren.h"
#include "projekt/verfahrensliste.h"
#include "projekt/verfahrenssperre.h"

namespace jorv {

namespace {

constexpr std::array<std::string_view, 8> endungen = {".APC", ".ATX", ".COO", ".ERR", ".INI", ".KRZ", ".LIS", ".UTM"};

// One import on its way: the dialog's values and the paths made of them.
class Import {
public:
    Import(Global& g, const Importdialog& d) : m_g(g), m_d(d), m_antenne(d.Antenne) {}

    void dateien_umbenennen();
    void batch_uebernehmen();
    void aufruf_schreiben();
    Fehler projektdatei_schreiben();
    Fehler in_die_Liste();
    std::string projektdatei() const { return neue_datei(".INI"); }

private:
    const std::string& neu(Importfeld feld) const { return m_d.wert(feld); }
    const std::string& alt(Importfeld feld) const { return m_d.alter_wert(feld); }
    bool nummer_geaendert() const { return neu(Importfeld::nummer) != alt(Importfeld::nummer); }
    std::string datei(std::string_view stamm, std::string_view endung) const
    {
        return pfad_verbinden(neu(Importfeld::verzeichnis), verkettet(stamm, endung));
    }
    std::string neue_datei(std::string_view endung) const { return datei(neu(Importfeld::nummer), endung); }
    std::string vorhandene_datei(std::string_view endung) const;
    void umbenennen(const std::string& quelle, const std::string& ziel);
    void batch_schreiben(const std::string& ziel, std::string_view text);

    Global& m_g;
    const Importdialog& m_d;
    std::string m_antenne;
};

// The file under the old number, else under the old name; empty when there is neither.
std::string Import::vorhandene_datei(std::string_view endung) const
{
    for (const auto feld : {Importfeld::nummer, Importfeld::name}) {
        if (alt(feld).empty()) continue;
        std::string pfad = datei(alt(feld), endung);
        if (m_g.dateien.ist_datei(pfad)) return pfad;
    }
    return {};
}

void Import::umbenennen(const std::string& quelle, const std::string& ziel)
{
    if (gleich_ohne_gross(quelle, ziel)) return;
    if (m_g.dateien.kopieren(quelle, ziel)) {
        stop_melden(m_g, verkettet("Fehler beim COPY der Datei:\n", quelle, "\n in die Datei:\n", ziel));
    } else if (m_g.dateien.loeschen(quelle)) {
        stop_melden(m_g, verkettet("Fehler beim DELETE der Datei:\n", quelle));
    }
}

void Import::dateien_umbenennen()
{
    if (nummer_geaendert()) {
        for (const auto endung : endungen) {
            const std::string quelle = vorhandene_datei(endung);
            if (quelle.empty()) continue;
            umbenennen(quelle, neue_datei(endung));
            // The list has always said "AXT"; whoever asks for the format reads it as "ATX".
            if (endung == ".APC") m_antenne = "APC";
            if (endung == ".ATX") m_antenne = "AXT";
        }
    }
    // The file may bear a name that is neither the number nor the name written in it.
    const std::string ziel = projektdatei();
    if (m_g.dateien.vorhanden(ziel) || !m_g.dateien.kopieren(m_d.Importdatei, ziel)) return;
    stop_melden(m_g, verkettet("Fehler beim COPY der Datei:\n", m_d.Importdatei, "\n in die Datei:\n", ziel));
}

void Import::batch_schreiben(const std::string& ziel, std::string_view text)
{
    switch (m_g.dateien.schreiben_stufenweise(ziel, text)) {
        case Dateistufe::gut:
            return;
        case Dateistufe::oeffnen:
            return stop_melden(
                m_g, datei_meldung("Die Batchdatei:", ziel, u8"konnte nicht angelegt/überschrieben werden!"_w));
        case Dateistufe::lesen:
        case Dateistufe::schreiben:
        case Dateistufe::schliessen:
            return stop_melden(m_g, verkettet("Schreibfehler in der Datei:\n", ziel));
    }
}

void Import::batch_uebernehmen()
{
    const std::string quelle = datei(alt(Importfeld::nummer), ".BAT");
    if (!nummer_geaendert() || alt(Importfeld::nummer).empty() || !m_g.dateien.vorhanden(quelle)) return;
    const Gelesen gelesen = m_g.dateien.lesen_stufenweise(quelle);
    if (gelesen.stufe == Dateistufe::oeffnen)
        return stop_melden(m_g, datei_meldung("Die Batchdatei:", quelle, u8"konnte nicht geöffnet werden!"_w));
    if (gelesen.stufe == Dateistufe::lesen)
        return stop_melden(m_g, verkettet("Lesefehler in der Datei:\n", quelle,
                                          "\nin der Zeile: ", zeichen_zaehlen(gelesen.text, '\n') + 1));
    const Zeitpunkt jetzt = m_g.uhr->jetzt();
    const Batchumschrift umschrift = {
        alt(Importfeld::nummer),      alt(Importfeld::name),
        alt(Importfeld::verzeichnis), neu(Importfeld::nummer),
        neu(Importfeld::name),        neu(Importfeld::verzeichnis),
        m_g.EXE_Verzeichnis,          verkettet(tag_text(jetzt), " ", uhrzeit_text(jetzt))};
    batch_schreiben(neue_datei(".BAT"), batch_umschreiben(gelesen.text, umschrift));
}

void Import::aufruf_schreiben()
{
    const std::string pfad = pfad_verbinden(neu(Importfeld::verzeichnis), "Jorv.BAT");
    if (!m_g.dateien.schreiben(pfad, batch_aufruf(neue_datei(".BAT")))) return;
    stop_melden(
        m_g, datei_meldung("Die Aufrufdatei:", pfad, u8"der Batchdatei konnte nicht angelegt/überschrieben werden!"_w));
}

Fehler Import::projektdatei_schreiben()
{
    const std::string_view verzeichnis = neu(Importfeld::verzeichnis);
    const std::array<std::array<std::string_view, 3>, 11> werte = {
        {{"VERFAHREN", "Name", neu(Importfeld::name)},
         {"VERFAHREN", "Nummer", neu(Importfeld::nummer)},
         {"VERFAHREN", "Modus", Modus_Ziffer(neu(Importfeld::modus))},
         {"GRUNDEINSTELLUNGEN", "Arbeits-Verzeichnis", verzeichnis},
         {"VERFAHREN", "Versionsnummer", neu(Importfeld::versionsnummer)},
         {"VERFAHREN", "Versionsdatum", neu(Importfeld::versionsdatum)},
         {"VERFAHREN", "ErstDatum", neu(Importfeld::anlegedatum)},
         {"VERFAHREN", "LetztDatum", neu(Importfeld::letztdatum)},
         {"VERFAHREN", "Antenne", m_antenne},
         {"GRUNDEINSTELLUNGEN", "RINEX-Verzeichnis", verzeichnis},
         {"GRUNDEINSTELLUNGEN", "Antennen-Verzeichnis", verzeichnis}}};
    std::error_code fehler;
    Profil profil = Profil::aus_datei(m_g.dateien, projektdatei(), fehler);
    for (const auto& [sektion, schluessel, wert] : werte) profil.setzen(sektion, schluessel, wert);
    if (!fehler) fehler = profil.schreiben(m_g.dateien, projektdatei());
    if (!fehler) return Fehler::keiner;
    stop_melden(
        m_g, datei_meldung("In die Verfahrensdatei: ", projektdatei(), "konnt nicht fehlerfrei geschrieben werden!"));
    return Fehler::gesetzt;
}

Fehler Import::in_die_Liste()
{
    Verfahren_Satz v;
    v.Nummer = neu(Importfeld::nummer);
    v.Name = neu(Importfeld::name);
    v.Modus = Modus_Ziffer(neu(Importfeld::modus));
    v.Pfad = neu(Importfeld::verzeichnis);
    v.ErstDatum = neu(Importfeld::anlegedatum);
    v.LetztDatum = neu(Importfeld::letztdatum);
    v.Antenne = m_antenne;
    if (m_g.Verfahren.anfuegen(std::move(v))) return Fehler::keiner;
    stop_melden(m_g, dimensionierung_meldung(
                         64, "frmImport", verkettet("    ReDim Preserve Verfahren(", m_g.Verfahren.anzahl() + 1, ")")));
    return Fehler::gesetzt;
}

// The header's INTERVAL in whole seconds, 0 when the file or the value is missing.
std::int32_t intervall_lesen(const Global& g, std::string_view rinex_datei)
{
    constexpr std::size_t kopf_bytes = 65536, label_spalte = 61, wert_breite = 6;
    const auto kopf = g.dateien.anfang_lesen(im_Verfahren(g, rinex_datei), kopf_bytes);
    if (!kopf) return 0;
    Zeilenleser leser(*kopf);
    while (const auto zeile = leser.naechste()) {
        const std::string_view label = mitte(*zeile, label_spalte);
        if (label.starts_with("END OF HEADER")) break;
        if (label.starts_with("INTERVAL"))
            return ganz32(zahl_lesen(ersetzt(std::string(links(*zeile, wert_breite)), ',', '.'))).value_or(0);
    }
    return 0;
}

// A file of an older version has no settings: every rover gets those of a new one.
Fehler einstellungen_ergaenzen(Global& g)
{
    const int anzahl = g.OBS_R.anzahl();
    if (g.ROVER_Settings.anzahl() >= anzahl) return Fehler::keiner;
    if (!g.ROVER_Settings.groesse_setzen(anzahl)) {
        stop_melden(g,
                    dimensionierung_meldung(79, "cmd_import(frmImport)",
                                            verkettet("    ReDim Preserve ROVER_TOREL(", g.ROVER_TOREL.anzahl(), ")")));
        return Fehler::gesetzt;
    }
    for (int i = 1; i <= anzahl; ++i) {
        const OBS& obs = g.OBS_R[i];
        ROVER_Settings_Satz satz;
        satz.ROVER_Dateiname = obs.Dateiname;
        satz.StartTime = obs.Startzeit_GPS_Sekunde;
        satz.EndTime = obs.Endzeit_GPS_Sekunde;
        satz.EpochRate = intervall_lesen(g, obs.Dateiname);
        g.ROVER_Settings[i] = std::move(satz);
    }
    return Fehler::keiner;
}

Fehler sektionen_lesen(Global& g, const Profil& profil)
{
    if (ist_fehler(geo_lesen(g, profil))) return Fehler::gesetzt;
    for (const std::string_view sektion : {"TOREL-OBS", "ROVER-OBS", "FREMD-VIRT-OBS"})
        if (ist_fehler(Dateidaten_OBS_lesen(g, profil, sektion))) return Fehler::gesetzt;
    if (ist_fehler(Dateidaten_ROVER_Settings_lesen(g, profil))) return Fehler::gesetzt;
    if (ist_fehler(einstellungen_ergaenzen(g))) return Fehler::gesetzt;
    for (const std::string_view sektion : {"GRAPHIK-TOREL", "GRAPHIK-ROVER"})
        if (ist_fehler(Dateidaten_GRAPHIK_lesen(g, profil, sektion))) return Fehler::gesetzt;
    for (const auto leser :
         {Dateidaten_ROVER_TOREL_lesen, Dateidaten_ROVER_VIRT_lesen, Dateidaten_RINEX_lesen, Dateidaten_Antennen_lesen})
        if (ist_fehler(leser(g, profil))) return Fehler::gesetzt;
    g.ungelesene_Sektionen = {"GRAPHIK-FREMD-VIRT", "BASISLINIE"};
    return Fehler::keiner;
}

Fehler importiertes_oeffnen(Global& g, const std::string& datei)
{
    std::shared_ptr<const Sperre> sperre;
    Profil profil;
    if (ist_fehler(Verfahren_sperren(g, datei, sperre)) || ist_fehler(Projektdatei_laden(g, datei, profil)))
        return Fehler::gesetzt;
    g.Verfahrenssperre = std::move(sperre);
    if (ist_fehler(Verfahrensdaten_leeren(g))) return Fehler::gesetzt;
    Verfahren_lesen(g, datei, profil);
    reste_wegraeumen(g);
    vier_Menues(g, true);
    if (ist_fehler(sektionen_lesen(g, profil))) {
        vier_Menues(g, false);
        baum_aufbauen(g);
        return Fehler::gesetzt;
    }
    g.vollstaendig_gelesen = true;
    automatik(g);
    return Fehler::keiner;
}

// Runs under the lock of the settings file, so that no other program gives the number out meanwhile.
Fehler unter_sperre_uebernehmen(Global& g, Importdialog& d, std::string& projektdatei)
{
    Einstellungen_gesperrt einstellungen(g);
    Verfahrensliste_auffrischen(g, einstellungen.profil());
    import_pruefen(g, d);
    if (!d.importierbar()) return Fehler::gesetzt;
    Import import(g, d);
    import.dateien_umbenennen();
    // The chosen file has vanished since the dialog read it: there is nothing left to import.
    if (!g.dateien.vorhanden(import.projektdatei())) return Fehler::gesetzt;
    import.batch_uebernehmen();
    import.aufruf_schreiben();
    if (ist_fehler(import.projektdatei_schreiben()) || ist_fehler(import.in_die_Liste())) return Fehler::gesetzt;
    projektdatei = import.projektdatei();
    Verfahrensliste_eintragen(g, einstellungen.profil());
    return einstellungen.schreiben();
}

}  // namespace

Fehler cmd_import(Global& g, Importdialog& d)
{
    m_datei_sichern(g);
    reste_wegraeumen(g, pfad_ordner(d.Importdatei));
    std::shared_ptr<const Sperre> quelle;
    if (ist_fehler(Verfahren_sperren(g, d.Importdatei, quelle))) return Fehler::gesetzt;
    std::string projektdatei;
    const Fehler uebernommen = unter_sperre_uebernehmen(g, d, projektdatei);
    quelle.reset();
    if (projektdatei.empty()) return Fehler::gesetzt;
    const Fehler geoeffnet = importiertes_oeffnen(g, projektdatei);
    g.oberflaeche->karte_zeichnen(true);
    (void)menue_zeitfenster(g);
    return ist_fehler(uebernommen) ? uebernommen : geoeffnet;
}

}  // namespace jorv
