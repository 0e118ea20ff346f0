#include "projekt/titel.h"

#include <array>

#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "modell/Version.h"
#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv {

namespace {

std::string version_text()
{
    return verkettet("Jorv+, Version ", programm_version, " vom ", programm_datum);
}

}  // namespace

std::string Titel(const Global& g)
{
    if (!g.Verfahren_offen()) return version_text();
    return verkettet("Verfahren -->", g.Verfahrensname, "<--(", g.Verfahrensnummer, ") Modus: >",
                     Modus_Buchstabe(g.Verfahrensmodus), "<   (", version_text(), ")");
}

std::string Logo_Version()
{
    return verkettet("Version ", programm_version, ".", programm_revision, u8"  für Windows XP/Win7 vom "_w,
                     programm_datum);
}

std::string Neuerungen_Titel()
{
    return verkettet("Aktuelle Jorv-Version ", programm_version, " vom ", programm_datum);
}

std::string Logo_Datei(const Global& g)
{
    constexpr std::array<std::string_view, 4> farben = {"_gelb", "_blau", "_grau", "_tinte"};
    const std::string& modus = g.Verfahrensmodus;
    const bool mit_farbe = g.Verfahren_offen() && modus.size() == 1 && modus[0] >= '1' && modus[0] <= '4';
    const auto farbe = mit_farbe ? farben[static_cast<std::size_t>(modus[0] - '1')] : std::string_view{};
    return pfad_verbinden(g.EXE_Verzeichnis, verkettet("torel_", g.Land == "MT" ? "mt" : "kor", farbe, ".bmp"));
}

std::string Logo_laden(Global& g)
{
    std::string datei = Logo_Datei(g);
    if (g.dateien.ist_datei(datei)) return datei;
    // At the start the program goes on without it: a warning.
    g.oberflaeche->meldung(
        g.Verfahren_offen() ? Symbol::stop : Symbol::warnung,
        datei_meldung("Die Datei mit dem TOREL-Logo: ", datei, "wurde nicht gefunden! Bitte neu installieren."));
    return {};
}

}  // namespace jorv
