#include "auswertung/laufart.h"

#include <array>

#include "auswertung/ablage.h"
#include "auswertung/aufrufdatei.h"
#include "auswertung/basis_batch.h"
#include "auswertung/basis_esa.h"
#include "auswertung/basislinie.h"
#include "auswertung/ergebnis.h"
#include "auswertung/gesamtprotokoll.h"
#include "auswertung/koordinaten_datei.h"
#include "auswertung/kurzprotokoll.h"
#include "auswertung/rover_batch.h"
#include "daten/antennentest.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

namespace {

Fehler nichts(Global&)
{
    return Fehler::keiner;
}

Fehler nichts_je_stueck(Global&, const std::string&)
{
    return Fehler::keiner;
}

Fehler stationen_vorbereiten(Global& g)
{
    if (const Fehler fehler = koordinaten_datei_schreiben(g); ist_fehler(fehler)) return fehler;
    if (const Fehler fehler = antennendatentest(g); ist_fehler(fehler)) return fehler;
    g.oberflaeche->sanduhr(true);
    return Fehler::keiner;
}

// The antenna test reads the coordinate file, and in mode F that holds one rover.
Fehler rover_vorbereiten(Global& g, const std::string& rover)
{
    if (const Fehler fehler = koordinaten_datei_rover(g, rover); ist_fehler(fehler)) return fehler;
    return antennendatentest(g);
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

bool jedes(const Global&, std::string_view)
{
    return true;
}

// The batch of a baseline files its protocols itself.
bool nichts_ablegen(Global&, const std::string&)
{
    return false;
}

void basis_zusammenfassen(Global& g)
{
    (void)m_basis_esa(g);
}

constexpr std::string_view keine_rover = "Es sind keine ROVER-Dateien im aktuellen Verfahren vorhanden!";
constexpr std::string_view kein_rover_zaehlt = "Es kann keine ROVER-Datei ausgewertet werden!";

constexpr std::string_view keine_basislinien = "Es sind keine Basislinien im aktuellen Verfahren definiert!";

constexpr std::array<Laufart, 3> laufarten = {
    {{"12", "R_Datei", keine_rover, kein_rover_zaehlt, "", stationen_vorbereiten, nichts_je_stueck, rover_nach_namen,
      rover_batch_vrs, extraktionsdatei, rover_auswerten_vrs, ausgaben_ablegen, rover_zusammenfassen, true},
     {"3", "R_Datei", keine_rover, kein_rover_zaehlt, "", nichts, rover_vorbereiten, rover_nach_namen,
      rover_batch_fremd, extraktionsdatei, rover_auswerten_fremd, ausgaben_ablegen, rover_zusammenfassen, true},
     {"4", "B_Datei", keine_basislinien, keine_basislinien, R"(jorv_out\lis_bas\)", nichts, nichts_je_stueck, jedes,
      basis_batch_einzeln, extraktionsdatei_basis, basis_auswerten, nichts_ablegen, basis_zusammenfassen, false}}};

}  // namespace

const Laufart* laufart(Global& g)
{
    for (const auto& art : laufarten)
        if (!g.Verfahrensmodus.empty() && art.modi.find(g.Verfahrensmodus) != std::string_view::npos) return &art;
    stop_melden(g, u8"Verfahren dieses Modus können nicht ausgewertet werden!"_w);
    return nullptr;
}

Fehler auswaehlen(Global& g, const Laufart& art, Auswahl& auswahl)
{
    if (const Hauptknoten* knoten = g.baum.finden(art.knoten))
        for (const auto& kind : knoten->Kinder) auswahl.stuecke.push_back(kind.Text);
    for (const auto& stueck : auswahl.stuecke) auswahl.wahl += art.zaehlt(g, stueck) ? 1 : 0;
    if (auswahl.wahl > 0) return Fehler::keiner;
    g.oberflaeche->meldung(Symbol::info, auswahl.stuecke.empty() ? art.keine_stuecke : art.keines_zaehlt);
    return Fehler::gesetzt;
}

Fehler batch_vorhanden(Global& g)
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

void lauf_abschliessen(Global& g, int wahl, int fertig, int bereit)
{
    if (ist_B(g) || !g.dateien.vorhanden(Verfahrens_Datei(g, ".KRZ"))) return;
    int float_ = 0, loesungen = fertig;
    kurzprotokoll_erweitern(g, float_, loesungen, wahl, bereit);
    if (float_ <= 0 && loesungen == bereit) return;
    std::string text = "Achtung!\n\n";
    if (float_ > 0) text += verkettet("Es wurden ", float_, u8" Punkte mit \"Float-Lösung\" berechnet.\n\n"_w);
    if (loesungen != bereit) text += verkettet("Es wurden nur ", loesungen, " von ", bereit, " Punkte berechnet.\n\n");
    g.oberflaeche->meldung(Symbol::warnung, text + "Unbedingt die Kurzprotokolldatei einsehen!");
}

}  // namespace jorv
