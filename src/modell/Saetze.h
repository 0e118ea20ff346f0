// The records of a project and of the running program. Texts are Windows-1252, coordinates metres.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "plattform/kalender.h"

namespace jorv {

/// One observation file: of a rover, a station or a foreign virtual reference station. Times are GPS time.
struct OBS {
    std::string Dateiname;         ///< without directory; the key of the record
    std::string Punktkennzeichen;  ///< first four characters of the file name
    std::int16_t Tag = 0;          ///< day of year
    std::string Antenne;           ///< first 40 characters of the header's antenna line, with its blanks
    std::int16_t Startzeit_Jahr = 0, Startzeit_Monat = 0, Startzeit_Tag = 0;
    std::int16_t Startzeit_Stunde = 0, Startzeit_Minute = 0, Startzeit_Sekunde = 0;
    std::int32_t Startzeit_GPS_Sekunde = 0;  ///< time of day HHMMSS; no GPS seconds in spite of the name
    std::int16_t Endzeit_Jahr = 0, Endzeit_Monat = 0, Endzeit_Tag = 0;
    std::int16_t Endzeit_Stunde = 0, Endzeit_Minute = 0, Endzeit_Sekunde = 0;
    std::int32_t Endzeit_GPS_Sekunde = 0;

    Zeitpunkt Startzeit() const
    {
        return {Startzeit_Jahr, Startzeit_Monat, Startzeit_Tag, Startzeit_Stunde, Startzeit_Minute, Startzeit_Sekunde};
    }
    Zeitpunkt Endzeit() const
    {
        return {Endzeit_Jahr, Endzeit_Monat, Endzeit_Tag, Endzeit_Stunde, Endzeit_Minute, Endzeit_Sekunde};
    }
};

/// One position: grid coordinates in zone 32 and geocentric coordinates.
struct Punkt {
    std::string Punktkennzeichen;
    double Rechtswert = 0, Hochwert = 0;
    double X = 0, Y = 0, Z = 0;
};

/// What the traffic light says.
enum class Ampel : std::uint8_t { unbeurteilt = 0, gruen = 1, gelb = 2, rot = 3 };

/// The verdict of the station assignment for one rover.
struct ROVER_TOREL_Satz {
    std::string ROVER_Dateiname;
    int Anzahl = 0;  ///< assigned stations; above 4 only the count goes on
    std::array<std::string, 4> TOREL_Dateiname;
    std::uint8_t Status = 0;  ///< 0 not judged, 1 green, 2 yellow, 3 red
    std::uint8_t Grund = 0;
    bool Schutz = false;                                                 ///< set by hand, automatik leaves it
    std::string Zeitfenster_Startzeit = "0", Zeitfenster_Endzeit = "0";  ///< HHMMSS, "0" while the option is off

    /// How many of the four names are in use.
    int Anzahl_Namen() const { return Anzahl < 4 ? Anzahl : 4; }
};

/// The link of one rover to a foreign virtual reference station.
struct ROVER_VIRT_Satz {
    std::string ROVER_Dateiname;
    std::string VIRT_Dateiname = "?";
    std::int32_t VIRT_Index = 0;  ///< in OBS_V and V_Punkt, 0 while none is linked
    double Strecke = 0;           ///< horizontal, metres
};

/// The processing settings of one rover.
struct ROVER_Settings_Satz {
    static constexpr int max_satelliten = 70;

    std::string ROVER_Dateiname;
    std::int32_t Ein_Ausschalterkennung = 1;
    std::int32_t StartTime = 0, EndTime = 0;  ///< HHMMSS
    std::int32_t Elevation = 5;               ///< degrees
    std::int32_t EpochRate = 0;               ///< seconds
    std::int32_t DelFirstMinutes = 0, DelLastMinutes = 0;
    std::array<std::int32_t, max_satelliten + 1> DelSatellite{};  ///< 1 takes part, 0 switched off; from index 1
    std::array<std::string, max_satelliten + 1> DelSatelliteName;
    std::int32_t AnzahlDelSatellite = 0;
    std::int32_t Solution = 2;  ///< 0 ionosphere free L0, 1 L1, 2 automatic
};

struct BASISLINIE_Satz {
    std::string PKK_von, Datei_von, PKK_nach, Datei_nach;
};

/// One station figure of the map.
struct GEO_Punkt_Satz {
    int Anzahl = 0;  ///< corners in use, 0 to 4
    std::array<std::string, 4> Punkt;
    std::array<double, 4> Rechtswert{}, Hochwert{};
};

/// One entry of the project list.
struct Verfahren_Satz {
    std::string Nummer;  ///< "001" to "999"
    std::string Name, Pfad;
    std::string ErstDatum, LetztDatum;  ///< German date and time
    std::string Modus;                  ///< "1" to "4"
    std::string Antenne = "?";          ///< "?", "APC" or "ATX"
};

struct KOR_ANTENNEN_Satz {
    std::string von, bis;
};

/// One station of the catalogue.
struct TOREL_Punkt_Satz {
    std::string PKZ, Name;
    double Rechtswert = 0, Hochwert = 0;
    double X = 0, Y = 0, Z = 0;
};

/// One point of a border line: Typ 1 goes on with the line, any other begins one, a line begun with 0 is closed.
struct Lnd_Satz {
    std::uint8_t Typ = 0;
    double Rechtswert = 0, Hochwert = 0;
};

}  // namespace jorv
