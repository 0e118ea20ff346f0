#include "suite/verschiebung.h"

namespace jorv::suite {

namespace {

constexpr int SCHRITTE = 10;
constexpr double GENAU = 1e-13;  // s, 0.03 mm of range

// Repeats a step that gives a better travel time until it stands.
template <typename Schritt>
double laufzeit_suchen(double dauer, Schritt schritt)
{
    for (int i = 0; i < SCHRITTE; ++i) {
        const double neu = schritt(dauer);
        const bool fertig = std::abs(neu - dauer) < GENAU;
        dauer = neu;
        if (fertig) break;
    }
    return dauer;
}

double tag_mit_bruch(const GpsZeit& zeit)
{
    return static_cast<double>(tag_im_jahr(zeit)) + static_cast<double>(zeit.sekunde % 86400) / 86400.0;
}

}  // namespace

Verschieber::Verschieber(const Ort& von, const Ort& nach, Troposphaerenmodell modell, const GpsZeit& zeitmarke)
    : Verschieber(von, nach, modell, zeitmarke, tag_mit_bruch(zeitmarke))
{
}

// One orbit serves all instants here: they lie within the satellite's clock error and the difference of the two travel
// times, both under a few milliseconds.
Verschiebung Verschieber::rechnen(const Satellitenlage& lage, double code) const
{
    const Xyz sendung = lage.nach(-lage.uhr);
    const double dauer_von = laufzeit_suchen(
        code / LICHT, [&](double dauer) { return laenge(gedreht(sendung, dauer) - m_von.xyz) / LICHT; });
    Xyz satellit;
    const double dauer_nach = laufzeit_suchen(dauer_von, [&](double dauer) {
        satellit = gedreht(lage.nach(-lage.uhr + dauer_von - dauer), dauer);
        return laenge(satellit - m_nach.xyz) / LICHT;
    });
    const double hoch_von = elevation(m_von, gedreht(sendung, dauer_von));
    const double hoch_nach = elevation(m_nach, satellit);
    const double luft = m_luft_nach.laufzeit(hoch_nach) - m_luft_von.laufzeit(hoch_von);
    return {LICHT * (dauer_nach - dauer_von) + luft, hoch_nach, satellit};
}

}  // namespace jorv::suite
