#include "auswertung/basis_gesamt.h"

#include <array>

#include "auswertung/aufrufdatei.h"
#include "auswertung/basislinie.h"
#include "auswertung/batchkopf.h"
#include "modell/Gemeinsam.h"
#include "plattform/text.h"

namespace jorv {

namespace {

using enum Zeilenart;

constexpr std::array<Batchzeile, 5> vorbereitung = {{{"if exist {VNR}.MRK del {VNR}.MRK", konsole},
                                                     {"if exist {VNR}.TEM del {VNR}.TEM", konsole},
                                                     {"if exist {VNR}.LIS del {VNR}.LIS", konsole},
                                                     {R"(if exist jorv_out\prot_bas rmdir jorv_out\prot_bas /s/q)"},
                                                     {R"(mkdir jorv_out\prot_bas)"}}};

// Fixed options, whatever the settings of the points say.
constexpr std::array<Batchzeile, 5> basislinien_zeilen = {
    {{"echo {I}({N})"},
     {"wasoft {FROM} {TO} +A{VNR8}.{ANT}{OPTC} -0 +R30 -e5 >> {VNR}.LIS", konsole},
     {"waprt {TO3}prt -VSbscd >> {VNR}.MRK", konsole},
     {"waprt {TO3}prt +VS0sadveop >> {VNR}.TEM", konsole},
     {"rename {TO3}prt {FR3}_{TO3}prt"}}};

constexpr std::array<Batchzeile, 5> kopieren = {{{":kopieren"},
                                                 {"REM Basislinien-Protokolle"},
                                                 {R"(copy *.prt jorv_out\prot_bas)"},
                                                 {"del *.prt"},
                                                 {"goto :ende"}}};

std::string basislinien_batch(const Global& g)
{
    Batchtext batch(g);
    batch.setzen("VNR8", links(g.Verfahrensnummer, 8));
    batch.setzen("OPTC", batch.wert("ANT") == "APC" ? batch.einsetzen(" +C{VNR8}.COO") : std::string());
    batch.setzen("N", verkettet(g.BASISLINIE.anzahl()));
    batchkopf(g, batch, titel_basislinien);
    batch.zeilen(vorbereitung);
    for (int i = 1; i <= g.BASISLINIE.anzahl(); ++i) {
        batch.setzen("I", verkettet(i));
        basislinien_namen(batch, {g.BASISLINIE[i].Datei_von, g.BASISLINIE[i].Datei_nach});
        batch.zeilen(basislinien_zeilen);
    }
    gesamtbatch_schluss(batch, kopieren);
    return batch.text();
}

}  // namespace

Fehler m_basis_erstellen(Global& g)
{
    if (!ist_B(g)) {
        g.oberflaeche->meldung(Symbol::info, "Eine Batchdatei aller Basislinien gibt es nur im Modus B!");
        return Fehler::gesetzt;
    }
    if (!darf_ueberschreiben(g, "Die Batchdatei:", batchdatei(g))) return Fehler::gesetzt;
    return gesamtbatch_ablegen(g, basislinien_batch(g));
}

}  // namespace jorv
