#include "auswertung/rover_batch.h"

#include <array>

#include "auswertung/aufrufdatei.h"
#include "auswertung/batchkopf.h"
#include "auswertung/roverzeilen.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

using enum Zeilenart;

constexpr std::array<std::string_view, 5> veraltete = {
    "{VNR}.UTM", R"(jorv_out\dat_ext\{ROVER}.ext)", R"(jorv_out\dat_rov\{ROVER}.UTM)",
    R"(jorv_out\krz_rov\{ROVER}.KRZ)", R"(jorv_out\lis_rov\{ROVER}.LIS)"};

// "pro_vrs" beside "prot_vrs" is harmless: mkdir of an existing folder does nothing.
constexpr std::array<Batchzeile, 15> vorbereitung_vrs = {{{"if exist wav2log.txt del wav2log.txt"},
                                                          {"if exist virt*.* del virt*.*"},
                                                          {"if exist wa2log.txt del wa2log.txt"},
                                                          {"if exist wa2sol.txt del wa2sol.txt"},
                                                          {"if exist wa2ext.txt del wa2ext.txt"},
                                                          {"if not exist jorv_out mkdir jorv_out"},
                                                          {"cd jorv_out"},
                                                          {"if not exist pro_vrs mkdir prot_vrs"},
                                                          {"if not exist rin_vrs mkdir rin_vrs"},
                                                          {"if not exist dat_rov mkdir dat_rov"},
                                                          {"if not exist krz_rov mkdir krz_rov"},
                                                          {"if not exist prot_rov mkdir prot_rov"},
                                                          {"if not exist lis_rov mkdir lis_rov"},
                                                          {"if not exist dat_ext mkdir dat_ext"},
                                                          {"cd .."}}};

constexpr std::array<Batchzeile, 3> virtuelle_station = {{{"if exist wav2log.txt type wav2log.txt >> {ROV-4}.vrt"},
                                                          {R"(copy *.vrt jorv_out\prot_vrs)"},
                                                          {"if not exist virt{DDD}.??o goto :fehler1"}}};

constexpr std::array<Batchzeile, 4> umbenennen = {{{"rename virt{DDD}{EXT4} virt{ROVER}"},
                                                   {"rename virt*.??n virt{ROV-1}n"},
                                                   {"rename virt*.??g virt{ROV-1}g"},
                                                   {"goto :kopieren"}}};

constexpr std::array<Batchzeile, 3> fehler_vrs = {{{":fehler1"}, {echo_ohne_virtuelle_station}, {"goto :ende"}}};

constexpr std::array<Batchzeile, 14> kopieren_vrs = {{{":kopieren"},
                                                      {"REM wav2Log-Dateien"},
                                                      {"del wav2log.txt"},
                                                      {"del *.vrt"},
                                                      {"REM VRS-RINEX"},
                                                      {R"(copy virt*.* jorv_out\rin_vrs)"},
                                                      {"del virt*.*"},
                                                      {"REM Ergebnisse"},
                                                      {R"(copy *.ext jorv_out\dat_ext)"},
                                                      {R"(copy *.LIS jorv_out\lis_rov)"},
                                                      {"del *.LIS"},
                                                      {R"(copy *.prt jorv_out\prot_rov)"},
                                                      {"del *.prt"},
                                                      {"goto :ende"}}};

constexpr std::array<Batchzeile, 11> vorbereitung_fremd = {{{"if exist wa2log.txt del wa2log.txt"},
                                                            {"if exist wa2sol.txt del wa2sol.txt"},
                                                            {"if exist wa2ext.txt del wa2ext.txt"},
                                                            {"if not exist jorv_out mkdir jorv_out"},
                                                            {"cd jorv_out"},
                                                            {"if not exist dat_ext mkdir dat_ext"},
                                                            {"if not exist prot_rov mkdir prot_rov"},
                                                            {"if not exist dat_rov mkdir dat_rov"},
                                                            {"if not exist krz_rov mkdir krz_rov"},
                                                            {"if not exist lis_rov mkdir lis_rov"},
                                                            {"cd .."}}};

// The third line asks for the project's .log, which nobody makes: the run files the protocol of the rover itself.
constexpr std::array<Batchzeile, 4> protokoll_fremd = {
    {{"if exist {ROV8}.log type {ROV8}.log >> {VNR}.LIS"},
     {R"(if exist {VNR}.LIS type {VNR}.LIS >> jorv_out\lis_rov\{VNR}.LIS)"},
     {R"(if exist {VNR}.log copy {ROV8}.log jorv_out\lis_rov\{ROVER}.LIS)"},
     {"goto :kopieren"}}};

constexpr std::array<Batchzeile, 9> kopieren_fremd = {{{":kopieren"},
                                                       {"REM Ergebnisse"},
                                                       {R"(copy *.ext jorv_out\dat_ext)"},
                                                       {R"(copy *.LIS jorv_out\lis_rov)"},
                                                       {"del *.log"},
                                                       {"REM Rover-Protokolle"},
                                                       {R"(copy *.prt jorv_out\prot_rov)"},
                                                       {"del *.prt"},
                                                       {"goto :ende"}}};

constexpr std::string_view feldliste_kurz = "CU2,DOY,SES,TDM,BSU,STY,AMB,";
constexpr std::string_view feldliste_lang = "NS2,DOY,SES,SDV,AMB,SVA,PDM,ROB,STY,TDM,AH2,AT2,TSH";

std::string sechsstellig(const std::string& uhrzeit)
{
    return zahl_format_fuell(zahl_lesen(uhrzeit), "000000", "0");
}

std::string wav2_zeile(const Global& g, const Batchtext& batch, const ROVER_TOREL_Satz& zuordnung,
                       const ROVER_Settings_Satz& einstellung)
{
    std::string zeile = batch.einsetzen("wav2 {ROVER} {STALIST} +PRO +E +A{VNR}.{ANT}");
    if (einstellung.Elevation != 10) zeile += verkettet(" -e", einstellung.Elevation);
    if (fenster_nutzbar(g, zuordnung))
        zeile += verkettet(" +b", sechsstellig(zuordnung.Zeitfenster_Startzeit), " +e",
                           sechsstellig(zuordnung.Zeitfenster_Endzeit));
    return zeile + batch.einsetzen(" >> {VNR}.LIS");
}

// The options that every `wa2` call for a rover has, from the solution to the frequencies.
std::string wa2_einstellungen(const ROVER_Settings_Satz& einstellung)
{
    std::string optionen;
    if (einstellung.Solution != 2) optionen += verkettet(" +TL", einstellung.Solution);
    optionen +=
        verkettet(" -e", einstellung.Elevation, " -M", einstellung.DelFirstMinutes, " -N", einstellung.DelLastMinutes);
    for (const auto& satellit : satelliten_optionen(einstellung)) optionen += satellit;
    return optionen + " +L2";
}

std::string wa2_feldliste(const Global& g)
{
    return verkettet(" +E-", g.MARKER_Info == "S" ? "NS2," : "NL2,", feldliste_kurz, feldliste_lang);
}

// The pieces of the `wa2` call that the two kinds of project have each of their own.
struct Wa2_Aufruf {
    std::string_view stationen, zone, ausgaben;
};

constexpr Wa2_Aufruf wa2_vrs = {"wa2 virt{DDD}{EXT4} {ROVER}", " +U{UTMZONE} ",
                                " +FE{ROV8}.ext +FL{ROVER}.LIS +FS{ROV8}.prt"};
constexpr Wa2_Aufruf wa2_fremd = {"wa2 {VRS} {ROVER}", " +U{UTMZONE}", " +FE{ROV8}.ext +FL{ROV8}.log +FS{ROV8}.prt"};

void wa2_zeile(const Global& g, Batchtext& batch, const Wa2_Aufruf& aufruf, const ROVER_Settings_Satz& einstellung)
{
    std::string zeile = batch.einsetzen(verkettet(aufruf.stationen, " +ACF{VNR}.{ANT}"));
    zeile += wa2_einstellungen(einstellung);
    if (g.UTM_Zone != "?") zeile += batch.einsetzen(aufruf.zone);
    zeile += wa2_feldliste(g);
    zeile += batch.einsetzen(verkettet(aufruf.ausgaben, " >> {VNR}.LIS"));
    batch.fertige_zeile(dos_text(zeile));
}

void anfang(const Global& g, Batchtext& batch, std::span<const Batchzeile> vorbereitung)
{
    batchkopf(g, batch, titel_rover);
    for (const auto datei : veraltete) batch.zeile(verkettet("if exist ", datei, " del ", datei), konsole);
    batch.zeilen(vorbereitung);
}

void ende(Batchtext& batch, std::span<const Batchzeile> kopieren)
{
    batch.zeilen(block_kopieren);
    batch.zeilen(kopieren);
    batch.zeilen(block_ende);
    batch.zeile(":ende");
}

void auswertung_vrs(const Global& g, Batchtext& batch, int index)
{
    const ROVER_Settings_Satz& einstellung = g.ROVER_Settings[index];
    batch.fertige_zeile(dos_text(wav2_zeile(g, batch, g.ROVER_TOREL[index], einstellung)));
    batch.zeilen(virtuelle_station);
    wa2_zeile(g, batch, wa2_vrs, einstellung);
    batch.zeilen(umbenennen);
    batch.zeilen(block_fehlerliste);
    batch.zeilen(fehler_vrs);
    ende(batch, kopieren_vrs);
}

void auswertung_fremd(const Global& g, Batchtext& batch, int index)
{
    wa2_zeile(g, batch, wa2_fremd, g.ROVER_Settings[index]);
    batch.zeilen(protokoll_fremd);
    ende(batch, kopieren_fremd);
}

Fehler ohne_zuordnung(Global& g, std::string_view rover, std::string_view text)
{
    stop_melden(g, verkettet("Zum ROVER:", rover, "\n", text));
    return Fehler::gesetzt;
}

}  // namespace

std::vector<std::string> alte_ergebnisse(const Global& g, const std::string& rover)
{
    Batchtext batch(g);
    rover_namen(batch, rover);
    std::vector<std::string> dateien;
    for (const auto datei : veraltete) dateien.push_back(batch.dateiname(datei));
    return dateien;
}

Fehler rover_batch_vrs(Global& g, const std::string& rover)
{
    const int index = Index_Settings(g, rover);
    if (index == 0 || index > g.ROVER_TOREL.anzahl())
        return ohne_zuordnung(g, rover, "sind keine TOREL-Dateien zugeordnet!");
    Batchtext batch(g);
    rover_namen(batch, rover);
    batch.setzen("STALIST", stationsliste(g.ROVER_TOREL[index]));
    anfang(g, batch, vorbereitung_vrs);
    return einzelbatch_ablegen(g, batch, [&] { auswertung_vrs(g, batch, index); });
}

Fehler rover_batch_fremd(Global& g, const std::string& rover)
{
    const int index = Index_Settings(g, rover);
    if (index == 0 || index > g.ROVER_VIRT.anzahl() || g.ROVER_VIRT[index].VIRT_Dateiname == "?")
        return ohne_zuordnung(g, rover, "ist keine virtuelle Referenzstation zugeordnet!");
    Batchtext batch(g);
    rover_namen(batch, rover);
    batch.setzen("VRS", g.ROVER_VIRT[index].VIRT_Dateiname);
    anfang(g, batch, vorbereitung_fremd);
    return einzelbatch_ablegen(g, batch, [&] { auswertung_fremd(g, batch, index); });
}

}  // namespace jorv
