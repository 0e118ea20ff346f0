#pragma once
// Runs the solver rnx2rtkp on two observation files: a private folder that shows them under plain names, an option
// file, no shell, a time limit. The solver's exit status says nothing; whether there is a solution shows in its files
// alone.

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "plattform/abbild.h"
#include "suite/antenne.h"
#include "suite/loeser_ausgabe.h"
#include "suite/rinex_beobachtung.h"

namespace jorv::suite {

/// The solver's ways of computing that are safe to use. (Ionosphere-free with ambiguity search is not among them: it
/// reports fixed integers of a combination that has none.)
enum class Laufart { l1, l1_l2, l0, offen, offen_l0, offen_l1, code };

/// Name of the way for the protocol.
std::string_view laufname(Laufart art);

/// What all runs of one baseline have in common.
struct Loeserauftrag {
    Abbild rover_text, basis_text;                   // the files, with line ends of either kind
    std::filesystem::path rover_datei, basis_datei;  // where they lie
    std::string navigation_text;
    RinexKopf rover, basis;  // antenna offsets, base coordinate
    std::optional<Antennenblock> rover_antenne, basis_antenne;
    GpsZeit von, bis;
    double takt = 0.0;   // seconds, 0: every epoch
    int elevation = 10;  // degrees
    std::vector<std::string> ohne_satelliten;
    double solverlaenge = 1.0;     // metres between the two header positions
    bool zenit_schaetzen = false;  // troposphere parameters in the L0 runs
    double zenit_sigma = 0.3;      // metres by which these may differ from the model
    double zenit_gang = 1e-4;      // metres that they may move in the square root of a second
};

/// The option file of a run.
std::string optionsdatei(const Loeserauftrag& auftrag, Laufart art);

/// Where the solver is and how long it may take.
struct Loeserumgebung {
    std::filesystem::path programm;             // empty: not found
    int sekunden = 540;                         // all runs of one solver together
    std::filesystem::path zwischenordner = {};  // empty: chosen by the size of the files
};

struct Loeserlauf {
    Loeserausgabe ausgabe;  // empty without a solution
    bool zeit_abgelaufen = false;
    std::string fehler;         // German reason why the run gave nothing, else empty
    std::string fehlerausgabe;  // last lines of the solver's standard error
};

/// A private folder with the input files, for all runs of one baseline; it goes away with the object.
class Loeser {
public:
    Loeser(const Loeserumgebung& umgebung, const Loeserauftrag& auftrag);
    ~Loeser();
    Loeser(const Loeser&) = delete;
    Loeser& operator=(const Loeser&) = delete;

    /// Empty, or the reason why there is no folder or no solver.
    const std::string& hindernis() const { return m_hindernis; }
    Loeserlauf rechnen(Laufart art) const;

private:
    bool ablegen(const char* name, std::string_view text) const;
    bool bereitlegen(const char* name, const Abbild& bild, const std::filesystem::path& datei) const;

    const Loeserumgebung& m_umgebung;
    const Loeserauftrag& m_auftrag;
    std::chrono::steady_clock::time_point m_schluss;  // of all runs together
    std::filesystem::path m_ordner;
    std::string m_hindernis;
};

}  // namespace jorv::suite
