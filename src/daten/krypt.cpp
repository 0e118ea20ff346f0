#include "daten/krypt.h"

#include <array>

namespace jorv {

namespace {

// The key lies in five pieces and is put together for each call only. All its bytes lie between 33 and 126, so that a
// cipher byte of a text line is neither a line end nor above 255.
constexpr std::array<std::string_view, 5> stuecke = {
    "~ovB{zOs[7{ou8|o$h,jZ}8eqbU~Dx9h_f8@NxcPj,(&X,sJ(t", "/QQNP5js`@e>L^)`>_'$8_G_htOG+JqJvc/hrmin<z6(r_2<rB",
    "*Zs[ZuZ5}9c4FQCNG@}toN:}e`&l1}Yu~5vKe9+&$2}+8F<#.C",
    "JBSj4~Hk&KmcJLw_Y&A1#L0bg+Q7og@Pjz<9jA;D+vbLh=*hQ=", "dT)p=*|!uCk#H:/VT~*(YPv2H(*&3#*g8+xD<RRYmGjK/G/@yzN+-ld"};
constexpr std::size_t max_laenge = 255;
constexpr int max_klar = 125;

static_assert(stuecke[0].size() == 50 && stuecke[1].size() == 50 && stuecke[2].size() == 50 &&
              stuecke[3].size() == 50 && stuecke[4].size() == 55);

}  // namespace

std::string krypt(std::string_view text, int modus, int& fehler)
{
    const auto gescheitert = [&fehler] {
        fehler = -1;
        return std::string();
    };
    fehler = 0;
    if (text.size() > max_laenge) return gescheitert();
    std::string schluessel;
    for (const auto stueck : stuecke) schluessel += stueck;
    const bool chiffrieren = modus == static_cast<int>(Kryptmodus::chiffrieren);
    std::string ergebnis;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const int t = static_cast<unsigned char>(text[i]), k = static_cast<unsigned char>(schluessel[i]);
        if (chiffrieren ? t > max_klar : t < k) return gescheitert();
        const int c = chiffrieren ? t + k : t - k;
        ergebnis += static_cast<char>(c);
        if (c == 0) break;
    }
    return ergebnis;
}

}  // namespace jorv
