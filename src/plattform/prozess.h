// Child processes: start and wait.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
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

class Kind;
struct Prozessaufrufe;

/// A batch file that runs beside the program. Linux only: elsewhere none starts.
class Batchlauf {
public:
    /// Starts it as `prozess_warten` does. `statt`, a folder of the host, stands in the place of the folder that the
    /// batch file's path names: file and outputs lie there, the batch sees them under the path. `aufrufe`: other system
    /// calls than those of the system at hand.
    Batchlauf(const Dateisystem& dateien, std::string_view pfad, const std::filesystem::path& statt = {},
              const Prozessaufrufe* aufrufe = nullptr);
    Batchlauf(Batchlauf&& anderer) noexcept;
    Batchlauf& operator=(Batchlauf&&) = delete;
    /// A batch that still runs is ended, and the program that it waits for.
    ~Batchlauf();

    bool gestartet() const { return m_gestartet; }
    /// Waits until one of the batches has ended, at most so long; nothing to wait for is an end.
    static void abwarten(std::span<Batchlauf* const> laeufe, std::chrono::milliseconds hoechstens);
    bool laeuft();

private:
    std::shared_ptr<Kind> m_kind;  // while it runs
    bool m_gestartet = false;
};

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
