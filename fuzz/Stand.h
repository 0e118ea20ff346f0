// A program state for the targets: a screen that shows nothing, a clock that stands still, and no file is touched.
#pragma once

#include "modell/Global.h"
#include "plattform/uhr.h"

namespace jorv::fuzz {

class Stummschirm final : public Oberflaeche {
public:
    using Oberflaeche::frage;
    using Oberflaeche::meldung;
    void meldung(Symbol, std::string_view, std::string_view) override { ++meldungen; }
    Antwort frage(Symbol, std::string_view, Antwort vorgabe, std::string_view) override { return vorgabe; }
    void fortschritt_zeigen(std::string_view) override {}
    void fortschritt_setzen(double) override {}
    void fortschritt_verbergen() override {}
    bool ereignisse() override { return false; }
    bool im_editor_oeffnen(std::string_view) override { return false; }
    std::optional<Dateiwahl> dateien_waehlen(Dateiart, std::string_view) override { return std::nullopt; }
    void neues_verfahren(const Verfahrenswahl&, std::string_view, const Verfahrensanlage&) override {}

    int meldungen = 0;
};

struct Stand {
    Stand() : uhr({2016, 12, 1, 12, 0, 0}), g(schirm, uhr, Dateisystem(Laufwerke())) {}

    Stummschirm schirm;
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
