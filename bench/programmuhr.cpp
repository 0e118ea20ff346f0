// Stands in the place of a program on the search path, runs the real one (the same name in the folder JORV_UHR_ORDNER)
// and appends a line to the file JORV_UHR_ZEITEN: the name, the microseconds that the program took, and those of the
// processor that this clock itself took. So a run can be split into the solver's time, the suite's, ours, and what only
// the measuring costs.
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <string>

extern char** environ;

namespace {

long long eigene_mikrosekunden()
{
    timespec zeit{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &zeit);
    return zeit.tv_sec * 1000000LL + zeit.tv_nsec / 1000;
}

}  // namespace

int main(int, char** worte)
{
    const char* ordner = std::getenv("JORV_UHR_ORDNER");
    const char* datei = std::getenv("JORV_UHR_ZEITEN");
    if (!ordner || !datei) return 127;
    const std::string aufruf = worte[0], name = aufruf.substr(aufruf.rfind('/') + 1);
    const std::string programm = std::string(ordner) + "/" + name;
    // The start of this program, its loader included, is time that a run without a clock doesn't have.
    const auto davor = eigene_mikrosekunden();
    const auto beginn = std::chrono::steady_clock::now();
    pid_t kind = -1;
    if (::posix_spawn(&kind, programm.c_str(), nullptr, nullptr, worte, environ) != 0) return 127;
    int status = 0;
    ::waitpid(kind, &status, 0);
    const auto dauer = std::chrono::steady_clock::now() - beginn;
    const std::string zeile = name + " " +
                              std::to_string(std::chrono::duration_cast<std::chrono::microseconds>(dauer).count()) +
                              " " + std::to_string(davor) + "\n";
    const int nummer = ::open(datei, O_WRONLY | O_CREAT | O_APPEND, 0644);
    const bool geschrieben =
        nummer >= 0 && ::write(nummer, zeile.data(), zeile.size()) == static_cast<long>(zeile.size());
    if (nummer >= 0) ::close(nummer);
    return !geschrieben ? 126 : WIFEXITED(status) ? WEXITSTATUS(status) : 128;
}
