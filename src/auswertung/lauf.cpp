#include "auswertung/lauf.h"

#include <optional>
#include <string>

#include "auswertung/ablage.h"
#include "auswertung/antennenwarnung.h"
#include "auswertung/aufrufdatei.h"
#include "auswertung/laufart.h"
#include "auswertung/vorauslauf.h"
#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "modell/Kontextmenue.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

class Lauf {
public:
    Lauf(Global& zustand, const Lauf_Umgebung& umgebung, const Laufart& art)
        : g(zustand), m_umgebung(umgebung), m_art(art), m_bereit(zustand.berechnete_ROVER)
    {
    }

    Fehler ausfuehren()
    {
        if (const Fehler fehler = m_art.vorbereiten(g); ist_fehler(fehler)) return fehler;
        altes_emd_loeschen();
        if (const Fehler fehler = auswaehlen(g, m_art, m_auswahl); ist_fehler(fehler)) return fehler;
        anzeige_vorbereiten();
        alte_berichte_loeschen(g, im_Verfahren(g, verkettet(m_art.protokoll, g.Verfahrensnummer, ".LIS")));
        voraus_erlauben();
        for (const auto& stueck : m_auswahl.stuecke) {
            if (!m_art.zaehlt(g, stueck)) continue;
            if (const Fehler fehler = berechnen(stueck); ist_fehler(fehler)) return fehler;
            if (g.abbruch != 0) break;
        }
        g.oberflaeche->fortschritt_setzen(100);
        atmen();
        baum_aufbauen(g);
        m_art.zusammenfassen(g);
        lauf_abschliessen(g, m_auswahl.wahl, m_fertig, m_bereit);
        m_antennen.melden(g);
        return Fehler::keiner;
    }

private:
    void atmen()
    {
        if (g.oberflaeche->ereignisse()) g.abbruch = -1;
    }

    void altes_emd_loeschen()
    {
        const std::string emd = im_Verfahren(g, verkettet("jorv_out\\export\\", g.Verfahrensnummer, ".EMD"));
        if (g.emds_ausgabe && g.dateien.vorhanden(emd)) (void)g.dateien.loeschen(emd);
    }

    void anzeige_vorbereiten()
    {
        g.abbruch = 0;
        g.oberflaeche->fortschritt_zeigen(u8"Auswertung läuft - bitte warten "_w);
    }

    void fortschritt()
    {
        std::string text = verkettet("Auswertung (", m_fertig + 1, "/", m_auswahl.wahl, ") - bitte warten");
        if (m_fehler >= 1) text += verkettet(" (", m_fehler, " Fehler)");
        g.oberflaeche->fortschritt_zeigen(text);
        const int prozent = ganz32(m_fertig * 100.0 / m_auswahl.wahl).value_or(0);
        g.oberflaeche->fortschritt_setzen(prozent == 0 ? 0.0001 : prozent);
        atmen();
    }

    Fehler berechnen(const std::string& stueck)
    {
        fortschritt();
        if (const Fehler fehler = m_art.stueck_vorbereiten(g, stueck); ist_fehler(fehler)) return fehler;
        const bool voraus = m_voraus && m_voraus->hat(stueck);
        if (const Fehler fehler = voraus ? voraus_abholen(stueck) : im_Verfahren_rechnen(stueck); ist_fehler(fehler))
            return fehler;
        atmen();
        ++m_fertig;
        int status = 0;
        m_art.auswerten(g, stueck, status);
        if (status == 99) return Fehler::gesetzt;
        if (m_art.ablegen(g, stueck)) ++m_fehler;
        m_antennen.lesen(g, kontextdatei(g, "mnu_tree_lis_editieren", stueck), stueck);
        return Fehler::keiner;
    }

    void voraus_erlauben()
    {
        const int gleichzeitig = m_art.voraus && m_auswahl.wahl > 1 ? m_umgebung.gleichzeitig(g) : 1;
        if (gleichzeitig > 1) m_voraus.emplace(g, m_art, m_auswahl.stuecke, gleichzeitig);
    }

    Fehler voraus_abholen(const std::string& stueck)
    {
        if (const Fehler fehler = altes_ergebnis_loeschen(stueck); ist_fehler(fehler)) return fehler;
        Datum_setzen(g);
        return m_voraus->abholen(stueck, [this] { atmen(); }) ? Fehler::keiner : im_Verfahren_rechnen(stueck);
    }

    // The batch of the first rover always runs here: it sweeps away what earlier runs have left.
    Fehler im_Verfahren_rechnen(const std::string& stueck)
    {
        if (m_voraus) m_voraus->daneben_starten(stueck);
        if (const Fehler fehler = m_art.batch(g, stueck); ist_fehler(fehler)) return fehler;
        if (const Fehler fehler = batch_vorhanden(g); ist_fehler(fehler)) return fehler;
        if (const Fehler fehler = altes_ergebnis_loeschen(stueck); ist_fehler(fehler)) return fehler;
        Datum_setzen(g);
        m_umgebung.prozess(g.dateien, verkettet('"', aufrufdatei(g), '"'), [this] { atmen(); });
        return Fehler::keiner;
    }

    // The line of an earlier run must not pass for the result of a batch that fails.
    Fehler altes_ergebnis_loeschen(const std::string& stueck)
    {
        const std::string extraktion = m_art.extraktion(g, stueck);
        if (!g.dateien.vorhanden(extraktion) || !g.dateien.loeschen(extraktion)) return Fehler::keiner;
        stop_melden(g, datei_meldung("Die Extraktionsdatei:", extraktion, u8"konnte nicht gelöscht werden!"_w));
        return Fehler::gesetzt;
    }

    Global& g;
    const Lauf_Umgebung& m_umgebung;
    const Laufart& m_art;
    Auswahl m_auswahl;
    Antennenwarnung m_antennen;
    std::optional<Vorauslauf> m_voraus;
    int m_fertig = 0;  // batches that have run
    int m_fehler = 0;
    int m_bereit;  // ready rovers before the run; the rebuilt tree counts the computed ones no more
};

}  // namespace

Fehler m_wasoft_run_n(Global& g, const Lauf_Umgebung& umgebung)
{
    const Laufart* art = laufart(g);
    if (!art) return Fehler::gesetzt;
    const Fehler fehler = Lauf(g, umgebung, *art).ausfuehren();
    g.oberflaeche->sanduhr(false);
    g.oberflaeche->fortschritt_verbergen();
    g.oberflaeche->menue_erneuern();
    return fehler;
}

}  // namespace jorv
