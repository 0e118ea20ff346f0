// The lines of a batch file that lead into the project's folder; every generator and the WATIME call begin with them.
#pragma once

#include <string>
#include <string_view>

namespace jorv {

/// A name as a batch line must write it outside quotes for the interpreter to take it as it is: "%" doubled, "^" in
/// front of the signs that end a command or lead its output elsewhere.
std::string batch_wort(std::string_view name);

/// The root of a work directory without its last character: "D:" of "D:\a\b", "\\server" of "\\server\a\b".
std::string batch_laufwerk(std::string_view verzeichnis);

/// "cd " and the work directory from its root's last character on, recoded for the console.
std::string batch_cd(std::string_view verzeichnis);

/// "path %path%;" and the directory of the suite, recoded for the console.
std::string batch_path(std::string_view exe_verzeichnis);

/// The call file that is started in place of a batch: a waiting text of six lines, then the batch's path in quotes,
/// recoded for the console. Lines end in CR LF.
std::string batch_aufruf(std::string_view batchdatei);

}  // namespace jorv
