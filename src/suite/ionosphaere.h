#pragma once
// The ionosphere over a station as a thin layer with a plane of vertical delays, read off from how the two phases of
// its own observations drift apart. It tells how the delay differs at a place some kilometres away, in any direction.

#include <array>
#include <cstdint>
#include <vector>

#include "suite/geodaesie.h"
#include "suite/gps_zeit.h"

namespace jorv::suite {

struct Restepoche;

/// Ratio of the delays on L2 and L1.
inline constexpr double IONO_VERHAELTNIS = FREQUENZ1 * FREQUENZ1 / (FREQUENZ2 * FREQUENZ2);

/// Ratio of a slant delay to the vertical one where the ray pierces the layer, at the elevation in radians.
double schraegfaktor(double elevation);

class Ionosphaere {
public:
    Ionosphaere() = default;  // none

    /// Fits level, hourly change and gradient of the layer to the observations of the station at `ort`: differences of
    /// the phases over each arc alone, so that neither ambiguities nor the delays of the hardware count.
    Ionosphaere(const Geographisch& ort, const std::vector<Restepoche>& reste);

    /// Slant delay of a code on L1 in metres, for a satellite seen from `ort` in that direction. A phase is shorter by
    /// as much.
    double laufzeit(const Geographisch& ort, double azimut, double elevation, std::int64_t sekunde) const;

    /// Vertical delay over the station in the middle of the span, metres; 0 without a layer.
    double senkrecht() const { return m_wert[0]; }

    static constexpr std::size_t WERTE = 4;
    using Wertesatz = std::array<double, WERTE>;

private:
    Wertesatz anteile(const Geographisch& ort, double azimut, double elevation, std::int64_t sekunde) const;

    Wertesatz m_wert{};
    Geographisch m_mitte;
    std::int64_t m_sekunde = 0;
    bool m_da = false;
};

/// The layer's delays at several places, weighed and added up.
struct Ionosphaerengefaelle {
    struct Gewichtsort {
        Ort ort;
        double gewicht;
    };
    Ionosphaere schicht;
    std::vector<Gewichtsort> orte;

    /// Metres of a code on L1, for a satellite at that place.
    double bei(const Xyz& satellit, const GpsZeit& zeit) const;
};

}  // namespace jorv::suite
