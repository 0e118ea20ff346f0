#include "plattform/fensterstart.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <memory>
#include <thread>

#include "plattform/pfad.h"
#include "plattform/text.h"
#include "plattform/umgebung.h"

extern char** environ;

namespace jorv {

namespace fs = std::filesystem;

namespace {

int abwarten(pid_t nummer)
{
    int status = 0;
    while (::waitpid(nummer, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

int starten(const Fensterstart& start, Fensterausgabe ausgabe, const fs::path& datei, pid_t& nummer)
{
    posix_spawn_file_actions_t schritte;
    posix_spawn_file_actions_init(&schritte);
    posix_spawn_file_actions_addopen(&schritte, 0, "/dev/null", O_RDONLY, 0);
    if (ausgabe == Fensterausgabe::fenster) {
        posix_spawn_file_actions_addopen(&schritte, 1, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&schritte, 2, "/dev/null", O_WRONLY, 0);
    } else if (ausgabe == Fensterausgabe::datei) {
        posix_spawn_file_actions_addopen(&schritte, 1, datei.c_str(), O_WRONLY | O_APPEND, 0);
        posix_spawn_file_actions_adddup2(&schritte, 1, 2);
    } else {
        posix_spawn_file_actions_adddup2(&schritte, 2, 1);
    }
    if (!start.ordner.empty()) posix_spawn_file_actions_addchdir_np(&schritte, start.ordner.c_str());
    posix_spawnattr_t eigenschaften;
    posix_spawnattr_init(&eigenschaften);
    // A window outlives the program that opened it; what streams into our output ends with the keys that end us.
    if (ausgabe != Fensterausgabe::fehlerausgabe) posix_spawnattr_setflags(&eigenschaften, POSIX_SPAWN_SETSID);
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

std::optional<Fensterstart> editor_start(const Dateisystem& dateien, std::string_view editor, std::string_view datei)
{
    if (gleich_ohne_gross(editor, "Notepad.exe")) return std::nullopt;
    Fensterstart start;
    start.programm = ist_dos_pfad(editor) ? dateien.host(editor) : programm_finden(utf8_aus_1252(editor));
    start.argumente = {dateien.host(datei).string()};
    start.ordner = dateien.host(pfad_ordner(datei));
    return start;
}

Gestartet fenster_starten(const Fensterstart& start, Fensterausgabe ausgabe, const fs::path& datei)
{
    if (start.programm.empty()) return {.fehler = std::make_error_code(std::errc::no_such_file_or_directory)};
    pid_t nummer = -1;
    if (const int fehler = starten(start, ausgabe, datei, nummer); fehler != 0)
        return {.fehler = std::error_code(fehler, std::generic_category())};
    if (ausgabe == Fensterausgabe::fehlerausgabe) return {.abwarten = [nummer] { abwarten(nummer); }};
    // Waited for by a thread of its own, so that it leaves nothing behind, whoever still asks how it ended.
    constexpr int laeuft = -1;
    const auto ende = std::make_shared<std::atomic<int>>(laeuft);
    std::thread([nummer, ende] { *ende = abwarten(nummer); }).detach();
    if (ausgabe == Fensterausgabe::fenster) return {};
    return {.status = [ende]() -> std::optional<int> {
                const int status = *ende;
                return status == laeuft ? std::nullopt : std::optional(status);
            },
            .beenden =
                [nummer, ende] {
                    if (*ende == laeuft) ::kill(-nummer, SIGTERM);
                }};
}

}  // namespace jorv
