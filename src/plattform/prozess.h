// Child processes: start and wait.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "plattform/datei.h"

namespace jorv {

/// Runs a batch file (its DOS path, in double quotes or not) in the folder that it lies in, without a window, and
/// returns when it has ended. `atmen` is called about every 20 ms meanwhile. No exit code is read: success shows only
/// in the files that the child leaves; false only when it couldn't be started. Linux: by the program `jorv-dos` beside
/// the running program, else in PATH.
bool prozess_warten(const Dateisystem& dateien, std::string_view kommandozeile,
                    const std::function<void()>& atmen = {});

struct Prozessende {
    bool gestartet = false;
    bool zeit_abgelaufen = false;  ///< the time limit was reached; the child's whole process group was ended
    int status = -1;               ///< exit status; 128 + signal when a signal ended it
    std::string fehlerausgabe;     ///< standard error, at most 1 MiB
};

/// Runs a program without a shell in a folder and waits, at most `sekunden`. Standard output is dropped, standard error
/// kept. Names and arguments are UTF-8.
Prozessende programm_ausfuehren(const std::filesystem::path& programm, const std::vector<std::string>& argumente,
                                const std::filesystem::path& ordner, int sekunden);

}  // namespace jorv
