#include "suite/verschiebung.h"

namespace jorv::suite {

namespace {

constexpr int SCHRITTE = 10;
constexpr double GENAU = 1e-13;  // s, 0.03 mm of range

// Travel time from a satellite whose place at transmission is known, by the earth's rotation on the way.
double laufzeit_ab_sendung(const Xyz& satellit, const Xyz& empfaenger)
{
    double dauer = 0.075;
    for (int i = 0; i < 4; ++i) dauer = laenge(gedreht(satellit, dauer) - empfaenger) / LICHT;
    return dauer;
}

}  // namespace

Verschiebung verschiebung(const Ephemeride& eph, const GpsZeit& zeitmarke, double code, const Ort& von, const Ort& nach,
                          Troposphaerenmodell modell)
{
    GpsZeit sendung = verschoben(zeitmarke, -code / LICHT);
    sendung = verschoben(sendung, -satellitenuhr(eph, sendung));
    const Xyz dort = satellitenort(eph, sendung);
    const double dauer_von = laufzeit_ab_sendung(dort, von.xyz);
    const GpsZeit empfang = verschoben(sendung, dauer_von);

    double dauer_nach = dauer_von;
    Xyz satellit;
    for (int i = 0; i < SCHRITTE; ++i) {
        satellit = gedreht(satellitenort(eph, verschoben(empfang, -dauer_nach)), dauer_nach);
        const double neu = laenge(satellit - nach.xyz) / LICHT;
        const bool fertig = std::abs(neu - dauer_nach) < GENAU;
        dauer_nach = neu;
        if (fertig) break;
    }

    const auto tag =
        static_cast<double>(tag_im_jahr(zeitmarke)) + static_cast<double>(zeitmarke.sekunde % 86400) / 86400.0;
    const double hoch_von = elevation(von, gedreht(dort, dauer_von));
    const double hoch_nach = elevation(nach, satellit);
    const double luft = laufzeit(modell, nach.blh, tag, hoch_nach) - laufzeit(modell, von.blh, tag, hoch_von);
    return {LICHT * (dauer_nach - dauer_von) + luft, hoch_nach};
}

}  // namespace jorv::suite
