#include "auswertung/basis_batch.h"

#include <algorithm>
#include <array>

#include "auswertung/aufrufdatei.h"
#include "auswertung/basislinie.h"
#include "auswertung/batchkopf.h"
#include "auswertung/roverzeilen.h"
#include "modell/Gemeinsam.h"
#include "plattform/text.h"

namespace jorv {

namespace {

using enum Zeilenart;

constexpr std::array<Batchzeile, 7> vorbereitung = {{{"if not exist jorv_out mkdir jorv_out"},
                                                     {"cd jorv_out"},
                                                     {"if not exist dat_bas mkdir dat_bas"},
                                                     {"if not exist lis_bas mkdir lis_bas"},
                                                     {"if not exist prot_bas mkdir prot_bas"},
                                                     {"if not exist export mkdir export"},
                                                     {"cd.."}}};

constexpr std::array<Batchzeile, 7> protokolle = {
    {{"if exist {VNR}.log copy {VNR}.log {VNR}.LIS"},
     {R"(if exist {VNR}.LIS type {VNR}.LIS >> jorv_out\lis_bas\{VNR}.LIS)"},
     {R"(if exist {VNR}.log copy {VNR}.log jorv_out\lis_bas\{FR4}-{TO4}.lis)"},
     {"if exist {VNR}.LIS del {VNR}.LIS", konsole},
     {"if exist {VNR}.log del {VNR}.log", konsole},
     {R"(if exist {VNR}.sol copy {VNR}.sol jorv_out\prot_bas\{FR4}-{TO3}prt)"},
     {"if exist {VNR}.sol del {VNR}.sol", konsole}}};

constexpr std::array<Batchzeile, 2> emd_sammeln = {
    {{R"(if exist {VNR}.EMD type {VNR}.EMD >> jorv_out\export\{VNR}.EMD)"},
     {"if exist {VNR}.EMD del {VNR}.EMD", konsole}}};

constexpr std::array<Batchzeile, 2> aufraeumen = {
    {{"if exist wa2ext.txt del wa2ext.txt"}, {"if exist wa2log.txt del wa2log.txt"}}};

constexpr std::string_view ausgaben_basislinie =
    " +E-NS1,NS2,BCX,BLE,BSX,BXX,NS1,NS2,BCX,BSX,BXX,DOY,SES,NS1,NS2,SDV,BXX,AMB,DOY,SES,SVA,STY,TDM,PDA"
    " +FE{VNR}.ext +FL{VNR}.log +FS{VNR}.sol";
constexpr std::string_view ausgaben_emd = " +SE +FS{VNR}.EMD";

// Settings where the larger of the two counts; a common value that the suite takes anyway is left out.
struct Grenzwert {
    std::string_view option;
    std::int32_t ROVER_Settings_Satz::*feld;
    std::int32_t vorgabe;
};

constexpr std::array<Grenzwert, 4> grenzwerte = {{{" +R", &ROVER_Settings_Satz::EpochRate, 1},
                                                  {" -e", &ROVER_Settings_Satz::Elevation, 10},
                                                  {" -M", &ROVER_Settings_Satz::DelFirstMinutes, 0},
                                                  {" -N", &ROVER_Settings_Satz::DelLastMinutes, 0}}};

constexpr std::int32_t loesung_L0 = 0, loesung_L1 = 1, loesung_automatisch = 2;

ROVER_Settings_Satz einstellung(const Global& g, std::string_view datei)
{
    if (const int index = Index_Settings(g, datei); index != 0) return g.ROVER_Settings[index];
    ROVER_Settings_Satz nullen;
    nullen.Elevation = nullen.Solution = 0;
    return nullen;
}

// A solution that is asked for goes before the automatic one, L1 before L0.
std::int32_t gemeinsame_loesung(std::int32_t s1, std::int32_t s2)
{
    for (const std::int32_t loesung : {loesung_L1, loesung_L0})
        if (s1 != s2 && (s1 == loesung || s2 == loesung)) return loesung;
    return s1 == s2 ? s1 : loesung_automatisch;
}

std::string wa2_anfang(const Global& g, const Batchtext& batch, const Basislinie& basislinie)
{
    const ROVER_Settings_Satz s1 = einstellung(g, basislinie.von), s2 = einstellung(g, basislinie.nach);
    std::string zeile = batch.einsetzen("wa2 {FROM} {TO} +ACF{VNR8}.{ANT}");
    const std::int32_t loesung = gemeinsame_loesung(s1.Solution, s2.Solution);
    if (loesung != loesung_automatisch) zeile += verkettet(" +TL", loesung);
    for (const auto& [option, feld, vorgabe] : grenzwerte)
        if (s1.*feld != s2.*feld || s1.*feld != vorgabe) zeile += verkettet(option, std::max(s1.*feld, s2.*feld));
    for (const auto& satellit : satelliten_optionen(s1)) zeile += satellit;
    for (const auto& satellit : satelliten_optionen(s2))
        if (zeile.find(satellit) == std::string::npos) zeile += satellit;
    return zeile;
}

void wa2_zeile(const Global& g, Batchtext& batch, std::string_view anfang, std::string_view frequenz,
               std::string_view ausgaben)
{
    const std::string zone = g.UTM_Zone == "?" ? std::string() : verkettet(" +U", g.UTM_Zone);
    batch.fertige_zeile(dos_text(verkettet(anfang, frequenz, zone, batch.einsetzen(ausgaben))));
}

void auswertung(const Global& g, Batchtext& batch, const Basislinie& basislinie)
{
    const std::string anfang = wa2_anfang(g, batch, basislinie);
    wa2_zeile(g, batch, anfang, " +L2", ausgaben_basislinie);
    batch.zeilen(protokolle);
    if (g.emds_ausgabe) {
        wa2_zeile(g, batch, anfang, " +L1", ausgaben_emd);
        batch.zeilen(emd_sammeln);
    }
    batch.zeilen(aufraeumen);
    batch.zeilen(block_ende);
}

}  // namespace

Fehler basis_batch_einzeln(Global& g, const std::string& text)
{
    const Basislinie basislinie = basislinie_teilen(text);
    Batchtext batch(g);
    batch.setzen("VNR8", links(g.Verfahrensnummer, 8));
    basislinien_namen(batch, basislinie);
    batchkopf(g, batch, titel_basislinien);
    batch.zeilen(vorbereitung);
    return einzelbatch_ablegen(
        g, batch, [&] { auswertung(g, batch, basislinie); }, Aufruftext::die_Batchdatei);
}

}  // namespace jorv
