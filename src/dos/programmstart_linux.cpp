#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "dos/programm.h"

namespace jorv::dos {

namespace {

using Uhr = std::chrono::steady_clock;

// The signals that end the interpreter are held back while a program runs, so that its process group, which a key on
// the terminal doesn't reach, is ended first.
class Signalwache {
public:
    Signalwache()
    {
        ::sigemptyset(&m_gehalten);
        for (const int signal : {SIGINT, SIGTERM, SIGHUP}) ::sigaddset(&m_gehalten, signal);
        ::pthread_sigmask(SIG_BLOCK, &m_gehalten, &m_vorher);
    }
    ~Signalwache() { ::pthread_sigmask(SIG_SETMASK, &m_vorher, nullptr); }
    Signalwache(const Signalwache&) = delete;
    Signalwache& operator=(const Signalwache&) = delete;

    const sigset_t& vorher() const { return m_vorher; }
    bool eines_wartet() const
    {
        sigset_t da;
        ::sigpending(&da);
        for (const int signal : {SIGINT, SIGTERM, SIGHUP})
            if (::sigismember(&da, signal) == 1 && ::sigismember(&m_vorher, signal) == 0) return true;
        return false;
    }

private:
    sigset_t m_gehalten{}, m_vorher{};
};

// A terminal as input belongs to the program while it runs: a group in the background would be stopped at its first
// read and never end.
class Terminal {
public:
    Terminal(int nummer, pid_t gruppe) : m_nummer(nummer)
    {
        if (!::isatty(nummer) || ::tcgetpgrp(nummer) != ::getpgrp()) return;
        m_geliehen = uebergeben(gruppe);
        // It may have been stopped in between.
        ::kill(-gruppe, SIGCONT);
    }
    ~Terminal()
    {
        if (m_geliehen) uebergeben(::getpgrp());
    }
    bool geliehen() const { return m_geliehen; }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

private:
    bool uebergeben(pid_t gruppe) const
    {
        sigset_t halt, vorher;
        ::sigemptyset(&halt);
        ::sigaddset(&halt, SIGTTOU);
        ::pthread_sigmask(SIG_BLOCK, &halt, &vorher);
        const bool gut = ::tcsetpgrp(m_nummer, gruppe) == 0;
        ::pthread_sigmask(SIG_SETMASK, &vorher, nullptr);
        return gut;
    }

    int m_nummer;
    bool m_geliehen = false;
};

std::vector<char*> zeiger(std::vector<std::string>& texte)
{
    std::vector<char*> liste;
    for (auto& text : texte) liste.push_back(text.data());
    liste.push_back(nullptr);
    return liste;
}

pid_t starten(const Startauftrag& auftrag, const sigset_t& maske)
{
    posix_spawn_file_actions_t schritte;
    posix_spawn_file_actions_init(&schritte);
    // Streams may name each other (2>&1), so each is put on a high number first.
    const int quellen[3] = {auftrag.stroeme.ein, auftrag.stroeme.aus, auftrag.stroeme.fehler};
    constexpr int zwischen = 200;
    for (int i = 0; i < 3; ++i) posix_spawn_file_actions_adddup2(&schritte, quellen[i], zwischen + i);
    for (int i = 0; i < 3; ++i) posix_spawn_file_actions_adddup2(&schritte, zwischen + i, i);
    for (int i = 0; i < 3; ++i) posix_spawn_file_actions_addclose(&schritte, zwischen + i);
    posix_spawn_file_actions_addchdir_np(&schritte, auftrag.ordner.c_str());
    posix_spawnattr_t eigenschaften;
    posix_spawnattr_init(&eigenschaften);
    sigset_t uebliche;
    ::sigemptyset(&uebliche);
    ::sigaddset(&uebliche, SIGPIPE);
    posix_spawnattr_setsigdefault(&eigenschaften, &uebliche);
    posix_spawnattr_setsigmask(&eigenschaften, &maske);
    posix_spawnattr_setpgroup(&eigenschaften, 0);
    posix_spawnattr_setflags(&eigenschaften, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    std::vector<std::string> worte{auftrag.programm.string()};
    worte.insert(worte.end(), auftrag.argumente.begin(), auftrag.argumente.end());
    std::vector<std::string> umgebung = auftrag.umgebung;
    pid_t nummer = -1;
    if (posix_spawn(&nummer, auftrag.programm.c_str(), &schritte, &eigenschaften, zeiger(worte).data(),
                    zeiger(umgebung).data()) != 0)
        nummer = -1;
    posix_spawn_file_actions_destroy(&schritte);
    posix_spawnattr_destroy(&eigenschaften);
    return nummer;
}

// Waits at most 50 ms; true when the program has ended.
bool geendet(pid_t nummer, int melder)
{
    if (melder >= 0) {
        pollfd frage{melder, POLLIN, 0};
        return ::poll(&frage, 1, 50) > 0;
    }
    siginfo_t auskunft{};
    if (::waitid(P_PID, static_cast<id_t>(nummer), &auskunft, WEXITED | WNOHANG | WNOWAIT) != 0) return true;
    if (auskunft.si_pid == 0) ::poll(nullptr, 0, 10);
    return auskunft.si_pid != 0;
}

}  // namespace

Laufende laufen_lassen(const Startauftrag& auftrag)
{
    Laufende ende;
    const Signalwache wache;
    const pid_t nummer = starten(auftrag, wache.vorher());
    if (nummer < 0) return ende;
    ende.gestartet = true;
    const Terminal terminal(auftrag.stroeme.ein, nummer);
    const int melder = static_cast<int>(::syscall(SYS_pidfd_open, nummer, 0));
    const auto schluss = Uhr::now() + auftrag.frist;
    while (!geendet(nummer, melder)) {
        ende.frist_abgelaufen = Uhr::now() >= schluss;
        if (!ende.frist_abgelaufen && !wache.eines_wartet()) continue;
        ::kill(-nummer, SIGKILL);
        break;
    }
    int status = 0;
    while (::waitpid(nummer, &status, 0) < 0 && errno == EINTR) {
    }
    if (melder >= 0) ::close(melder);
    // The key that breaks a program off on the terminal is meant for the batch too.
    if (terminal.geliehen() && WIFSIGNALED(status) && WTERMSIG(status) == SIGINT) {
        ::kill(-nummer, SIGKILL);
        ::kill(::getpid(), SIGINT);
    }
    ende.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return ende;
}

}  // namespace jorv::dos
