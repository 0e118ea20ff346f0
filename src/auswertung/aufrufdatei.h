// The call file Jorv.BAT: the file that is started. It shows a waiting text and hands over to the project's batch.
#pragma once

#include <string>
#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Path of the project's batch and of its call file.
std::string batchdatei(const Global& g);
std::string aufrufdatei(const Global& g);

/// Ending of the message about a call file that can't be written; the baseline generators word it with "die".
enum class Aufruftext { der_Batchdatei, die_Batchdatei };

/// Writes the seven lines anew, whole. A failure is shown and nothing more: the caller goes on with what lies there.
void aufrufdatei_schreiben(Global& g, Aufruftext text = Aufruftext::der_Batchdatei);

/// Writes the project's batch whole. A failure is shown, `erste_zeile` is the first line of its message.
Fehler batchdatei_schreiben(Global& g, std::string_view bytes, std::string_view erste_zeile);

/// Asks before a file is replaced, "no" being the default; true also when there is none. `kopf` names the kind of file.
bool darf_ueberschreiben(Global& g, std::string_view kopf, const std::string& datei);

/// The stop for antenna files of the old format.
void apc_melden(Global& g);

/// The end of a whole-project command: files the batch, stamps the project, writes the call file. Failure has shown its
/// message.
Fehler gesamtbatch_ablegen(Global& g, std::string_view bytes);

}  // namespace jorv
