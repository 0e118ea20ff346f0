// The lines that all generators share: the head of every batch and the blocks of its tail.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "auswertung/batchtext.h"
#include "modell/Global.h"

namespace jorv {

inline constexpr std::string_view titel_rover = "WaSoft- Auswertung von";
inline constexpr std::string_view titel_basislinien = "WaSoft-(Basislinien)-Auswertung von";
inline constexpr std::string_view titel_i95 = "WaSoft-(I95)-Auswertung von";

/// The nine lines from the first "REM" to the change into the project's folder.
void batchkopf(const Global& g, Batchtext& batch, std::string_view titel, std::string_view programm = "JORV");

inline constexpr std::array<Batchzeile, 5> block_fehlerliste = {
    {{"REM"}, {"REM ============"}, {"REM Fehlerliste:"}, {"REM ============"}, {"REM"}}};

inline constexpr std::array<Batchzeile, 5> block_kopieren = {{{"REM"},
                                                              {"REM ============================================="},
                                                              {"REM Kopieren der Dateien und Erzeugung der Listen"},
                                                              {"REM ============================================="},
                                                              {"REM"}}};

inline constexpr std::array<Batchzeile, 5> block_ende = {{{"REM"}, {"REM ===="}, {"REM Ende"}, {"REM ===="}, {"REM"}}};

/// The line that a missing virtual station leads to.
inline constexpr std::string_view echo_ohne_virtuelle_station =
    "echo Fehler: Es konnte keine virtuelle Station erzeugt werden! Abbruch der Auswertung!";

/// What the whole-project batches do then; they wait, so that the user sees it.
inline constexpr std::array<Batchzeile, 4> block_fehler_mit_pause = {
    {{":fehler1"}, {echo_ohne_virtuelle_station}, {"pause"}, {"goto :ende"}}};

/// The tail of the whole-project batches: the errors' block, then the lines that file the results, which begin with the
/// label ":kopieren".
void gesamtbatch_schluss(Batchtext& batch, std::span<const Batchzeile> kopieren);

}  // namespace jorv
