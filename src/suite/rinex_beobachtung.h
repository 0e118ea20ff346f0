#pragma once
// RINEX 2 observation files: header, epochs and the observations of GPS and GLONASS of code, phase and signal strength
// on L1 and L2, out of a text or of a file read in pieces. Events, headers inside the data, power failures,
// satellites on continuation lines and damaged epochs are met in real files and passed over with a remark.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "plattform/dateistrom.h"
#include "suite/geodaesie.h"
#include "suite/gps_zeit.h"

namespace jorv::suite {

/// The kinds of observation that are kept; every other kind (Doppler, L5, ...) is dropped.
enum class Art : std::uint8_t { C1, P1, C2, P2, L1, L2, S1, S2 };
inline constexpr std::size_t ARTEN = 8;
inline constexpr std::array<std::string_view, ARTEN> ARTNAMEN = {"C1", "P1", "C2", "P2", "L1", "L2", "S1", "S2"};

/// One satellite in one epoch. Codes in metres, phases in cycles; 0 means not observed, as in the files.
struct Messung {
    int satellit = 0;
    std::array<double, ARTEN> wert{};
    std::array<char, ARTEN> schlupf{};  // loss-of-lock digit or blank
    std::array<char, ARTEN> staerke{};  // signal strength digit or blank
    double operator[](Art art) const { return wert[static_cast<std::size_t>(art)]; }
};

struct Epoche {
    GpsZeit zeit;
    int kennung = 0;        // 0 good, 1 power failure before it
    std::size_t erste = 0;  // its observations in `messungen`
    std::size_t anzahl = 0;
    std::string uhr;  // receiver clock field as it stands, mostly empty
};

struct RinexKopf {
    std::string marke;                                                  // MARKER NAME
    std::string empfaenger;                                             // REC # / TYPE / VERS, the line's 60 columns
    std::string antennennummer;                                         // columns 1-20 of ANT # / TYPE
    std::string antennentyp;                                            // columns 21-40
    Xyz ort;                                                            // APPROX POSITION XYZ, zero when missing
    double antennenhoehe = 0.0, antenne_ost = 0.0, antenne_nord = 0.0;  // metres
    std::array<bool, ARTEN> arten{};                                    // kinds that the header announces
    std::string wellenlaengen;                                          // WAVELENGTH FACT L1/2, the line's 60 columns
    std::string kommentar_virtuell;  // the comment by which a virtual station names its master, see virtuelle_station
};

/// Whose observations are wanted; those of GLONASS carry the slot plus 100 as their satellite.
enum class Systeme { gps, gps_glonass };

/// How much of the data is wanted: the times alone take a fraction of the time of all values.
enum class Umfang { kopf, epochen, alles };

struct RinexBeobachtung {
    RinexKopf kopf;
    std::vector<Epoche> epochen;     // strictly ascending
    std::vector<Messung> messungen;  // of the systems asked for, empty unless Umfang::alles
    std::vector<std::string> hinweise;

    /// The usual distance of two epochs in seconds (median, to the millisecond); 0 with fewer than two.
    double intervall() const;
};

/// Reads a file's text. Nothing with a German reason in `grund` when it is no RINEX 2 observation file.
/// With a window all epochs are listed, but only those inside it hold observations.
/// A change to a moving antenna or to another site after data have been read ends the reading there, with a remark.
std::optional<RinexBeobachtung> beobachtung_lesen(std::string_view text, Umfang umfang, std::string& grund,
                                                  const std::optional<Zeitspanne>& fenster = {},
                                                  Systeme systeme = Systeme::gps);

/// A file of about `groesse` bytes, which is read in pieces of `stueck` bytes.
struct Beobachtungsstrom {
    Dateistrom datei;
    std::size_t groesse = 0;
    std::size_t stueck = std::size_t{256} << 10;
};
/// The same out of a file. A failed read is a reason too.
std::optional<RinexBeobachtung> beobachtung_lesen(Beobachtungsstrom strom, Umfang umfang, std::string& grund,
                                                  const std::optional<Zeitspanne>& fenster = {},
                                                  Systeme systeme = Systeme::gps);

}  // namespace jorv::suite
