// Antenna files of the IGS form.
#include "daten/antennen_text.h"
#include "plattform/text.h"
#include "ziel.h"

using namespace jorv;

JORV_ZIEL(antennen_igs)
{
    const auto inhalt = apc_inhalt(bytes);
    const auto namen = antennennamen_apc(bytes);
    fuzz::soll(inhalt || namen.empty(), "antennas stand behind the head");
    if (!inhalt) return;
    std::string verbunden;
    for (const auto zeile : apc_kopf) verbunden.append(zeile).append("\r\n");
    verbunden += *inhalt;
    fuzz::soll(apc_inhalt(verbunden) == inhalt, "joined and read is equal");
    const auto wieder = antennennamen_apc(verbunden);
    fuzz::soll(wieder.size() == namen.size(), "as many antennas");
    for (std::size_t i = 0; i < namen.size(); ++i) fuzz::soll(wieder[i].Nummer == namen[i].Nummer, "of the same names");
}
