// The functions of prozess.h with the system calls that they shall go through.
#pragma once

#include "plattform/kind_linux.h"
#include "plattform/prozess.h"

namespace jorv {

bool prozess_warten(const Prozessaufrufe& aufrufe, const Dateisystem& dateien, std::string_view kommandozeile,
                    const std::function<void()>& atmen = {});
Prozessende programm_ausfuehren(const Prozessaufrufe& aufrufe, const std::filesystem::path& programm,
                                const std::vector<std::string>& argumente, const std::filesystem::path& ordner,
                                int sekunden);

}  // namespace jorv
