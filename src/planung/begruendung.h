// The words for the verdict of the station assignment, and for why it came out so.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "modell/Begruendung.h"
#include "modell/Global.h"
#include "planung/weg.h"

namespace jorv {

/// The word of a traffic light, Windows-1252.
std::string_view ampel_text(std::uint8_t status);

/// The light of rover i (from 1) in mode F, "-" while it is switched off or has no identifier; and why it has no
/// foreign station, empty when it has one.
std::string_view ampel_text(const Global& g, int i);
std::string_view grund_fremd(const Global& g, int i);

/// The two lines that a reason has, joined by a blank; status 1 is always "Alles OK. ...". Windows-1252.
std::string grund_text(std::uint8_t status, std::uint8_t grund);

/// One check of the assignment in words. Windows-1252.
std::string_view pruefung_text(Pruefung pruefung);

/// The nearest way to green in words, as it follows "Weg zu Grün: ". Windows-1252.
std::string weg_text(const Weg& weg);

enum class Zeilenart { kopf, figur, genommen, nicht_genommen, schritt, zusatz, weg };

/// One line of the story of a decision.
struct Begruendungszeile {
    Zeilenart art;
    std::string text;  ///< Windows-1252
};

/// How the assignment judged rover i (from 1), step by step, from the reasons that it keeps: first the light, last the
/// nearest way to green where there is something to mend.
std::vector<Begruendungszeile> begruendung_zeilen(const Global& g, int i);

/// The same as a text with a line for each, and its first line alone.
std::string begruendung_text(const Global& g, int i);
std::string zuordnung_text(const Global& g, int i);

}  // namespace jorv
