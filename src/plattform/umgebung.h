// What the running program finds around it: its own folder, the folders of the user, programs by name, process numbers.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace jorv {

/// The words behind the program's name, from what `main` got, as UTF-8. Windows: from the command line itself, since
/// what `main` gets there has gone through the code page.
std::vector<std::string> programmworte(int anzahl, const char* const* werte);

/// The folder that an environment variable names; empty when it isn't set.
std::filesystem::path umgebungsordner(const char* name);

/// The number of this process, and whether a process of that number still runs.
long prozess_kennung();
bool prozess_lebt(long kennung);

/// Host folder of the running program.
std::filesystem::path programm_ordner();

/// The user's documents folder (Linux: XDG_DOCUMENTS_DIR of the user's directories, else ~/Dokumente when it exists,
/// else
/// ~/Documents).
std::filesystem::path dokumente_ordner();

/// The system directory of older settings files (Linux: /etc/jorvplus).
std::filesystem::path system_ordner();

/// The program of that name beside the running program, else in PATH; empty when there is none.
std::filesystem::path programm_finden(const std::string& name);

/// A folder for files of about `bytes` altogether that live for one call: in memory where the system offers that and
/// has ample room (Linux, unless TMPDIR names another), else the folder for temporary files.
std::filesystem::path zwischenordner(std::uintmax_t bytes);

}  // namespace jorv
