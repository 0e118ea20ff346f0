// Runs a batch file line by line. An error in a command prints a message and the next line follows.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "dos/programm.h"
#include "dos/umfeld.h"
#include "dos/zeile.h"

namespace jorv::dos {

class Stapel {
public:
    explicit Stapel(Umfeld& umfeld) : m_umfeld(umfeld) {}

    /// Runs the batch file of that full DOS path to its end, or to the limit of lines. `argumente` are %1, %2, ...
    /// False when it can't be read.
    bool ausfuehren(std::string_view pfad, const std::vector<std::string>& argumente = {});

private:
    bool laden(std::string_view pfad, const std::vector<std::string>& argumente);
    void zeile_ausfuehren(const std::string& zeile);
    void befehle_ausfuehren(std::string_view rest);
    /// One command with its redirections; returns whether it succeeded.
    bool befehl_ausfuehren(const Befehlstext& befehl, const Stroeme& stroeme);
    bool wort_ausfuehren(std::string_view text, const Stroeme& stroeme);
    bool programm_starten(std::string_view text, const Stroeme& stroeme);
    bool springen(std::string_view text, const Stroeme& stroeme);

    Umfeld& m_umfeld;
    Programmsuche m_programmsuche;
    std::vector<std::string> m_zeilen;
    std::vector<std::string> m_argumente;  // begins with the name of the batch file
    std::size_t m_naechste = 0;
    bool m_zeile_verlassen = false;  // a jump or another batch file ends the line
};

}  // namespace jorv::dos
