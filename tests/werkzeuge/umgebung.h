// Aids of the simulator's tests: a folder for one test, a reader of its files by fixed columns, scenarios to start
// from.
#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "simulator/simulator.h"

namespace jorv::simulator {

/// A fresh folder that goes away with the object.
class Testordner {
public:
    Testordner();
    ~Testordner();
    Testordner(const Testordner&) = delete;
    Testordner& operator=(const Testordner&) = delete;
    const std::filesystem::path& pfad() const { return m_pfad; }

private:
    std::filesystem::path m_pfad;
};

std::string datei_lesen(const std::filesystem::path& datei);
std::vector<std::string> zeilen(std::string_view text);
/// The number in a column range; fails the test when the range holds anything else. Columns count from 1.
double spalte(const std::string& zeile, std::size_t von, std::size_t breite);

/// One satellite at one epoch: C1, L1, P2, L2 (metres and cycles) and the two loss-of-lock marks.
struct Gelesen {
    std::array<double, 2> code{}, phase{};
    std::array<bool, 2> verloren{};
};
/// By seconds since 0 h and satellite name.
using Beobachtungen = std::map<std::pair<double, std::string>, Gelesen>;
Beobachtungen beobachtungen_lesen(const std::string& text);

/// Two points of which the second lies 20 km to the north-east, without any effect.
Szenario ohne_wirkung();
/// Writes the scenario and reads the observation file of one of its points.
Beobachtungen simulieren(const Szenario& szenario, std::size_t punkt = 0);

}  // namespace jorv::simulator
