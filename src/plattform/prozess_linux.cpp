#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <thread>

#include "plattform/pfad.h"
#include "plattform/prozess.h"
#include "plattform/text.h"
#include "plattform/umgebung.h"

extern char** environ;

namespace jorv {

namespace fs = std::filesystem;

namespace {

using Millisekunden = std::chrono::milliseconds;

// One started child; standard input and output are the null device.
struct Kind {
    pid_t nummer = -1;
    int ende = -1;  // becomes readable when the child has ended
};

Kind starten(const fs::path& programm, const std::vector<std::string>& argumente, const fs::path& ordner,
             int fehlerausgabe)
{
    posix_spawn_file_actions_t schritte;
    posix_spawn_file_actions_init(&schritte);
    posix_spawn_file_actions_addopen(&schritte, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&schritte, 1, "/dev/null", O_WRONLY, 0);
    if (fehlerausgabe >= 0)
        posix_spawn_file_actions_adddup2(&schritte, fehlerausgabe, 2);
    else
        posix_spawn_file_actions_addopen(&schritte, 2, "/dev/null", O_WRONLY, 0);
    if (!ordner.empty()) posix_spawn_file_actions_addchdir_np(&schritte, ordner.c_str());
    posix_spawnattr_t eigenschaften;
    posix_spawnattr_init(&eigenschaften);
    posix_spawnattr_setflags(&eigenschaften, POSIX_SPAWN_SETPGROUP);
    posix_spawnattr_setpgroup(&eigenschaften, 0);
    std::string name = programm.string();
    std::vector<std::string> kopien = argumente;
    std::vector<char*> worte{name.data()};
    for (auto& wort : kopien) worte.push_back(wort.data());
    worte.push_back(nullptr);
    Kind kind;
    if (posix_spawn(&kind.nummer, name.c_str(), &schritte, &eigenschaften, worte.data(), environ) != 0)
        kind.nummer = -1;
    posix_spawn_file_actions_destroy(&schritte);
    posix_spawnattr_destroy(&eigenschaften);
    if (kind.nummer > 0) kind.ende = static_cast<int>(::syscall(SYS_pidfd_open, kind.nummer, 0));
    return kind;
}

int einsammeln(const Kind& kind)
{
    int status = 0;
    while (::waitpid(kind.nummer, &status, 0) < 0 && errno == EINTR) {
    }
    if (kind.ende >= 0) ::close(kind.ende);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

// True when the child has ended within the time.
bool warten(const Kind& kind, Millisekunden zeit)
{
    if (kind.ende < 0) {
        std::this_thread::sleep_for(zeit);
        siginfo_t auskunft{};
        return ::waitid(P_PID, static_cast<id_t>(kind.nummer), &auskunft, WEXITED | WNOHANG | WNOWAIT) != 0 ||
               auskunft.si_pid != 0;
    }
    pollfd frage{kind.ende, POLLIN, 0};
    return ::poll(&frage, 1, static_cast<int>(zeit.count())) > 0;
}

}  // namespace

bool prozess_warten(const Dateisystem& dateien, std::string_view kommandozeile, const std::function<void()>& atmen)
{
    std::string_view pfad = trimmen(kommandozeile);
    if (pfad.starts_with('"')) pfad = pfad.substr(1, pfad.find('"', 1) - 1);
    const fs::path interpreter = programm_finden("jorv-dos");
    if (interpreter.empty()) return false;
    const fs::path ordner = dateien.host(pfad_ordner(pfad));
    const Kind kind = starten(interpreter, {utf8_aus_1252(pfad)}, ordner, -1);
    if (kind.nummer < 0) return false;
    while (!warten(kind, Millisekunden(20)))
        if (atmen) atmen();
    einsammeln(kind);
    return true;
}

Prozessende programm_ausfuehren(const fs::path& programm, const std::vector<std::string>& argumente,
                                const fs::path& ordner, int sekunden)
{
    Prozessende ende;
    int rohr[2] = {-1, -1};
    if (::pipe2(rohr, O_CLOEXEC) != 0) return ende;
    const Kind kind = starten(programm, argumente, ordner, rohr[1]);
    ::close(rohr[1]);
    if (kind.nummer < 0) {
        ::close(rohr[0]);
        return ende;
    }
    ende.gestartet = true;
    const auto schluss = std::chrono::steady_clock::now() + std::chrono::seconds(sekunden);
    bool offen = true, lebt = true;
    while (offen || lebt) {
        const auto rest = std::chrono::duration_cast<Millisekunden>(schluss - std::chrono::steady_clock::now());
        if (rest.count() <= 0) {
            ende.zeit_abgelaufen = lebt;
            break;
        }
        pollfd fragen[2] = {{offen ? rohr[0] : -1, POLLIN, 0}, {lebt ? kind.ende : -1, POLLIN, 0}};
        ::poll(fragen, 2, static_cast<int>(std::min<std::int64_t>(rest.count(), kind.ende < 0 ? 20 : 1000)));
        if (fragen[0].revents != 0) {
            char puffer[4096];
            const ssize_t n = ::read(rohr[0], puffer, sizeof puffer);
            if (n == 0 || (n < 0 && errno != EINTR)) offen = false;
            if (n > 0 && ende.fehlerausgabe.size() < (1u << 20))
                ende.fehlerausgabe.append(puffer, static_cast<std::size_t>(n));
        }
        if (lebt && warten(kind, Millisekunden(0))) lebt = false;
        // A grandchild may keep the pipe open: what is there is read, then the wait ends.
        if (!lebt && offen && fragen[0].revents == 0) offen = false;
    }
    ::kill(-kind.nummer, SIGKILL);
    ::close(rohr[0]);
    ende.status = einsammeln(kind);
    return ende;
}

}  // namespace jorv
