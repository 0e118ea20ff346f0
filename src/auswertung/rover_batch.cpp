#include "auswertung/rover_batch.h"

#include <algorithm>
#include <array>

#include "auswertung/aufrufdatei.h"
#include "auswertung/batchkopf.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

using enum Zeilenart;

constexpr std::array<Batchzeile, 5> alte_ergebnisse = {
    {{"if exist {VNR}.UTM del {VNR}.UTM", konsole},
     {R"(if exist jorv_out\dat_ext\{ROVER}.ext del jorv_out\dat_ext\{ROVER}.ext)", konsole},
     {R"(if exist jorv_out\dat_rov\{ROVER}.UTM del jorv_out\dat_rov\{ROVER}.UTM)", konsole},
     {R"(if exist jorv_out\krz_rov\{ROVER}.KRZ del jorv_out\krz_rov\{ROVER}.KRZ)", konsole},
     {R"(if exist jorv_out\lis_rov\{ROVER}.LIS del jorv_out\lis_rov\{ROVER}.LIS)", konsole}}};

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

constexpr std::string_view feldliste_kurz = "CU2,DOY,SES,TDM,BSU,STY,AMB,";
constexpr std::string_view feldliste_lang = "NS2,DOY,SES,SDV,AMB,SVA,PDM,ROB,STY,TDM,AH2,AT2,TSH";

// The parts of a RINEX short name that the lines use; columns are taken literally whatever the name.
void rover_namen(Batchtext& batch, std::string_view rover)
{
    batch.setzen("ROVER", rover);
    batch.setzen("DDD", mitte(rover, 5, 3));
    batch.setzen("EXT4", mitte(rover, 9, 4));
    batch.setzen("ROV8", links(rover, 8));
    batch.setzen("ROV-4", ohne_ende(rover, 4));
    batch.setzen("ROV-1", ohne_ende(rover, 1));
}

std::string stationsliste(const ROVER_TOREL_Satz& zuordnung)
{
    std::string liste;
    for (std::size_t i = 0; i < static_cast<std::size_t>(zuordnung.Anzahl_Namen()); ++i)
        liste += verkettet(i == 0 ? "" : ",", links(zuordnung.TOREL_Dateiname[i], 4));
    return liste;
}

// True when every linked station observed through the whole window (times of day as HHMMSS).
bool fenster_abgedeckt(const Global& g, const ROVER_TOREL_Satz& zuordnung)
{
    const double beginn = zahl_lesen(zuordnung.Zeitfenster_Startzeit);
    const double ende = zahl_lesen(zuordnung.Zeitfenster_Endzeit);
    const auto namen = zuordnung.TOREL_Dateiname.begin();
    return std::all_of(namen, namen + zuordnung.Anzahl_Namen(), [&](const std::string& station) {
        const int i = Index_OBS_S(g, station);
        return i != 0 && beginn >= g.OBS_S[i].Startzeit_GPS_Sekunde && ende <= g.OBS_S[i].Endzeit_GPS_Sekunde;
    });
}

std::string sechsstellig(const std::string& uhrzeit)
{
    return zahl_format_fuell(zahl_lesen(uhrzeit), "000000", "0");
}

std::string wav2_zeile(const Global& g, const Batchtext& batch, const ROVER_TOREL_Satz& zuordnung,
                       const ROVER_Settings_Satz& einstellung)
{
    std::string zeile = batch.einsetzen("wav2 {ROVER} {STALIST} +PRO +E +A{VNR}.{ANT}");
    if (einstellung.Elevation != 10) zeile += verkettet(" -e", einstellung.Elevation);
    if (g.Zeitfenster_1h == "1" && fenster_abgedeckt(g, zuordnung))
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
    const int anzahl = std::min<int>(einstellung.AnzahlDelSatellite, ROVER_Settings_Satz::max_satelliten);
    for (std::size_t i = 1; i <= static_cast<std::size_t>(std::max(anzahl, 0)); ++i)
        if (einstellung.DelSatellite[i] == 0)
            optionen += verkettet(" -SV", trimmen(rechts(einstellung.DelSatelliteName[i], 3)));
    return optionen + " +L2";
}

std::string wa2_feldliste(const Global& g)
{
    return verkettet(" +E-", g.MARKER_Info == "S" ? "NS2," : "NL2,", feldliste_kurz, feldliste_lang);
}

std::string wa2_zeile(const Global& g, const Batchtext& batch, const ROVER_Settings_Satz& einstellung)
{
    std::string zeile = batch.einsetzen("wa2 virt{DDD}{EXT4} {ROVER} +ACF{VNR}.{ANT}");
    zeile += wa2_einstellungen(einstellung);
    if (g.UTM_Zone != "?") zeile += batch.einsetzen(" +U{UTMZONE} ");
    zeile += wa2_feldliste(g);
    return zeile + batch.einsetzen(" +FE{ROV8}.ext +FL{ROVER}.LIS +FS{ROV8}.prt >> {VNR}.LIS");
}

void bis_zur_auswertung(const Global& g, Batchtext& batch)
{
    batchkopf(g, batch, titel_rover);
    batch.zeilen(alte_ergebnisse);
    batch.zeilen(vorbereitung_vrs);
}

void auswertung(const Global& g, Batchtext& batch, const ROVER_TOREL_Satz& zuordnung,
                const ROVER_Settings_Satz& einstellung)
{
    batch.fertige_zeile(dos_text(wav2_zeile(g, batch, zuordnung, einstellung)));
    batch.zeilen(virtuelle_station);
    batch.fertige_zeile(dos_text(wa2_zeile(g, batch, einstellung)));
    batch.zeilen(umbenennen);
    batch.zeilen(block_fehlerliste);
    batch.zeilen(fehler_vrs);
    batch.zeilen(block_kopieren);
    batch.zeilen(kopieren_vrs);
    batch.zeilen(block_ende);
    batch.zeile(":ende");
}

}  // namespace

Fehler rover_batch_vrs(Global& g, const std::string& rover)
{
    const int index = Index_Settings(g, rover);
    if (index == 0 || index > g.ROVER_TOREL.anzahl()) {
        stop_melden(g, verkettet("Zum ROVER:", rover, "\nsind keine TOREL-Dateien zugeordnet!"));
        return Fehler::gesetzt;
    }
    Batchtext batch(g);
    rover_namen(batch, rover);
    batch.setzen("STALIST", stationsliste(g.ROVER_TOREL[index]));
    bis_zur_auswertung(g, batch);
    const bool alte_antennen = batch.wert("ANT") == "APC";
    if (!alte_antennen) auswertung(g, batch, g.ROVER_TOREL[index], g.ROVER_Settings[index]);
    if (const Fehler fehler = batchdatei_schreiben(g, batch.text(), "Die Batchdatei:"); ist_fehler(fehler))
        return fehler;
    Datum_setzen(g);
    if (alte_antennen) {
        apc_melden(g);
        return Fehler::gesetzt;
    }
    aufrufdatei_schreiben(g);
    return Fehler::keiner;
}

}  // namespace jorv
