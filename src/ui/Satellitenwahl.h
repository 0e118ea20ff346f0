// The boxes chk_satelliten of the settings: one for each satellite, the others stay inactive.
#pragma once

#include <QGroupBox>
#include <array>
#include <functional>

#include "planung/einstellungen_rover.h"

namespace jorv {

class Satellitenwahl final : public QGroupBox {
public:
    /// Shows the satellites and keeps their ticks up to date; they outlive the boxes.
    Satellitenwahl(Satellitenkaesten& satelliten, QWidget* eltern);

    std::function<void()> bei_aenderung;
};

/// Three named option buttons opt_frequenz0 to 2 in a group; `index` follows the choice and outlives the group.
QGroupBox* frequenzwahl(std::int32_t& index, std::function<void()> bei_aenderung, QWidget* eltern);

}  // namespace jorv
