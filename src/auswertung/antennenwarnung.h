// What the protocols of a run say about antennas without a calibration: gathered item by item, told once behind the
// run.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>

#include "modell/Global.h"

namespace jorv {

class Antennenwarnung {
public:
    /// Takes the antennas that a calculation protocol names as missing in the calibration file. `stueck` is the rover
    /// or baseline it belongs to; empty: each line is counted for the observation file that it names. A protocol that
    /// isn't there or can't be read says nothing.
    void lesen(const Global& g, const std::string& protokoll, std::string_view stueck = {});

    /// One warning that names each antenna and where it was used; nothing when none is missing.
    void melden(Global& g) const;

private:
    std::map<std::string, std::set<std::string>> m_stuecke;  // by the antenna's number and type
};

}  // namespace jorv
