// A child process on Linux: started in a process group of its own, ended with that group, and told to end when this
// program dies, however it dies. The system calls stand in a table that a test can replace call by call.
#pragma once

#include <signal.h>
#include <sys/types.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace jorv {

/// What is started. Names, arguments and environment are UTF-8.
struct Kindauftrag {
    std::filesystem::path programm;
    std::vector<std::string> argumente = {};
    std::filesystem::path ordner = {};          ///< current directory of the child; empty: ours
    std::vector<std::string> umgebung = {};     ///< "NAME=value"; empty: ours
    std::array<int, 3> stroeme = {-1, -1, -1};  ///< input, output, errors; -1: the null device
    const sigset_t* zurueckgehalten = nullptr;  ///< signals that the child holds back; nothing: as we do
    int elterntod = SIGTERM;                    ///< the signal that the child gets when this program dies
};

/// Same results and errno as the calls of those meanings.
struct Prozessaufrufe {
    pid_t (*starten)(const Kindauftrag& auftrag);         ///< fork and exec in one; the child leads a group of its own
    int (*melder)(pid_t kind);                            ///< pidfd_open
    pid_t (*warten)(pid_t kind, int* status, int arten);  ///< waitpid
    int (*beenden)(pid_t kind, int signal);               ///< kill

    /// The calls of the system at hand.
    static const Prozessaufrufe& echte();
};

/// Holds back the signals that would end this program, so that the child's group, which a key on the terminal doesn't
/// reach, can be ended first; they take effect when the object goes. A signal that is ignored stays ignored.
class Signalwache {
public:
    Signalwache();
    ~Signalwache();
    Signalwache(const Signalwache&) = delete;
    Signalwache& operator=(const Signalwache&) = delete;

    const sigset_t& vorher() const { return m_vorher; }
    /// Becomes readable with the first signal that came; -1 when there is no such descriptor.
    int melder() const { return m_melder; }
    bool eines_wartet() const;

private:
    sigset_t m_gehalten{}, m_vorher{};
    int m_melder = -1;
};

/// One started child. Whoever starts it ends or awaits it, and collects it last.
class Kind {
public:
    Kind(const Prozessaufrufe& aufrufe, const Kindauftrag& auftrag);
    Kind(const Kind&) = delete;
    Kind& operator=(const Kind&) = delete;
    ~Kind();

    bool gestartet() const { return m_nummer > 0; }
    pid_t nummer() const { return m_nummer; }
    int melder() const { return m_melder; }  ///< becomes readable when the child has ended; -1: ask by `warten`
    /// Waits at most that long; true when the child has ended. A signal that the watch got ends the wait too.
    bool warten(std::chrono::milliseconds zeit, const Signalwache* wache = nullptr) const;
    /// Ends the whole group, and the child where it has left the group. A child that has programs of its own in hand
    /// may end them first, for at most `gnade`. False when there is no reaching it: then nobody may wait for its end.
    bool gruppe_beenden(std::chrono::milliseconds gnade = std::chrono::milliseconds(0)) const;
    /// Exit status, 128 + signal when a signal ended it; -1 when it can't be had.
    int einsammeln();

private:
    const Prozessaufrufe& m_aufrufe;
    pid_t m_nummer = -1;
    int m_melder = -1;
};

}  // namespace jorv
