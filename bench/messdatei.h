// What the measurements of the readers share: a large observation file with the same bytes each time.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

namespace jorv::messen {

inline void rechts(std::string& ziel, long zahl, std::size_t breite)
{
    const std::string text = std::to_string(zahl);
    if (text.size() < breite) ziel.append(breite - text.size(), ' ');
    ziel += text;
}

// With the end time, which else has to be looked for in the data.
inline std::string kopf(bool mit_ende)
{
    std::string text;
    const auto zeile = [&text](std::string inhalt, const char* marke) {
        inhalt.resize(60, ' ');
        text += inhalt + marke + "\n";
    };
    zeile("     2.11           OBSERVATION DATA    M (MIXED)", "RINEX VERSION / TYPE");
    zeile("  3783000.1234   901600.1234  5038200.1234", "APPROX POSITION XYZ");
    zeile("00001               LEIAR25.R4      LEIT", "ANT # / TYPE");
    zeile("     5    C1    L1    L2    P2    S1", "# / TYPES OF OBSERV");
    zeile("  2026     1     1     0     0    0.0000000     GPS", "TIME OF FIRST OBS");
    if (mit_ende) zeile("  2026     1     1    23    59   59.0000000     GPS", "TIME OF LAST OBS");
    zeile("", "END OF HEADER");
    return text;
}

// Epochs of 13 satellites at 1 Hz, so that each has a continuation line.
inline void datei_schreiben(const std::filesystem::path& pfad, long epochen, bool mit_ende = false)
{
    constexpr long satelliten = 13;
    std::ofstream strom(pfad, std::ios::binary);
    strom << kopf(mit_ende);
    for (long e = 0; e < epochen; ++e) {
        std::string text = " 26  1  1";
        rechts(text, e / 3600, 3), rechts(text, e / 60 % 60, 3), rechts(text, e % 60, 3);
        text += ".0000000  0 13";
        for (long s = 0; s < satelliten; ++s) {
            if (s == 12) text += "\n" + std::string(32, ' ');
            text += s < 7 ? 'G' : 'R';
            rechts(text, 1 + (s + e / 7200) % 24, 2);
        }
        text += "\n";
        for (long s = 0; s < satelliten; ++s) {
            for (const long takt : {1L, 5L, 4L, 3L, 2L}) {
                rechts(text, 20000000 + (e * 7919 + s * 104729) % 5000000 * takt, 10);
                text += ".123 7";
            }
            text += "\n";
        }
        strom << text;
    }
}

}  // namespace jorv::messen
