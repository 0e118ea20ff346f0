#pragma once
// The list of known coordinates that a call may name: one point a line, its four characters, geocentric X Y Z in metres
// and an antenna. Whoever asks for a point that the list lacks gets the place of its file's header.

#include <map>
#include <string>

#include "suite/stationen.h"

namespace jorv::suite {

class Koordinaten {
public:
    /// Reads the list; lines that are none are passed over. No name means no list; a file that can't be read costs a
    /// WARNUNG.
    Koordinaten(const Arbeitsordner& ordner, const std::string& name, Protokoll& protokoll);

    /// The point whose characters the file's name begins with, else the header's place (a WARNUNG when there is a
    /// list). Metres.
    Xyz ort(const Beobachtungsdatei& datei, Protokoll& protokoll) const;

private:
    std::string m_name;  // empty: no list
    std::map<std::string, Xyz, std::less<>> m_punkte;
};

}  // namespace jorv::suite
