#pragma once
// Antenna calibrations: finds the block of a receiver antenna in the project's ANTEX file, by the serial number first,
// and writes the small file of two blocks that the solver gets.

#include <optional>
#include <string>
#include <string_view>

#include "suite/gps_zeit.h"

namespace jorv::suite {

/// How a block came to be chosen; everything below `typ` is worth a warning.
enum class Antennenfund { nummer, typ, ohne_haube, anderes_stueck };

struct Antennenblock {
    std::string text;  // the lines from START OF ANTENNA to END OF ANTENNA, CR LF dropped, LF kept
    Antennenfund fund = Antennenfund::nummer;
    std::string name;          // type and serial number as the file has them
    std::size_t zeile = 0;     // where that name stands in the file, counted from 1
    bool anderer_typ = false;  // found by its number under another type than the header's
};

/// The block for an antenna of that number and type (columns 1-20 and 21-40 of ANT # / TYPE, trimmed): the same serial
/// number (type equal preferred), else the mean calibration of the type, else that of the type without a dome (a header
/// without dome means none), else the calibration of another piece of the type. Blocks outside their dates are passed
/// over. Nothing when there is none.
std::optional<Antennenblock> antenne_suchen(std::string_view antex, std::string_view nummer, std::string_view typ,
                                            const GpsZeit& zeit);

/// Names under which the solver finds the two blocks.
inline constexpr std::string_view ROVERANTENNE = "ROVERANTENNE";
inline constexpr std::string_view BASISANTENNE = "BASISANTENNE";

/// An ANTEX file of the blocks that are there, renamed as above, without serial numbers.
std::string antex_fuer_loeser(const std::optional<Antennenblock>& rover, const std::optional<Antennenblock>& basis);

}  // namespace jorv::suite
