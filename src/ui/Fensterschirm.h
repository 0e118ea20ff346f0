// The port as windows: messages and questions as boxes, progress as the panel of the main window, dialogs.
#pragma once

#include <optional>
#include <string_view>

#include "plattform/oberflaeche.h"

namespace jorv {

class Hauptfenster;

class Fensterschirm final : public Oberflaeche {
public:
    /// Until the main window is there, boxes stand alone and nothing else is shown.
    void hauptform_setzen(Hauptfenster* hauptform) { m_hauptform = hauptform; }

    using Oberflaeche::frage;
    using Oberflaeche::meldung;
    void meldung(Symbol symbol, std::string_view text, std::string_view titel) override;
    Antwort frage(Symbol symbol, std::string_view text, Antwort vorgabe, std::string_view titel) override;
    void fortschritt_zeigen(std::string_view text) override;
    void fortschritt_setzen(double prozent) override;
    void fortschritt_verbergen() override;
    bool ereignisse() override;
    void baum_erneuern() override;
    void karte_zeichnen(bool neu) override;
    void menue_erneuern() override;
    void liste_erneuern() override;
    void titel_setzen(std::string_view titel) override;
    void sanduhr(bool an) override;
    void piepen() override;
    bool im_editor_oeffnen(std::string_view pfad) override;
    std::error_code im_fenster_starten(const Fensterstart& start) override;
    std::optional<Dateiwahl> dateien_waehlen(Dateiart art, std::string_view verzeichnis) override;
    void neues_verfahren(const Verfahrenswahl& vorschlag, std::string_view nummer, const Verfahrensanlage& ok) override;

private:
    Hauptfenster* m_hauptform = nullptr;
    bool m_sanduhr = false;
};

}  // namespace jorv
