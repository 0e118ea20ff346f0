#include "auswertung/batchkopf.h"

#include "modell/Batchzeilen.h"
#include "modell/Version.h"

namespace jorv {

namespace {

constexpr std::array<Batchzeile, 6> kopf = {{{"REM"},
                                             {"REM {PROGRAMM} {VERSION} vom {VERSIONSDATUM}", Zeilenart::konsole},
                                             {"REM {TITEL}: {VNAME} ({VNR})", Zeilenart::konsole},
                                             {"REM am: {DATUM} um: {ZEIT}", Zeilenart::konsole},
                                             {"REM"},
                                             {"@echo off"}}};

}  // namespace

void batchkopf(const Global& g, Batchtext& batch, std::string_view titel, std::string_view programm)
{
    batch.setzen("PROGRAMM", programm);
    batch.setzen("TITEL", titel);
    batch.setzen("VERSION", programm_version);
    batch.setzen("VERSIONSDATUM", programm_datum);
    batch.zeilen(kopf);
    batch.fertige_zeile(batch_path(g.EXE_Verzeichnis));
    batch.fertige_zeile(batch_laufwerk(g.Arbeitsverzeichnis));
    batch.fertige_zeile(batch_cd(g.Arbeitsverzeichnis));
}

void gesamtbatch_schluss(Batchtext& batch, std::span<const Batchzeile> kopieren)
{
    batch.zeile("goto :kopieren");
    batch.zeilen(block_fehlerliste);
    batch.zeilen(block_fehler_mit_pause);
    batch.zeilen(block_kopieren);
    batch.zeilen(kopieren);
    batch.zeilen(block_ende);
    batch.zeile(":ende");
}

}  // namespace jorv
