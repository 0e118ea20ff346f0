#include "projekt/titel.h"

#include <array>

#include "modell/Gemeinsam.h"
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

std::string Logo_Datei(const Global& g)
{
    constexpr std::array<std::string_view, 4> farben = {"_gelb", "_blau", "_grau", "_tinte"};
    const std::string& modus = g.Verfahrensmodus;
    const bool mit_farbe = g.Verfahren_offen() && modus.size() == 1 && modus[0] >= '1' && modus[0] <= '4';
    const auto farbe = mit_farbe ? farben[static_cast<std::size_t>(modus[0] - '1')] : std::string_view{};
    return pfad_verbinden(g.EXE_Verzeichnis, verkettet("torel_", g.Land == "MT" ? "mt" : "kor", farbe, ".bmp"));
}

}  // namespace jorv
