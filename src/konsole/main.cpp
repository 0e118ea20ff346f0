// jorv: the workbench on the command line. See `jorv hilfe`.
#include <csignal>
#include <iostream>
#include <string>
#include <vector>

#include "konsole/programm.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

// The only thing that a signal handler may touch.
volatile std::sig_atomic_t abbruch_verlangt = 0;

bool fehlerausgabe_ist_terminal()
{
#ifdef _WIN32
    return _isatty(2) != 0;
#else
    return ::isatty(2) != 0;
#endif
}

}  // namespace

int main(int anzahl, char** werte)
{
    // The first Ctrl-C asks the run to stop at the next rover, a second one ends the program.
    std::signal(SIGINT, [](int) {
        abbruch_verlangt = 1;
        std::signal(SIGINT, SIG_DFL);
    });
    const std::vector<std::string> worte(werte + (anzahl > 0 ? 1 : 0), werte + anzahl);
    const int status = jorv::programm(
        {std::cout, std::cerr, fehlerausgabe_ist_terminal(), [] { return abbruch_verlangt != 0; }}, worte);
    // Output that didn't arrive, on a full disk, is a failure too.
    return std::cout.flush() || status != 0 ? status : 1;
}
