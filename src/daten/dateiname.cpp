#include "daten/dateiname.h"

#include <algorithm>
#include <string>

#include "modell/Gemeinsam.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

bool nur_ziffern(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char z) { return z >= '0' && z <= '9'; });
}

bool rinex_name(std::string_view name, std::string_view typen)
{
    const auto punkt = name.find('.');
    if (punkt == std::string_view::npos) return false;
    const auto stamm = name.substr(0, punkt);
    const std::string endung = gross(rechts(name, 3));
    if (stamm.size() != 7 && stamm.size() != 8) return false;
    if (!nur_ziffern(mitte(stamm, 5, 3))) return false;
    if (endung.size() < 3 || typen.find(endung.back()) == std::string_view::npos) return false;
    const auto jahr = links(endung, 2);
    return jahr == "RX" || nur_ziffern(jahr);
}

}  // namespace

bool virt_name(std::string_view name)
{
    return klein(links(name, 4)) == "virt";
}

bool rover_pruefen(const Global& g, std::string_view name)
{
    if (virt_name(name)) return false;
    if (!ist_E_oder_S(g)) return true;
    const auto kennzeichen = links(name, 4);
    if (kennzeichen.size() < 4 || !nur_ziffern(kennzeichen)) return true;
    const double nummer = zahl_lesen(kennzeichen);
    return std::none_of(g.KOR_ANTENNEN.begin(), g.KOR_ANTENNEN.end(), [nummer](const KOR_ANTENNEN_Satz& bereich) {
        return nummer >= zahl_lesen(bereich.von) && nummer <= zahl_lesen(bereich.bis);
    });
}

bool obs_datei_pruefen(std::string_view name)
{
    return rinex_name(name, "O");
}

bool nav_datei_pruefen(std::string_view name)
{
    return rinex_name(name, "NG");
}

}  // namespace jorv
