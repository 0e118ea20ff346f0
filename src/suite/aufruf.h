#pragma once
// The command lines of the suite's programs as data. Words are Windows-1252; options keep the spelling that the batches
// use.

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "suite/troposphaere.h"

namespace jorv::suite {

using Worte = std::vector<std::string>;

/// wav2 ROVER STA1,STA2,... [+PRO] [+E] [+A<file>] [-e<degrees>] [+b<HHMMSS>] [+e<HHMMSS>]
struct Wav2Aufruf {
    std::string rover;
    Worte stationen;  // file name's first four characters
    std::string antennendatei;
    std::string koordinatendatei;  // empty: the places of the headers
    std::string virt;              // name of the files to make, without their type
    std::string protokoll_datei = "wav2log.txt";
    std::string modelldatei;                                 // of the network, empty: none
    int elevation = 10;                                      // degrees
    std::optional<int> beginn, ende;                         // time of day as HHMMSS
    Troposphaerenmodell modell = Troposphaerenmodell::voll;  // no option of the command line
    bool ionosphaere = true;                                 // likewise
};

/// What +TL asks for.
enum class Loesungsart { automatisch, l1, l0 };

/// wa2 BASE ROVER [+ACF<file>] [+TL<n>] [+R<s>] [-e<degrees>] [-M<min>] [-N<min>] [-SV<satellite>]... [+L1|+L2]
/// [+U<zone>]
/// [+E-<field>,...] [+FE<file>] [+FL<file>] [+FS<file>] [+SE]
struct Wa2Aufruf {
    std::string basis, rover;
    std::string antennendatei;
    std::string koordinatendatei;  // of the base; empty: the place of its header
    Loesungsart art = Loesungsart::automatisch;
    int takt = 0;  // seconds, 0: as the data
    int elevation = 10;
    int ohne_anfang = 0, ohne_ende = 0;  // minutes
    Worte ohne_satelliten;               // G05
    int zone = 32;
    Worte felder;                 // empty: no row is wanted
    bool nur_basislinie = false;  // +SE: the plain baseline goes to the +FS file
    // Empty: no such file.
    std::string ext_datei = "wa2ext.txt", protokoll_datei = "wa2log.txt", loesung_datei = "wa2sol.txt";
};

/// The older program wasoft has two kinds of call: the virtual station for a rover, and a baseline.
///   wasoft <DDDS> STA1,STA2,... +V<name>,<rover> [+A<file>] [+C<file>] [-e<degrees>] [+b<HHMMSS>] [+e<HHMMSS>] [+k]
///   wasoft BASE ROVER [+A<file>] [+C<file>] [-0] [+R<s>] [-e<degrees>]
using WasoftAufruf = std::variant<Wav2Aufruf, Wa2Aufruf>;

/// Reads the words behind the program's name. Nothing with a German reason in `grund` for a command line that isn't
/// one.
std::optional<Wav2Aufruf> wav2_aufruf(const Worte& worte, std::string& grund);
std::optional<Wa2Aufruf> wa2_aufruf(const Worte& worte, std::string& grund);
std::optional<WasoftAufruf> wasoft_aufruf(const Worte& worte, std::string& grund);

/// The words between commas, empty ones left out.
Worte liste_zerlegt(std::string_view liste);

/// The satellite of a word such as "5", " 05", "G5", "R12" in three characters; nothing when it is none.
std::optional<std::string> satellitenname(std::string_view wort);

}  // namespace jorv::suite
