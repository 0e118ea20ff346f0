#include "planung/zahlenfeld.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

std::int32_t Zahlenfeld::wert() const
{
    constexpr double groesste = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(std::trunc(zahl_lesen(m_text)), -groesste, groesste));
}

bool Zahlenfeld::taste(char zeichen)
{
    if (zeichen == taste_escape && !m_text.empty()) m_text = verkettet(std::clamp(wert(), m_minimum, m_maximum));
    return zeichen == taste_ruecktaste || (zeichen >= '0' && zeichen <= '9');
}

void Zahlenfeld::verlassen()
{
    if (m_text.empty()) m_text = verkettet(m_minimum);
}

bool Zahlenfeld::pruefen(Oberflaeche& schirm) const
{
    const std::int32_t zahl = wert();
    if (zahl > m_maximum)
        schirm.meldung(Symbol::warnung,
                       verkettet(u8"Der zulässige Maximal-Wert von "_w, m_maximum, u8" wurde überschritten!"_w));
    else if (zahl < m_minimum)
        schirm.meldung(Symbol::warnung,
                       verkettet(u8"Der zulässige Minimal-Wert von "_w, m_minimum, " wurde unterschritten!"));
    return zahl >= m_minimum && zahl <= m_maximum;
}

void Zahlenfeld::pfeil(Oberflaeche& schirm, int richtung)
{
    const std::int64_t ziel = std::int64_t{wert()} + richtung;
    if (ziel < m_minimum || ziel > m_maximum) schirm.piepen();
    m_text = verkettet(std::clamp<std::int64_t>(ziel, m_minimum, m_maximum));
}

}  // namespace jorv
