#include "auswertung/aufrufdatei.h"

#include <array>

#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
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

std::string batchdatei(const Global& g)
{
    return Verfahrens_Datei(g, ".BAT");
}

std::string aufrufdatei(const Global& g)
{
    return im_Verfahren(g, "Jorv.BAT");
}

void aufrufdatei_schreiben(Global& g, Aufruftext text)
{
    std::string bytes;
    for (const auto zeile : wartetext) bytes += verkettet(zeile, "\r\n");
    bytes += verkettet(dos_text(verkettet('"', batchdatei(g), '"')), "\r\n");
    if (!g.dateien.schreiben(aufrufdatei(g), bytes, Dauer::fluechtig)) return;
    const std::string_view artikel = text == Aufruftext::der_Batchdatei ? "der" : "die";
    stop_melden(g, datei_meldung("Die Aufrufdatei:", aufrufdatei(g),
                                 verkettet(artikel, u8" Batchdatei konnte nicht angelegt/überschrieben werden!"_w)));
}

Fehler batchdatei_schreiben(Global& g, std::string_view bytes, std::string_view erste_zeile)
{
    if (!g.dateien.schreiben(batchdatei(g), bytes, Dauer::fluechtig)) return Fehler::keiner;
    stop_melden(g, datei_meldung(erste_zeile, batchdatei(g), u8"konnte nicht angelegt/überschrieben werden!"_w));
    return Fehler::gesetzt;
}

bool darf_ueberschreiben(Global& g, std::string_view kopf, const std::string& datei)
{
    if (!g.dateien.vorhanden(datei)) return true;
    const std::string frage = datei_meldung(kopf, datei, u8"ist ist bereits vorhanden!\n\nDie Datei überschreiben?"_w);
    return g.oberflaeche->frage(Symbol::frage, frage, Antwort::nein) == Antwort::ja;
}

void apc_melden(Global& g)
{
    stop_melden(g,
                u8"Antennen-Dateien im Format *.apc werden von JorvPlus nicht mehr unterstützt!\n"
                u8"Wenn möglich Antennen-Dateien im Format *.atx verwenden oder die Vorversion Jorv für die "
                u8"Auswertung nutzen."_w);
}

}  // namespace jorv
