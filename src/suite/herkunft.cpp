#include "suite/herkunft.h"

#include "suite/spalten.h"

namespace jorv::suite {

namespace {

constexpr std::string_view HERKUNFT_ANFANG = "VIRTUELLE STATION AUS ";
constexpr std::string_view HERKUNFT_NETZ = "NETZ";

}  // namespace

std::string herkunft_text(const Herkunft& herkunft)
{
    std::string text(HERKUNFT_ANFANG);
    anhaengen_links(text, herkunft.station, 4);
    anhaengen_fest(text, herkunft.strecke, 11, 1);
    text.append(" m  DH");
    anhaengen_fest(text, herkunft.hoehenunterschied, 9, 1);
    text.append(" m");
    if (herkunft.netz) text.append(" ").append(HERKUNFT_NETZ);
    return text;
}

std::optional<Herkunft> herkunft_lesen(std::string_view kommentar)
{
    if (!kommentar.starts_with(HERKUNFT_ANFANG)) return {};
    const std::string_view rest = kommentar.substr(HERKUNFT_ANFANG.size());
    const auto strecke = spaltenzahl(spalten(rest, 4, 11)), hoehe = spaltenzahl(spalten(rest, 21, 9));
    if (!strecke || !hoehe) return {};
    return Herkunft{std::string(rest.substr(0, 4)), *strecke, *hoehe, spalten(rest, 33, 4) == HERKUNFT_NETZ};
}

}  // namespace jorv::suite
