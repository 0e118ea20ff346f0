// jorv: the workbench on the command line. See `jorv hilfe`.
#include <csignal>
#include <iostream>
#include <string>
#include <vector>

#include "konsole/programm.h"

#include "plattform/umgebung.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
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

// The streams carry UTF-8 and the bytes of files; a console of Windows must be told, and it outlives this program.
#ifdef _WIN32
class Stroeme {
public:
    Stroeme()
    {
        for (const int strom : {1, 2}) _setmode(strom, _O_BINARY);
        SetConsoleOutputCP(CP_UTF8);
    }
    Stroeme(const Stroeme&) = delete;
    Stroeme& operator=(const Stroeme&) = delete;
    ~Stroeme() { SetConsoleOutputCP(m_vorher); }

private:
    UINT m_vorher = GetConsoleOutputCP();
};
#else
struct Stroeme {};
#endif

}  // namespace

int main(int anzahl, char** werte)
{
    // The first Ctrl-C asks the run to stop at the next rover, a second one ends the program.
    std::signal(SIGINT, [](int) {
        abbruch_verlangt = 1;
        std::signal(SIGINT, SIG_DFL);
    });
    [[maybe_unused]] const Stroeme stroeme;
    const std::vector<std::string> worte = jorv::programmworte(anzahl, werte);
    const int status = jorv::programm(
        {std::cout, std::cerr, fehlerausgabe_ist_terminal(), [] { return abbruch_verlangt != 0; }}, worte);
    // Output that didn't arrive, on a full disk, is a failure too.
    return std::cout.flush() || status != 0 ? status : 1;
}
