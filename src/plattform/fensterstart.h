// Programs in a window of their own: started, and nobody waits for them. On Linux the front end is the window, so what
// is to be started is told apart from its start.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "plattform/datei.h"

namespace jorv {

/// What to start, in the host's terms.
struct Fensterstart {
    std::filesystem::path programm;      ///< empty: there is no such program
    std::vector<std::string> argumente;  ///< UTF-8
    std::filesystem::path ordner;        ///< its working directory
};

/// A batch file (DOS path) in its own folder. Linux: by the program `jorv-dos` beside the running program, else in
/// PATH.
Fensterstart batch_start(const Dateisystem& dateien, std::string_view batchdatei);

/// A program (DOS path) with one argument, in that folder (DOS path). Linux: where "X.EXE" is missing, the program "x"
/// beside its place.
Fensterstart programm_start(const Dateisystem& dateien, std::string_view programm, std::string_view argument,
                            std::string_view ordner);

/// The setting `Editor` with a text file (DOS path). The editor is a DOS path, a host path or a name in PATH. Linux:
/// nothing for "Notepad.exe", which is there the program's own viewer.
std::optional<Fensterstart> editor_start(const Dateisystem& dateien, std::string_view editor, std::string_view datei);

/// Where the output of the program goes. A window: Windows opens one, on Linux the output is dropped. The standard
/// error of the running program takes both of its streams, or a file does, to whose end they are written.
enum class Fensterausgabe { fenster, fehlerausgabe, datei };

struct Gestartet {
    std::error_code fehler{};          ///< why it couldn't be started
    std::function<void()> abwarten{};  ///< returns when it has ended; only for the standard error
    std::function<std::optional<int>()>
        status{};                     ///< its exit status (128 + signal) once it has ended; only for a file
    std::function<void()> beenden{};  ///< ends it and what it has started; only for a file
};

/// Starts it and returns at once. Its standard input is at its end. `datei` must exist. Windows opens a window in place
/// of the file, and neither status nor end can be had.
Gestartet fenster_starten(const Fensterstart& start, Fensterausgabe ausgabe, const std::filesystem::path& datei = {});

/// Number and text of a start that failed: "2 Datei nicht gefunden".
std::string startfehler_text(std::error_code fehler);

}  // namespace jorv
