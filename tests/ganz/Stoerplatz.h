// A small project that every command can be tried on, put back as it was before each try, and a child process in which
// the command meets failing system calls or its death.
#pragma once

#include <csignal>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "ganz/Beispielplatz.h"
#include "plattform/systemaufrufe.h"

namespace jorv::hilfen {

/// What befalls the n-th system call of the files.
struct Stoerung {
    int bei = 0;                         ///< 0: never
    int grund = 0;                       ///< errno; 0: the process dies there
    bool von_da_an = false;              ///< each later call fails too
    std::function<void()> vorher = {};   ///< runs in the child before the command
    std::function<void()> nachher = {};  ///< runs in the parent when the child has ended
};

struct Gestoert {
    int status = -1;  ///< exit status, -1 when a signal ended it
    int aufrufe = 0;  ///< system calls that were counted
    std::string err;
};

/// The files that must be old or new: path below the place (catalogue and borders by name alone: who may not write
/// beside the programs gets them beside the settings) to text.
using Stand = std::map<std::string, std::string>;

class Stoerplatz {
public:
    Stoerplatz();
    fs::path host(std::string_view name) const { return m_platz.host(name); }
    const Beispielplatz& platz() const { return m_platz; }

    /// Everything as it was when the place was made.
    void zuruecksetzen() const;
    /// Runs the command in a child.
    Gestoert ausfuehren(const std::vector<std::string>& worte, const Stoerung& stoerung = {}) const;
    /// Runs the command by the program `jorv` and kills it after so many microseconds; false when it had ended before.
    bool toeten(const std::vector<std::string>& worte, unsigned mikrosekunden) const;
    Stand stand() const;
    /// Each text that a file has had during an undisturbed run; "" where it wasn't there.
    std::map<std::string, std::set<std::string>> moegliche(const std::vector<std::string>& worte) const;
    /// Temporary and lock files below the place; those of `ausser` are left out.
    std::vector<std::string> reste(std::string_view ausser = "") const;

private:
    Beispielplatz m_platz;
    fs::path m_vorlage, m_staende;
};

/// A command that saves, in the state of the place.
struct Befehlsfall {
    std::vector<std::string> worte;
    bool rechnet = false;          ///< starts programs, so that a try takes its time
    std::string_view ordner = {};  ///< becomes a project's folder by this command only
};
const std::vector<Befehlsfall>& sichernde_befehle();
const std::vector<Befehlsfall>& lesende_befehle();

}  // namespace jorv::hilfen
