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

// In quotes only the percent sign still counts.
std::string batch_wort_in_anfuehrung(std::string_view name)
{
    return ersetzt(name, "%", "%%");
}

}  // namespace

std::string batch_wort(std::string_view name)
{
    std::string wort;
    for (const char zeichen : name) {
        if (zeichen == '%') wort += '%';
        if (std::string_view("^&|<>").find(zeichen) != std::string_view::npos) wort += '^';
        wort += zeichen;
    }
    return wort;
}

std::string batch_laufwerk(std::string_view verzeichnis)
{
    return std::string(ohne_ende(links(verzeichnis, pfad_wurzel_laenge(verzeichnis)), 1));
}

std::string batch_cd(std::string_view verzeichnis)
{
    return dos_text(verkettet("cd ", batch_wort(mitte(verzeichnis, pfad_wurzel_laenge(verzeichnis)))));
}

std::string batch_path(std::string_view exe_verzeichnis)
{
    return dos_text(verkettet("path %path%;", batch_wort(exe_verzeichnis)));
}

std::string batch_aufruf(std::string_view batchdatei)
{
    std::string bytes;
    for (const auto zeile : wartetext) bytes += verkettet(zeile, "\r\n");
    return bytes + verkettet(dos_text(verkettet('"', batch_wort_in_anfuehrung(batchdatei), '"')), "\r\n");
}

}  // namespace jorv
