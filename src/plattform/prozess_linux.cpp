#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <thread>
#include <utility>

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

constexpr off_t groesste_ausgabe = 64 << 20;  // a child that writes without end must not fill the memory

off_t ausgabe_laenge(int ausgabe)
{
    struct stat zustand {};
    return ::fstat(ausgabe, &zustand) == 0 ? zustand.st_size : 0;
}

std::string ausgabe_anfang(int ausgabe)
{
    constexpr off_t hoechstens = 1 << 20;
    std::string text(static_cast<std::size_t>(std::min(ausgabe_laenge(ausgabe), hoechstens)), '\0');
    const ssize_t n = ::pread(ausgabe, text.data(), text.size(), 0);
    text.resize(static_cast<std::size_t>(std::max<ssize_t>(n, 0)));
    return text;
}

}  // namespace

bool prozess_warten(const Dateisystem& dateien, std::string_view kommandozeile, const std::function<void()>& atmen)
{
    std::string_view pfad = trimmen(kommandozeile);
    if (pfad.starts_with('"')) pfad = pfad.substr(1, pfad.find('"', 1) - 1);
    Batchlauf lauf(dateien, pfad);
    Batchlauf* const einer = &lauf;
    while (lauf.laeuft()) {
        Batchlauf::abwarten({&einer, 1}, Millisekunden(20));
        if (atmen) atmen();
    }
    return lauf.gestartet();
}

Batchlauf::Batchlauf(const Dateisystem& dateien, std::string_view pfad, const fs::path& statt)
{
    const fs::path interpreter = programm_finden("jorv-dos");
    if (interpreter.empty()) return;
    std::vector<std::string> argumente = {utf8_aus_1252(pfad)};
    if (!statt.empty()) argumente.insert(argumente.begin(), {"--statt", statt.string()});
    const Kind kind = starten(interpreter, argumente, statt.empty() ? dateien.host(pfad_ordner(pfad)) : statt, -1);
    m_nummer = kind.nummer;
    m_ende = kind.ende;
    m_gestartet = kind.nummer > 0;
}

Batchlauf::Batchlauf(Batchlauf&& anderer) noexcept
    : m_nummer(std::exchange(anderer.m_nummer, -1)),
      m_ende(std::exchange(anderer.m_ende, -1)),
      m_gestartet(anderer.m_gestartet)
{
}

Batchlauf::~Batchlauf()
{
    if (!laeuft()) return;
    ::kill(static_cast<pid_t>(m_nummer), SIGTERM);  // the interpreter ends its program first
    einsammeln({static_cast<pid_t>(m_nummer), m_ende});
}

void Batchlauf::abwarten(std::span<Batchlauf* const> laeufe, Millisekunden hoechstens)
{
    std::vector<pollfd> fragen;
    for (const Batchlauf* lauf : laeufe) {
        if (lauf->m_nummer <= 0) return;
        if (lauf->m_ende >= 0) fragen.push_back({lauf->m_ende, POLLIN, 0});
    }
    // Without a descriptor for each the end shows only by asking again and again.
    if (fragen.size() < laeufe.size()) hoechstens = std::min(hoechstens, Millisekunden(2));
    ::poll(fragen.data(), fragen.size(), static_cast<int>(hoechstens.count()));
}

bool Batchlauf::laeuft()
{
    if (m_nummer <= 0) return false;
    if (!warten({static_cast<pid_t>(m_nummer), m_ende}, Millisekunden(0))) return true;
    einsammeln({static_cast<pid_t>(m_nummer), m_ende});
    m_nummer = m_ende = -1;
    return false;
}

Prozessende programm_ausfuehren(const fs::path& programm, const std::vector<std::string>& argumente,
                                const fs::path& ordner, int sekunden)
{
    Prozessende ende;
    // Memory in place of a pipe: a child that writes hundreds of progress lines wakes nobody, one that leaves it open
    // holds nobody up.
    const int ausgabe = ::memfd_create("fehlerausgabe", MFD_CLOEXEC);
    if (ausgabe < 0) return ende;
    const Kind kind = starten(programm, argumente, ordner, ausgabe);
    if (kind.nummer >= 0) {
        ende.gestartet = true;
        const auto schluss = std::chrono::steady_clock::now() + std::chrono::seconds(sekunden);
        const Millisekunden schritt(kind.ende < 0 ? 20 : 1000);
        for (bool lebt = true; lebt;) {
            const auto rest = std::chrono::duration_cast<Millisekunden>(schluss - std::chrono::steady_clock::now());
            ende.zeit_abgelaufen = rest.count() <= 0;
            if (ende.zeit_abgelaufen) break;
            lebt = !warten(kind, std::min(rest, schritt));
            if (ausgabe_laenge(ausgabe) > groesste_ausgabe) (void)!::ftruncate(ausgabe, 0);
        }
        ::kill(-kind.nummer, SIGKILL);
        ende.status = einsammeln(kind);
        ende.fehlerausgabe = ausgabe_anfang(ausgabe);
    }
    ::close(ausgabe);
    return ende;
}

}  // namespace jorv
