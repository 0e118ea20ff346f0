// The open project on standard output: as text for people, as JSON with every record under its name.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "modell/Global.h"

namespace jorv {

/// The parts that `zeigen` can be asked for.
enum class Teil { kopf, rover, stationen, antennen, figuren, basislinien, baum, menue, katalog };

/// Nothing for an unknown word.
std::optional<Teil> teil_aus_wort(std::string_view wort);

/// Text of one part, or of the parts that `zeigen` shows without being asked for one. Windows-1252.
std::string teil_text(const Global& g, Teil teil);
std::string verfahren_text(const Global& g);

/// One JSON object, UTF-8: the arrays, singletons, tree (`Baum`) and menu states (`Menue`) of one part, or all. Arrays
/// begin with their element 1.
std::string verfahren_json(const Global& g, std::optional<Teil> teil);

/// The project list as JSON array and as text.
std::string verfahrensliste_json(const Global& g);
std::string verfahrensliste_text(const Global& g);

/// The verdict on rover i (from 1): the whole record as JSON.
std::string zuordnung_json(const Global& g, int i);

/// The settings of rover i, of all with 0: a table in Windows-1252, and JSON.
std::string einstellungen_text(const Global& g, int i);
std::string einstellungen_json(const Global& g, int i);

/// Why the assignment judged rover i (from 1) as it did, as a JSON object.
std::string begruendung_json(const Global& g, int i);

}  // namespace jorv
