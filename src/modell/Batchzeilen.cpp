#include "modell/Batchzeilen.h"

#include <array>

#include "modell/Gemeinsam.h"
#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv {

namespace {

// The umlauts of the third and fifth line are those that a console of code page 850 shows as "ä" and "ß".
constexpr std::array<std::string_view, 6> wartetext = {
    "@echo off",
    "echo !",
    u8"echo !             Bitte warten! Auswertung der WaSoft l„uft!"_w,
    "echo !",
    u8"echo !                  (Fenster schlieát automatisch!)"_w,
    "echo !"};

}  // namespace

std::string batch_laufwerk(std::string_view verzeichnis)
{
    return std::string(ohne_ende(links(verzeichnis, pfad_wurzel_laenge(verzeichnis)), 1));
}

std::string batch_cd(std::string_view verzeichnis)
{
    return dos_text(verkettet("cd ", mitte(verzeichnis, pfad_wurzel_laenge(verzeichnis))));
}

std::string batch_path(std::string_view exe_verzeichnis)
{
    return dos_text(verkettet("path %path%;", exe_verzeichnis));
}

std::string batch_aufruf(std::string_view batchdatei)
{
    std::string bytes;
    for (const auto zeile : wartetext) bytes += verkettet(zeile, "\r\n");
    return bytes + verkettet(dos_text(verkettet('"', batchdatei, '"')), "\r\n");
}

}  // namespace jorv
