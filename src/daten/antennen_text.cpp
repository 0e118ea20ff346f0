#include "daten/antennen_text.h"

#include "daten/rinex_abtastung.h"
#include "plattform/text.h"

namespace jorv {

namespace {

Kalibrierurteil zeile_pruefen(std::string_view zeile, bool erste_datei, Kalibrierung& bisher)
{
    const auto art = links(zeile, 1), referenz = mitte(zeile, 21, 20);
    if (bisher.Art.empty() && erste_datei)
        bisher.Art = art;
    else if (bisher.Art != art)
        return Kalibrierurteil::andere_art;
    if (bisher.Referenzantenne.empty() && erste_datei)
        bisher.Referenzantenne = referenz;
    else if (bisher.Art == "R" && bisher.Referenzantenne != referenz)
        return Kalibrierurteil::andere_referenz;
    return Kalibrierurteil::passt;
}

std::string mit_umbruch(Zeilenleser zeilen)
{
    std::string text;
    while (const auto zeile = zeilen.naechste()) text.append(*zeile).append("\r\n");
    return text;
}

}  // namespace

const std::array<std::string_view, 11> apc_kopf = {
    "12345678911234567892123456789312345678941234567895123456789612345678971234567890",
    "         0         0         0         0         0         0         0         0",
    "VENDOR         MODEL #               DESCRIPTION                  (AVE) YR/MO/DY",
    "                                                             |AVE = # in average",
    " [north]  [ east]  [  up ]             ",
    " [90]  [85]  [80]  [75]  [70]  [65]  [60]  [55]  [50]  [45]  | L1 Phase at",
    " [40]  [35]  [30]  [25]  [20]  [15]  [10]  [ 5]  [ 0]        | Elevation (mm)",
    " [north]  [ east]  [  up ]                                   | L2 Offset (mm)",
    " [90]  [85]  [80]  [75]  [70]  [65]  [60]  [55]  [50]  [45]  | L2 Phase at",
    " [40]  [35]  [30]  [25]  [20]  [15]  [10]  [ 5]  [ 0]        | Elevation (mm)",
    ""};

std::vector<Antennenname> antennennamen_atx(std::string_view text)
{
    std::vector<Antennenname> namen;
    Zeilenleser zeilen(text);
    while (const auto zeile = zeilen.naechste())
        if (ist_kopfzeile(*zeile, "TYPE / SERIAL NO"))
            namen.push_back({std::string(mitte(*zeile, 21, 20)), std::string(links(*zeile, 20))});
    return namen;
}

std::vector<Antennenname> antennennamen_apc(std::string_view text)
{
    std::vector<Antennenname> namen;
    Zeilenleser zeilen(text);
    for (std::size_t nummer = 1; const auto zeile = zeilen.naechste(); ++nummer)
        if (nummer > apc_kopf.size() && !zeile->empty() && zeile->front() != ' ')
            namen.push_back({std::string(links(*zeile, 20)), {}});
    return namen;
}

std::optional<std::string> apc_inhalt(std::string_view text)
{
    Zeilenleser zeilen(text);
    for (std::size_t i = 0; i < apc_kopf.size(); ++i)
        if (!zeilen.naechste()) return std::nullopt;
    return mit_umbruch(zeilen);
}

Kalibrierurteil kalibrierung_pruefen(std::string_view text, bool erste_datei, Kalibrierung& bisher,
                                     std::string_view& zeile)
{
    Zeilenleser zeilen(text);
    while (const auto naechste = zeilen.naechste()) {
        if (!ist_kopfzeile(*naechste, "PCV TYPE / REFANT")) continue;
        zeile = *naechste;
        const auto urteil = zeile_pruefen(zeile, erste_datei, bisher);
        if (urteil != Kalibrierurteil::passt) return urteil;
    }
    return Kalibrierurteil::passt;
}

std::string zeilen_mit_umbruch(std::string_view text)
{
    return mit_umbruch(Zeilenleser(text));
}

}  // namespace jorv
