#include "plattform/kind_linux.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

extern char** environ;

namespace jorv {

namespace {

using Millisekunden = std::chrono::milliseconds;

constexpr std::array<int, 3> beendende = {SIGINT, SIGTERM, SIGHUP};

std::vector<char*> zeiger(std::vector<std::string>& texte)
{
    std::vector<char*> liste;
    for (auto& text : texte) liste.push_back(text.data());
    liste.push_back(nullptr);
    return liste;
}

// Everything that the child needs, made before it exists: behind vfork it may only call the system.
struct Vorbereitet {
    const char* programm;
    char* const* worte;
    char* const* umgebung;
    const char* ordner;  // nullptr: ours
    std::array<int, 3> stroeme;
    int nichts;  // the null device
    const sigset_t* maske;
    int elterntod;
    pid_t eltern;
};

bool stroeme_setzen(const Vorbereitet& v)
{
    // Streams may name each other, so each is put on a number of its own first.
    std::array<int, 3> eigene{};
    for (std::size_t i = 0; i < eigene.size(); ++i) {
        eigene[i] = ::fcntl(v.stroeme[i] < 0 ? v.nichts : v.stroeme[i], F_DUPFD_CLOEXEC, 3);
        if (eigene[i] < 0) return false;
    }
    for (std::size_t i = 0; i < eigene.size(); ++i)
        if (::dup2(eigene[i], static_cast<int>(i)) < 0) return false;
    return true;
}

[[noreturn]] void kind_werden(const Vorbereitet& v, volatile int& fehler)
{
    // No handler of ours may run in the memory that we share.
    struct sigaction vorgabe {};
    vorgabe.sa_handler = SIG_DFL;
    for (const int signal : beendende) {
        struct sigaction jetzt {};
        if (::sigaction(signal, nullptr, &jetzt) == 0 && jetzt.sa_handler != SIG_IGN)
            ::sigaction(signal, &vorgabe, nullptr);
    }
    ::sigaction(SIGPIPE, &vorgabe, nullptr);
    const bool gut = ::setpgid(0, 0) == 0 && ::prctl(PR_SET_PDEATHSIG, v.elterntod) == 0 && ::getppid() == v.eltern &&
                     stroeme_setzen(v) && (!v.ordner || ::chdir(v.ordner) == 0) &&
                     ::sigprocmask(SIG_SETMASK, v.maske, nullptr) == 0;
    if (gut) ::execve(v.programm, v.worte, v.umgebung);
    fehler = errno != 0 ? errno : ECHILD;
    ::_exit(127);
}

// posix_spawn can't tell a child to end with its parent.
pid_t abspalten(const Vorbereitet& v)
{
    volatile int fehler = 0;
    const pid_t nummer = ::vfork();
    if (nummer == 0) kind_werden(v, fehler);
    if (nummer > 0 && fehler != 0) {
        while (::waitpid(nummer, nullptr, 0) < 0 && errno == EINTR) {
        }
        errno = fehler;
        return -1;
    }
    return nummer;
}

pid_t starten(const Kindauftrag& auftrag)
{
    std::vector<std::string> worte{auftrag.programm.string()}, umgebung = auftrag.umgebung;
    worte.insert(worte.end(), auftrag.argumente.begin(), auftrag.argumente.end());
    const auto wortzeiger = zeiger(worte), umgebungszeiger = zeiger(umgebung);
    const int nichts = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    if (nichts < 0) return -1;
    sigset_t alle, vorher;
    ::sigfillset(&alle);
    ::pthread_sigmask(SIG_SETMASK, &alle, &vorher);
    const pid_t nummer = abspalten(
        {auftrag.programm.c_str(), wortzeiger.data(), auftrag.umgebung.empty() ? environ : umgebungszeiger.data(),
         auftrag.ordner.empty() ? nullptr : auftrag.ordner.c_str(), auftrag.stroeme, nichts,
         auftrag.zurueckgehalten ? auftrag.zurueckgehalten : &vorher, auftrag.elterntod, ::getpid()});
    const int grund = errno;
    ::pthread_sigmask(SIG_SETMASK, &vorher, nullptr);
    ::close(nichts);
    errno = grund;
    return nummer;
}

int melder_oeffnen(pid_t kind)
{
    return static_cast<int>(::syscall(SYS_pidfd_open, kind, 0));
}

constexpr Prozessaufrufe tabelle{starten, melder_oeffnen, ::waitpid, ::kill};

}  // namespace

const Prozessaufrufe& Prozessaufrufe::echte()
{
    return tabelle;
}

Signalwache::Signalwache()
{
    ::sigemptyset(&m_gehalten);
    ::pthread_sigmask(SIG_BLOCK, nullptr, &m_vorher);
    for (const int signal : beendende) {
        struct sigaction jetzt {};
        const bool wirkt = ::sigaction(signal, nullptr, &jetzt) == 0 && jetzt.sa_handler != SIG_IGN &&
                           ::sigismember(&m_vorher, signal) == 0;
        if (wirkt) ::sigaddset(&m_gehalten, signal);
    }
    ::pthread_sigmask(SIG_BLOCK, &m_gehalten, nullptr);
    m_melder = ::signalfd(-1, &m_gehalten, SFD_CLOEXEC | SFD_NONBLOCK);
}

Signalwache::~Signalwache()
{
    if (m_melder >= 0) ::close(m_melder);
    ::pthread_sigmask(SIG_SETMASK, &m_vorher, nullptr);
}

bool Signalwache::eines_wartet() const
{
    sigset_t da;
    ::sigpending(&da);
    return std::any_of(beendende.begin(), beendende.end(), [&](int signal) {
        return ::sigismember(&da, signal) == 1 && ::sigismember(&m_gehalten, signal) == 1;
    });
}

Kind::Kind(const Prozessaufrufe& aufrufe, const Kindauftrag& auftrag)
    : m_aufrufe(aufrufe), m_nummer(aufrufe.starten(auftrag))
{
    if (gestartet()) m_melder = m_aufrufe.melder(m_nummer);
}

Kind::~Kind()
{
    if (m_melder >= 0) ::close(m_melder);
}

bool Kind::warten(Millisekunden zeit, const Signalwache* wache) const
{
    const int schritt = static_cast<int>(m_melder < 0 ? std::min(zeit, Millisekunden(20)).count() : zeit.count());
    std::array<pollfd, 2> fragen = {{{m_melder, POLLIN, 0}, {wache ? wache->melder() : -1, POLLIN, 0}}};
    ::poll(fragen.data(), fragen.size(), schritt);
    if (m_melder >= 0) return fragen[0].revents != 0;
    siginfo_t auskunft{};
    return ::waitid(P_PID, static_cast<id_t>(m_nummer), &auskunft, WEXITED | WNOHANG | WNOWAIT) != 0 ||
           auskunft.si_pid != 0;
}

bool Kind::gruppe_beenden(Millisekunden gnade) const
{
    if (gnade.count() > 0) {
        m_aufrufe.beenden(-m_nummer, SIGTERM);
        const auto schluss = std::chrono::steady_clock::now() + gnade;
        while (!warten(Millisekunden(50)) && std::chrono::steady_clock::now() < schluss) {
        }
    }
    const bool gruppe = m_aufrufe.beenden(-m_nummer, SIGKILL) == 0;
    return m_aufrufe.beenden(m_nummer, SIGKILL) == 0 || gruppe;
}

int Kind::einsammeln()
{
    int status = 0;
    pid_t ergebnis;
    do ergebnis = m_aufrufe.warten(m_nummer, &status, 0);
    while (ergebnis < 0 && errno == EINTR);
    if (ergebnis < 0) return -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}  // namespace jorv
