#include "auswertung/lauf.h"

#include <array>
#include <string>
#include <vector>

#include "auswertung/ablage.h"
#include "auswertung/aufrufdatei.h"
#include "auswertung/ergebnis.h"
#include "auswertung/gesamtprotokoll.h"
#include "auswertung/koordinaten_datei.h"
#include "auswertung/kurzprotokoll.h"
#include "auswertung/rover_batch.h"
#include "daten/antennentest.h"
#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

// What a run of one kind of project consists of.
struct Laufart {
    std::string_view modi;
    std::string_view knoten;  // tree node of the items
    std::string_view keine_stuecke, keines_zaehlt;
    std::string_view protokoll;                       // folder of the merged protocol below the project's
    Fehler (*vorbereiten)(Global&);                   // once before the walk
    bool (*zaehlt)(const Global&, std::string_view);  // whether an item is computed
    Fehler (*batch)(Global&, const std::string&);
    std::string (*extraktion)(const Global&, std::string_view);
    void (*auswerten)(Global&, const std::string&, int& status);
    bool (*ablegen)(Global&, const std::string&);  // true: the item left an error protocol
    void (*zusammenfassen)(Global&);               // reports over all items
};

Fehler stationen_vorbereiten(Global& g)
{
    if (const Fehler fehler = koordinaten_datei_schreiben(g); ist_fehler(fehler)) return fehler;
    if (const Fehler fehler = antennendatentest(g); ist_fehler(fehler)) return fehler;
    g.oberflaeche->sanduhr(true);
    return Fehler::keiner;
}

bool rover_nach_namen(const Global& g, std::string_view rover)
{
    return rover_zaehlt(g, Index_Settings(g, rover));
}

void rover_zusammenfassen(Global& g)
{
    gesamtprotokoll_schreiben(g);
    kurzprotokoll_aller(g);
}

constexpr std::array<Laufart, 1> laufarten = {
    {{"12", "R_Datei", "Es sind keine ROVER-Dateien im aktuellen Verfahren vorhanden!",
      "Es kann keine ROVER-Datei ausgewertet werden!", "", stationen_vorbereiten, rover_nach_namen, rover_batch_vrs,
      extraktionsdatei, rover_auswerten_vrs, ausgaben_ablegen, rover_zusammenfassen}}};

const Laufart* laufart(std::string_view modus)
{
    for (const auto& art : laufarten)
        if (!modus.empty() && art.modi.find(modus) != std::string_view::npos) return &art;
    return nullptr;
}

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
        if (const Fehler fehler = auswaehlen(); ist_fehler(fehler)) return fehler;
        anzeige_vorbereiten();
        alte_berichte_loeschen(g, im_Verfahren(g, verkettet(m_art.protokoll, g.Verfahrensnummer, ".LIS")));
        for (const auto& stueck : m_stuecke) {
            if (!m_art.zaehlt(g, stueck)) continue;
            if (const Fehler fehler = berechnen(stueck); ist_fehler(fehler)) return fehler;
            if (g.abbruch != 0) break;
        }
        g.oberflaeche->fortschritt_setzen(100);
        atmen();
        baum_aufbauen(g);
        m_art.zusammenfassen(g);
        abschliessen();
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

    Fehler auswaehlen()
    {
        if (const Hauptknoten* knoten = g.baum.finden(m_art.knoten))
            for (const auto& kind : knoten->Kinder) m_stuecke.push_back(kind.Text);
        for (const auto& stueck : m_stuecke) m_wahl += m_art.zaehlt(g, stueck) ? 1 : 0;
        if (m_wahl > 0) return Fehler::keiner;
        g.oberflaeche->meldung(Symbol::info, m_stuecke.empty() ? m_art.keine_stuecke : m_art.keines_zaehlt);
        return Fehler::gesetzt;
    }

    void anzeige_vorbereiten()
    {
        g.abbruch = 0;
        g.oberflaeche->fortschritt_zeigen(u8"Auswertung läuft - bitte warten "_w);
    }

    void fortschritt()
    {
        std::string text = verkettet("Auswertung (", m_fertig + 1, "/", m_wahl, ") - bitte warten");
        if (m_fehler >= 1) text += verkettet(" (", m_fehler, " Fehler)");
        g.oberflaeche->fortschritt_zeigen(text);
        const int prozent = ganz32(m_fertig * 100.0 / m_wahl).value_or(0);
        g.oberflaeche->fortschritt_setzen(prozent == 0 ? 0.0001 : prozent);
        atmen();
    }

    Fehler berechnen(const std::string& stueck)
    {
        fortschritt();
        if (const Fehler fehler = m_art.batch(g, stueck); ist_fehler(fehler)) return fehler;
        if (const Fehler fehler = dateien_pruefen(); ist_fehler(fehler)) return fehler;
        if (const Fehler fehler = altes_ergebnis_loeschen(stueck); ist_fehler(fehler)) return fehler;
        Datum_setzen(g);
        m_umgebung.prozess(g.dateien, verkettet('"', aufrufdatei(g), '"'), [this] { atmen(); });
        atmen();
        ++m_fertig;
        int status = 0;
        m_art.auswerten(g, stueck, status);
        if (status == 99) return Fehler::gesetzt;
        if (m_art.ablegen(g, stueck)) ++m_fehler;
        return Fehler::keiner;
    }

    Fehler dateien_pruefen()
    {
        if (!g.dateien.vorhanden(batchdatei(g)))
            g.oberflaeche->meldung(Symbol::warnung, u8"Eine Batchdatei für das Verfahren existiert noch nicht!"_w);
        else if (!g.dateien.vorhanden(aufrufdatei(g)))
            g.oberflaeche->meldung(Symbol::warnung,
                                   u8"Eine Aufrufdatei für die Batchdatei des Verfahrens existiert noch nicht!"_w);
        else
            return Fehler::keiner;
        return Fehler::gesetzt;
    }

    // The line of an earlier run must not pass for the result of a batch that fails.
    Fehler altes_ergebnis_loeschen(const std::string& stueck)
    {
        const std::string extraktion = m_art.extraktion(g, stueck);
        if (!g.dateien.vorhanden(extraktion) || !g.dateien.loeschen(extraktion)) return Fehler::keiner;
        stop_melden(g, datei_meldung("Die Extraktionsdatei:", extraktion, u8"konnte nicht gelöscht werden!"_w));
        return Fehler::gesetzt;
    }

    void abschliessen()
    {
        if (!g.dateien.vorhanden(Verfahrens_Datei(g, ".KRZ"))) return;
        int float_ = 0;
        kurzprotokoll_erweitern(g, float_, m_fertig, m_wahl, m_bereit);
        if (float_ <= 0 && m_fertig == m_bereit) return;
        std::string text = "Achtung!\n\n";
        if (float_ > 0) text += verkettet("Es wurden ", float_, u8" Punkte mit \"Float-Lösung\" berechnet.\n\n"_w);
        if (m_fertig != m_bereit)
            text += verkettet("Es wurden nur ", m_fertig, " von ", m_bereit, " Punkte berechnet.\n\n");
        g.oberflaeche->meldung(Symbol::warnung, text + "Unbedingt die Kurzprotokolldatei einsehen!");
    }

    Global& g;
    const Lauf_Umgebung& m_umgebung;
    const Laufart& m_art;
    std::vector<std::string> m_stuecke;
    int m_wahl = 0;
    int m_fertig = 0;  // batches that have run, at the end the solutions
    int m_fehler = 0;
    int m_bereit;  // ready rovers before the run; the rebuilt tree counts the computed ones no more
};

}  // namespace

Fehler m_wasoft_run_n(Global& g, const Lauf_Umgebung& umgebung)
{
    const Laufart* art = laufart(g.Verfahrensmodus);
    if (!art) {
        stop_melden(g, u8"Verfahren dieses Modus können nicht ausgewertet werden!"_w);
        return Fehler::gesetzt;
    }
    const Fehler fehler = Lauf(g, umgebung, *art).ausfuehren();
    g.oberflaeche->sanduhr(false);
    g.oberflaeche->fortschritt_verbergen();
    g.oberflaeche->menue_erneuern();
    return fehler;
}

}  // namespace jorv
