#include "daten/exe_datei.h"

#include "daten/dateistand.h"
#include "plattform/pfad.h"

namespace jorv {

namespace {

std::string eigene_datei(const Global& g, std::string_view name)
{
    return g.Einstellungsdatei.empty() ? std::string() : pfad_verbinden(pfad_ordner(g.Einstellungsdatei), name);
}

}  // namespace

std::string exe_verzeichnis(const Global& g)
{
    return g.EXE_Verzeichnis.empty() ? g.Programmverzeichnis : g.EXE_Verzeichnis;
}

std::string exe_datei(const Global& g, std::string_view name)
{
    std::string eigene = eigene_datei(g, name);
    if (!eigene.empty() && g.dateien.ist_datei(eigene)) return eigene;
    return pfad_verbinden(exe_verzeichnis(g), name);
}

std::error_code exe_datei_schreiben(const Global& g, std::string_view name, std::string_view bytes)
{
    const std::error_code fehler = g.dateien.schreiben(exe_datei(g, name), bytes);
    if (!schreiben_verboten(fehler)) return fehler;
    const std::string eigene = eigene_datei(g, name);
    return eigene.empty() ? fehler : g.dateien.schreiben(eigene, bytes);
}

}  // namespace jorv
