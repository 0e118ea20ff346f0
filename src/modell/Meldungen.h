// Message families that many routines share: a bad word of a read line, an array that can't grow.
#pragma once

#include <string>
#include <string_view>

#include "modell/Global.h"
#include "plattform/wort.h"

namespace jorv {

/// A message with the error icon.
void stop_melden(Global& g, std::string_view text);

/// How a value is named in its three messages: "<konvertierung> in der Datei:", "<fehlt> fehlt in der Datei:",
/// "<fehlerhaft> fehlerhaft in der Datei:".
struct Wertname {
    std::string_view konvertierung;  ///< "Konvertierungsfehler beim X-Wert"
    std::string_view fehlt;          ///< "X-Wert"
    std::string_view fehlerhaft;     ///< "X-Wert"
};

enum class Wortfehler { konvertierung, fehlt, fehlerhaft };

/// The kind of a word that wasn't found.
constexpr Wortfehler wortfehler(Wortstatus status)
{
    return status == Wortstatus::fehlerhaft ? Wortfehler::fehlerhaft : Wortfehler::fehlt;
}

/// The whole text: head line, file, "in Zeile: " and the number, an empty line, the advice.
std::string wort_meldung(const Wertname& wert, Wortfehler fehler, std::string_view datei, int zeile);

/// "Dimensionierungsfehler! (", number " in " routine, ")", the failing statement, the two closing lines. `luecke` is
/// what stands behind the "!", `schluss` ends the memory line.
std::string dimensionierung_meldung(int nummer, std::string_view routine, std::string_view anweisung,
                                    std::string_view luecke = " ", std::string_view schluss = "");

/// Head line, line break, path, line break, ending.
std::string datei_meldung(std::string_view kopf, std::string_view pfad, std::string_view ende);

}  // namespace jorv
