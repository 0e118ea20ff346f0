// The call file Jorv.BAT: the file that is started. It shows a waiting text and hands over to the project's batch.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "auswertung/batchtext.h"
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

/// Asks before a file is replaced, "no" being the default; true also when there is none. `kopf` names the kind of file.
bool darf_ueberschreiben(Global& g, std::string_view kopf, const std::string& datei);

/// The end of a batch for one rover or baseline: `auswertung` adds the calls of the suite, unless the antenna files are
/// of the old format, which stops the batch in front of them; files it, stamps the project, writes the call file.
/// Failure has shown its message.
Fehler einzelbatch_ablegen(Global& g, Batchtext& batch, const std::function<void()>& auswertung,
                           Aufruftext text = Aufruftext::der_Batchdatei);

/// The end of a whole-project command: files the batch, stamps the project, writes the call file. Failure has shown its
/// message.
Fehler gesamtbatch_ablegen(Global& g, std::string_view bytes);

}  // namespace jorv
