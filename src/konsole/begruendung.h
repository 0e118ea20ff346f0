// The words for the verdict of the station assignment.
#pragma once

#include <string>
#include <string_view>

#include "modell/Begruendung.h"
#include "modell/Global.h"

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

}  // namespace jorv
