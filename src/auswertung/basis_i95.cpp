#include "auswertung/basis_i95.h"

#include <array>
#include <optional>

#include "auswertung/aufrufdatei.h"
#include "auswertung/basis_ausfuehren.h"
#include "auswertung/batchkopf.h"
#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

namespace {

using enum Zeilenart;

constexpr std::string_view punkt = "0583", punkt_kopie = "5830";
constexpr std::string_view erste_zeile = u8"Die RINEX-Datei für Larsund (0583):"_w;

constexpr std::array<Batchzeile, 2> vorbereitung = {
    {{"if exist {VNR}.LIS del {VNR}.LIS", konsole}, {"echo -- I95-Auswertung..."}}};

// The fifth line ends in a blank.
constexpr std::array<Batchzeile, 7> auswertung = {
    {{"wasoft {X} {STALIST} +k +Vvirt,{KOPIE} +A{VNR8}.{ANT} +C{VNR8}.COO >> {VNR}.LIS", konsole},
     {"if exist wav2.err type wav2.err >> {VNR}.ERR"},
     {"if exist wav2.err del wav2.err"},
     {"if not exist virt{X}.??o goto :fehler1"},
     {"if not exist virt{X}.rxo rename virt{X}.??o virt{X}.rxo "},
     {"washmod model.wam +Si"},
     {"goto :ende"}}};

std::optional<std::string> beobachtungsdatei(const Global& g)
{
    for (const auto& name : g.RINEX_Dateien)
        if (name.starts_with(punkt) && name.ends_with('o')) return name;
    return std::nullopt;
}

std::string i95_batch(const Global& g, std::string_view datei, std::string_view kopie)
{
    Batchtext batch(g);
    batch.setzen("VNR8", links(g.Verfahrensnummer, 8));
    const std::string_view sitzung = mitte(datei, 8, 1);
    batch.setzen("X", verkettet(mitte(datei, 5, 3), sitzung == "." ? "" : sitzung));
    batch.setzen("KOPIE", kopie);
    std::string stationen;
    for (const auto& station : g.Tem_Stationen) stationen += verkettet(stationen.empty() ? "" : ",", station);
    batch.setzen("STALIST", stationen);
    batchkopf(g, batch, titel_i95, "JORV+");
    batch.zeilen(vorbereitung);
    batch.zeilen(auswertung);
    batch.zeilen(block_fehlerliste);
    batch.zeilen(block_fehler_mit_pause);
    batch.zeilen(block_ende);
    batch.zeile(":ende");
    return batch.text();
}

}  // namespace

Fehler m_basis_i95(Global& g)
{
    const auto datei = beobachtungsdatei(g);
    if (!datei) {
        stop_melden(g, verkettet(erste_zeile, "\nexistiert nicht!"));
        return Fehler::gesetzt;
    }
    const std::string kopie = verkettet(punkt_kopie, rechts(*datei, 8));
    if (g.dateien.kopieren(im_Verfahren(g, *datei), im_Verfahren(g, kopie), Dauer::fluechtig)) {
        stop_melden(g, verkettet(erste_zeile, "\nkonnte nicht in (5830) umkopiert werden!"));
        return Fehler::gesetzt;
    }
    if (const Fehler fehler = gesamtbatch_ablegen(g, i95_batch(g, *datei, kopie)); ist_fehler(fehler)) return fehler;
    return aufrufdatei_starten(g);
}

}  // namespace jorv
