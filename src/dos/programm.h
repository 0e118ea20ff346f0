// Finding and starting the programs and batch files that a command word means.
#pragma once

#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dos/umfeld.h"

namespace jorv::dos {

struct Programm {
    std::filesystem::path datei;
    std::string pfad;  ///< the same as a full DOS path
    bool ist_batch = false;
};

/// Looks command words up. The program folders of a host are long and seldom change, so the names of a folder are kept
/// and read again when the folder has changed.
class Programmsuche {
public:
    /// Without regard to case: a word with a path only there, else in the current directory and then in the folders of
    /// the search path in order; in each with the extensions .COM .EXE .BAT .CMD, and then without one as programs of
    /// this host are named. A word that ends in .EXE also means the program of that stem.
    std::optional<Programm> finden(const Umfeld& umfeld, std::string_view wort);

private:
    struct Liste {
        dev_t geraet = 0;
        ino_t nummer = 0;
        timespec geaendert{};
        bool in_ruhe = false;  // the last change was so long before the reading that each later one shows
        std::string namen;     // UTF-8, each ends in NUL
    };
    std::optional<Programm> in_ordner(const Umfeld& umfeld, std::string_view ordner, std::string_view wort);
    const std::string& namen_in(const std::string& ort, const struct stat& zustand);

    std::vector<Liste> m_listen;
};

struct Startauftrag {
    std::filesystem::path programm;
    std::vector<std::string> argumente;  ///< UTF-8
    std::filesystem::path ordner;        ///< current directory of the program
    std::vector<std::string> umgebung;   ///< "NAME=value", UTF-8
    Stroeme stroeme;
    std::chrono::seconds frist{600};
};

struct Laufende {
    bool gestartet = false;
    bool frist_abgelaufen = false;  ///< the program's process group was ended
    int status = -1;                ///< exit status; 128 + signal when a signal ended it
};

/// Starts a program in a process group of its own and waits for its end.
Laufende laufen_lassen(const Startauftrag& auftrag);

/// Starts a program with the text behind its word, in the current directory and with the search path of the batch.
/// Returns its exit status; messages go to the errors.
int programm_ausfuehren(const Umfeld& umfeld, const Stroeme& stroeme, const Programm& programm, std::string_view text);

}  // namespace jorv::dos
