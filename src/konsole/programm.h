// The console program as a function, so that tests call it with streams of their own.
#pragma once

#include <functional>
#include <ostream>
#include <span>
#include <string>

#include "plattform/systemaufrufe.h"

namespace jorv {

struct Konsole {
    std::ostream& aus;  ///< standard output and standard error, UTF-8
    std::ostream& err;
    bool terminal = false;          ///< standard error is a terminal
    std::function<bool()> abbruch;  ///< the user asked to stop
    const Systemaufrufe* aufrufe = &Systemaufrufe::echte();  ///< of the files
};

/// Carries out one command line (without the program's name, UTF-8). Exit status: 0 good, 1 a routine failed, 2 wrong
/// usage.
int programm(const Konsole& konsole, std::span<const std::string> worte);

}  // namespace jorv
