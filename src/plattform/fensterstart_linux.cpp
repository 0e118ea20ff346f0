#include "plattform/fensterstart.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

#include "plattform/pfad.h"
#include "plattform/text.h"
#include "plattform/umgebung.h"

extern char** environ;

namespace jorv {

namespace fs = std::filesystem;

namespace {

void abwarten(pid_t nummer)
{
    int status = 0;
    while (::waitpid(nummer, &status, 0) < 0 && errno == EINTR) {
    }
}

int starten(const Fensterstart& start, Fensterausgabe ausgabe, pid_t& nummer)
{
    posix_spawn_file_actions_t schritte;
    posix_spawn_file_actions_init(&schritte);
    posix_spawn_file_actions_addopen(&schritte, 0, "/dev/null", O_RDONLY, 0);
    if (ausgabe == Fensterausgabe::fenster) {
        posix_spawn_file_actions_addopen(&schritte, 1, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&schritte, 2, "/dev/null", O_WRONLY, 0);
    } else {
        posix_spawn_file_actions_adddup2(&schritte, 2, 1);
    }
    if (!start.ordner.empty()) posix_spawn_file_actions_addchdir_np(&schritte, start.ordner.c_str());
    posix_spawnattr_t eigenschaften;
    posix_spawnattr_init(&eigenschaften);
    // A window outlives the program that opened it; what streams into our output ends with the keys that end us.
    if (ausgabe == Fensterausgabe::fenster) posix_spawnattr_setflags(&eigenschaften, POSIX_SPAWN_SETSID);
    std::string name = start.programm.string();
    std::vector<std::string> kopien = start.argumente;
    std::vector<char*> worte{name.data()};
    for (auto& wort : kopien) worte.push_back(wort.data());
    worte.push_back(nullptr);
    const int fehler = ::posix_spawn(&nummer, name.c_str(), &schritte, &eigenschaften, worte.data(), environ);
    posix_spawn_file_actions_destroy(&schritte);
    posix_spawnattr_destroy(&eigenschaften);
    return fehler;
}

}  // namespace

Fensterstart batch_start(const Dateisystem& dateien, std::string_view batchdatei)
{
    Fensterstart start;
    if (dateien.ist_datei(batchdatei)) start.programm = programm_finden("jorv-dos");
    start.argumente = {utf8_aus_1252(batchdatei)};
    start.ordner = dateien.host(pfad_ordner(batchdatei));
    return start;
}

Fensterstart programm_start(const Dateisystem& dateien, std::string_view programm, std::string_view argument,
                            std::string_view ordner)
{
    Fensterstart start;
    constexpr std::string_view endung = ".exe";
    std::string pfad(programm);
    if (!dateien.ist_datei(pfad) && gleich_ohne_gross(rechts(pfad, endung.size()), endung))
        pfad = pfad_verbinden(pfad_ordner(pfad), klein(ohne_ende(pfad_name(pfad), endung.size())));
    if (dateien.ist_datei(pfad)) start.programm = dateien.host(pfad);
    start.argumente = {utf8_aus_1252(argument)};
    start.ordner = dateien.host(ordner);
    return start;
}

Gestartet fenster_starten(const Fensterstart& start, Fensterausgabe ausgabe)
{
    if (start.programm.empty()) return {std::make_error_code(std::errc::no_such_file_or_directory), {}};
    pid_t nummer = -1;
    if (const int fehler = starten(start, ausgabe, nummer); fehler != 0)
        return {std::error_code(fehler, std::generic_category()), {}};
    if (ausgabe == Fensterausgabe::fehlerausgabe) return {{}, [nummer] { abwarten(nummer); }};
    std::thread(abwarten, nummer).detach();  // nobody else asks how it ended
    return {};
}

}  // namespace jorv
