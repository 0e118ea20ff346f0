// A screen that shows nothing and answers as proposed, for work that nobody watches; it only counts what was said.
#pragma once

#include "plattform/oberflaeche.h"

namespace jorv {

class StummeOberflaeche : public Oberflaeche {
public:
    using Oberflaeche::frage;
    using Oberflaeche::meldung;
    void meldung(Symbol, std::string_view, std::string_view) override { ++m_gesagt; }
    Antwort frage(Symbol, std::string_view, Antwort vorgabe, std::string_view) override
    {
        ++m_gesagt;
        return vorgabe;
    }
    void fortschritt_zeigen(std::string_view) override {}
    void fortschritt_setzen(double) override {}
    void fortschritt_verbergen() override {}
    bool ereignisse() override { return false; }
    bool im_editor_oeffnen(std::string_view) override { return false; }
    std::optional<Dateiwahl> dateien_waehlen(Dateiart, std::string_view) override { return std::nullopt; }
    void neues_verfahren(const Verfahrenswahl&, std::string_view, const Verfahrensanlage&) override {}

    /// Messages and questions until now.
    int gesagt() const { return m_gesagt; }

private:
    int m_gesagt = 0;
};

}  // namespace jorv
