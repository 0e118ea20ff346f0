// What the lines of a batch work on: files, directories, variables, the three streams, and how text reaches them.
#pragma once

#include <chrono>
#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dos/verzeichnisse.h"
#include "plattform/datei.h"

namespace jorv::dos {

/// Descriptors of input, output and errors.
struct Stroeme {
    int ein = 0;
    int aus = 1;
    int fehler = 2;
};

struct Umfeld {
    Dateisystem dateien;
    Verzeichnisse verzeichnisse;
    std::string suchpfad;               ///< PATH as a list of DOS folders
    std::vector<std::string> umgebung;  ///< the host's environment, "NAME=value" in UTF-8; its PATH is not used
    Stroeme stroeme;
    std::chrono::seconds frist{600};  ///< a started program is ended after that time
    bool anzeige = true;              ///< lines are shown before they run
    int errorlevel = 0;
    /// The batch ends behind so many lines, where a jump backwards must not run for ever.
    std::size_t zeilen_hoechstens = std::numeric_limits<std::size_t>::max();

    /// The value of a variable without regard to case; empty when there is none.
    std::string variable(std::string_view name) const;

    /// Full DOS path of a name.
    std::string voll(std::string_view name) const { return verzeichnisse.voll(name); }
};

/// The surroundings of this process: its environment, streams and current directory.
/// Nothing when the current directory can't be told as a DOS path.
std::optional<Umfeld> umfeld_des_prozesses(Laufwerke laufwerke = Laufwerke::aus_umgebung());

/// A PATH of the host as a list of DOS folders, and the search path back in the host's form. Entries without a
/// counterpart are left out.
std::string suchpfad_aus_host(const Laufwerke& laufwerke, std::string_view host_liste);
std::string suchpfad_nach_host(const Umfeld& umfeld);

/// The folders of a DOS list; quotes around an entry protect ";" and are removed.
std::vector<std::string> suchpfad_ordner(std::string_view dos_liste);

/// Writes bytes as they are; false when the stream doesn't take them all.
bool ausgeben(int strom, std::string_view bytes);

/// Writes text of the interpreter: code page 850 into files and pipes, UTF-8 on a terminal.
bool text_ausgeben(int strom, std::string_view text);

/// Writes a message line to the errors; returns false, so that a command can end with it.
bool melden(const Stroeme& stroeme, std::string_view text, std::string_view name = {});

}  // namespace jorv::dos
