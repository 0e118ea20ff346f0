// A program state for the targets: a screen that shows nothing, a clock that stands still, and no file is touched.
#pragma once

#include "modell/Global.h"
#include "plattform/stumme_oberflaeche.h"
#include "plattform/uhr.h"

namespace jorv::fuzz {

struct Stand {
    Stand() : uhr({2016, 12, 1, 12, 0, 0}), g(schirm, uhr, Dateisystem(Laufwerke())) {}

    StummeOberflaeche schirm;
    Festuhr uhr;
    Global g;
};

/// As far as the last line end before the middle, so that no line is cut.
inline std::string_view vordere_zeilen(std::string_view text)
{
    const auto ende = text.substr(0, text.size() / 2).rfind('\n');
    return text.substr(0, ende == std::string_view::npos ? 0 : ende + 1);
}

}  // namespace jorv::fuzz
