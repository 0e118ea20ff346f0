#include "auswertung/gesamt_batch.h"

#include <array>

#include "auswertung/aufrufdatei.h"
#include "auswertung/batchkopf.h"
#include "auswertung/roverzeilen.h"
#include "daten/antennentest.h"
#include "modell/Gemeinsam.h"
#include "plattform/text.h"

namespace jorv {

namespace {

using enum Zeilenart;

// The whole of jorv_out goes, results and all: this batch computes every rover anew.
constexpr std::array<Batchzeile, 12> vorbereitung = {{{"if exist {VNR}.UTM del {VNR}.UTM", konsole},
                                                      {"if exist {VNR}.LIS del {VNR}.LIS", konsole},
                                                      {"if exist {VNR}.ERR del {VNR}.ERR", konsole},
                                                      {"if exist {VNR}.KRZ del {VNR}.KRZ", konsole},
                                                      {"if exist virt*.* del virt*.*"},
                                                      {"if exist jorv_out rmdir jorv_out /s/q"},
                                                      {"mkdir jorv_out"},
                                                      {"cd jorv_out"},
                                                      {"mkdir rin_vrs"},
                                                      {"mkdir prot_rov"},
                                                      {"mkdir prot_vrs"},
                                                      {"cd .."}}};

// The fifth line ends in a blank and the eleventh has two in the middle.
constexpr std::array<Batchzeile, 12> rover_zeilen = {
    {{"wasoft {DDD}{SES} {STALIST} +Vvirt,{ROVER} +A{VNR8}.{ANT} +C{VNR8}.COO{OPTB} >> {VNR}.LIS", konsole},
     {"if exist wav2.err type wav2.err >> {VNR}.ERR"},
     {"if exist wav2.err del wav2.err"},
     {"if not exist virt{DDD}{SES}.??o goto :fehler1"},
     {"if not exist virt{DDD}{SES}.rxo rename virt{DDD}{SES}.??o virt{DDD}{SES}.rxo "},
     {"wasoft virt{DDD}{SES}.rxo {ROVER} +A{VNR8}.{ANT}{OPT0} >> {VNR}.LIS", konsole},
     {"if exist wav2.err type wav2.err >> {VNR}.ERR"},
     {"if exist wav2.err del wav2.err"},
     {"waprt {ROV-3}prt -SUd{OPTU} +F >> {VNR}.UTM", konsole},
     {"waprt {ROV-3}prt -Sd0avpreoHAB +F >> {VNR}.KRZ", konsole},
     {"rename virt{DDD}{SES}.rxo  virt{ROVER}"},
     {"rename virt{DDD}{SES}.vrt {ROV-4}.vrt"}}};

constexpr std::array<Batchzeile, 11> kopieren = {{{":kopieren"},
                                                  {"REM VRS-RINEX-Dateien"},
                                                  {R"(copy virt*.??o jorv_out\rin_vrs)"},
                                                  {"del virt*.??o"},
                                                  {"REM Rover-Protokolle"},
                                                  {R"(copy *.prt jorv_out\prot_rov)"},
                                                  {"del *.prt"},
                                                  {"REM VRS-Protokolle"},
                                                  {R"(copy *.vrt jorv_out\prot_vrs)"},
                                                  {"del *.vrt"},
                                                  {"goto :ende"}}};

std::string zeitgrenzen(const Global& g, const ROVER_TOREL_Satz& zuordnung)
{
    if (!fenster_nutzbar(g, zuordnung)) return {};
    return verkettet(" +b", trimmen(zuordnung.Zeitfenster_Startzeit), " +e", trimmen(zuordnung.Zeitfenster_Endzeit));
}

void rover(const Global& g, Batchtext& batch, int i)
{
    const ROVER_TOREL_Satz& zuordnung = g.ROVER_TOREL[i];
    batch.fertige_zeile(verkettet("echo ", i, "(", g.ROVER_TOREL.anzahl(), ")"));
    if (zuordnung.Status != static_cast<std::uint8_t>(Ampel::gruen)) return;
    rover_namen(batch, zuordnung.ROVER_Dateiname);
    batch.setzen("STALIST", stationsliste(zuordnung));
    batch.setzen("OPTB", zeitgrenzen(g, zuordnung));
    batch.zeilen(rover_zeilen);
}

std::string gesamt_batch(const Global& g)
{
    Batchtext batch(g);
    batch.setzen("VNR8", links(g.Verfahrensnummer, 8));
    batch.setzen("OPT0", g.Auswertemodus == "L0" ? " -0" : "");
    batch.setzen("OPTU", g.UTM_Zone == "?" ? std::string() : verkettet(" +U", g.UTM_Zone));
    batchkopf(g, batch, titel_rover);
    batch.zeilen(vorbereitung);
    for (int i = 1; i <= g.ROVER_TOREL.anzahl(); ++i) rover(g, batch, i);
    gesamtbatch_schluss(batch, kopieren);
    return batch.text();
}

}  // namespace

Fehler m_wasoft_erstellen(Global& g)
{
    if (!ist_E_oder_S(g)) {
        g.oberflaeche->meldung(Symbol::info, "Eine Batchdatei aller ROVER gibt es nur in den Modi E und S!");
        return Fehler::gesetzt;
    }
    if (const Fehler fehler = antennendatentest(g); ist_fehler(fehler)) return fehler;
    if (!darf_ueberschreiben(g, "Die Batchdatei:", batchdatei(g))) return Fehler::gesetzt;
    return gesamtbatch_ablegen(g, gesamt_batch(g));
}

}  // namespace jorv
