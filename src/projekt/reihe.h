// One row of an array section of the project file: its words taken one after the other into the fields of a record,
// and the walk over all rows of a section that every reader shares.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "modell/Global.h"
#include "plattform/fehler.h"
#include "plattform/profil.h"
#include "plattform/wort.h"

namespace jorv {

/// How a message names a field: for a word that can't be converted and for one that is missing.
struct Feldwort {
    constexpr Feldwort(const char* wort) : konvertierung(wort), fehlt(wort) {}
    constexpr Feldwort(const char* bei_konvertierung, const char* bei_fehlt)
        : konvertierung(bei_konvertierung), fehlt(bei_fehlt)
    {
    }
    const char *konvertierung, *fehlt;  // two pointers travel in registers, once for every word of a file
};

/// Takes the words of a row in order. The first bad word shows its message; from then on nothing is taken any more.
class Reihe {
public:
    Reihe(Global& g, std::string_view zeile) : m_g(g), m_worte(zeile) {}

    Reihe& text(std::string& ziel, Feldwort wort);
    Reihe& zahl(double& ziel, Feldwort wort);
    Reihe& ganz(std::int16_t& ziel, Feldwort wort);
    Reihe& ganz(std::int32_t& ziel, Feldwort wort);
    Reihe& ganz(std::uint8_t& ziel, Feldwort wort);
    /// Passes over a word that must be there.
    Reihe& auslassen(Feldwort wort);
    /// "1" is true, "0" is false.
    Reihe& schalter(bool& ziel, Feldwort wort);
    /// The field is bad for a reason of the caller's.
    Reihe& fehler(std::string_view feldwort);
    bool gut() const { return m_gut; }

private:
    bool naechstes(std::string_view& wort, Feldwort feldwort);
    template <typename T, typename Umwandlung>
    Reihe& wandeln(T& ziel, Feldwort wort, Umwandlung umwandlung);

    Global& m_g;
    Wortfolge m_worte;
    bool m_gut = true;
};

/// How a section is read, and what is said when its array can't be reset or can't grow.
struct Sektionsart {
    std::string_view sektion;
    bool komma_zu_punkt = false;  ///< every comma of a row becomes a point before it is cut into words
    bool ganze_werte = false;     ///< rows may be longer than 254 characters
    int nummer_erste = 0, nummer_weitere = 0;
    std::string_view routine;
    std::string_view anweisung_erste;
    std::string_view feldname;
    std::string_view luecke_weitere = " ";
};

/// The message of an array that can't be reset (neu 0) or grow to `neu` elements.
void wachstum_melden(Global& g, const Sektionsart& art, int neu);

/// The rows of a section, one after the other.
class Reihenquelle {
public:
    Reihenquelle(const Profil& profil, const Sektionsart& art)
        : m_profil(profil), m_art(art), m_reihen(profil.reihen(art.sektion))
    {
    }
    /// How many rows there are at most.
    int anzahl() const { return m_reihen.anzahl; }
    /// The trimmed value of row n, commas turned (in the buffer) where the section wants it; empty behind the last row.
    std::string_view holen(int n, std::string& puffer) const;

private:
    const Profil& m_profil;
    const Sektionsart& m_art;
    Profil::Reihen m_reihen;
};

/// Empties the array and reads rows 1, 2, ... up to the first empty value. `satz_lesen(Reihe&, T&, zeile)` fills a
/// record; only a good row counts. `gescheitert(neu)` words the message of an array that can't grow.
template <typename T, typename Lesen, typename Gescheitert>
Fehler sektion_lesen(Global& g, const Profil& profil, const Sektionsart& art, Feld<T>& feld, Lesen satz_lesen,
                     Gescheitert gescheitert)
{
    if (!feld.groesse_setzen(0)) {
        wachstum_melden(g, art, 0);
        return Fehler::gesetzt;
    }
    const Reihenquelle quelle(profil, art);
    feld.platz_schaffen(quelle.anzahl());
    std::string puffer;
    for (int n = 1;; ++n) {
        const std::string_view zeile = quelle.holen(n, puffer);
        if (zeile.empty()) return Fehler::keiner;
        // A record may be large: it is filled where it stays, and taken back when its row is bad.
        Reihe reihe(g, zeile);
        if (!feld.groesse_setzen(n)) {
            T ersatz{};
            satz_lesen(reihe, ersatz, zeile);
            if (reihe.gut()) gescheitert(n);
            return Fehler::gesetzt;
        }
        satz_lesen(reihe, feld.letztes(), zeile);
        if (reihe.gut()) continue;
        (void)feld.groesse_setzen(n - 1);
        return Fehler::gesetzt;
    }
}

template <typename T, typename Lesen>
Fehler sektion_lesen(Global& g, const Profil& profil, const Sektionsart& art, Feld<T>& feld, Lesen satz_lesen)
{
    return sektion_lesen(g, profil, art, feld, satz_lesen, [&](int neu) { wachstum_melden(g, art, neu); });
}

/// A number that a row can carry and give back: nothing when it isn't finite or 1e15 and more, which would fill a row
/// with digits; less than a millionth of a millimetre counts as none.
std::optional<double> reihenzahl(double wert);

/// A token for a row: in double quotes when it holds a delimiter of words.
std::string als_wort(std::string_view text);
inline bool hat_trenner(std::string_view text)
{
    return text.find(' ') != std::string_view::npos || text.find('\0') != std::string_view::npos;
}

}  // namespace jorv
