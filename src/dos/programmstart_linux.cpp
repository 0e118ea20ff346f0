#include <signal.h>
#include <unistd.h>

#include "dos/programm.h"
#include "plattform/kind_linux.h"

namespace jorv::dos {

namespace {

using Uhr = std::chrono::steady_clock;

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

}  // namespace

Laufende laufen_lassen(const Startauftrag& auftrag)
{
    Laufende ende;
    const Signalwache wache;
    const sigset_t vorher = wache.vorher();
    Kind kind(Prozessaufrufe::echte(), {auftrag.programm,
                                        auftrag.argumente,
                                        auftrag.ordner,
                                        auftrag.umgebung,
                                        {auftrag.stroeme.ein, auftrag.stroeme.aus, auftrag.stroeme.fehler},
                                        &vorher});
    if (!kind.gestartet()) return ende;
    ende.gestartet = true;
    const Terminal terminal(auftrag.stroeme.ein, kind.nummer());
    const auto schluss = Uhr::now() + auftrag.frist;
    while (!kind.warten(std::chrono::milliseconds(50), &wache)) {
        ende.frist_abgelaufen = Uhr::now() >= schluss;
        if (!ende.frist_abgelaufen && !wache.eines_wartet()) continue;
        // The program may have one of its own in hand.
        if (!kind.gruppe_beenden(std::chrono::milliseconds(500))) return ende;
        break;
    }
    ende.status = kind.einsammeln();
    // The key that breaks a program off on the terminal is meant for the batch too.
    if (terminal.geliehen() && ende.status == 128 + SIGINT) {
        ::kill(-kind.nummer(), SIGKILL);
        ::kill(::getpid(), SIGINT);
    }
    return ende;
}

}  // namespace jorv::dos
