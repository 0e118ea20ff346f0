// The screen of people without a screen: messages and questions as lines on standard error, progress as one line,
// dialogs answered from the command's arguments.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "plattform/fensterstart.h"
#include "plattform/oberflaeche.h"

namespace jorv {

class Konsolenschirm final : public Oberflaeche {
public:
    struct Verhalten {
        std::optional<Antwort> antwort;  ///< answers every question; else the question's default does
        bool terminal = false;           ///< progress moves in place, else each new caption is a line
    };

    /// Both streams take UTF-8. `abbruch` tells whether the user asked to stop.
    Konsolenschirm(std::ostream& ausgabe, std::ostream& meldungen, Verhalten verhalten, std::function<bool()> abbruch)
        : m_ausgabe(ausgabe), m_meldungen(meldungen), m_verhalten(verhalten), m_abbruch(std::move(abbruch))
    {
    }

    using Oberflaeche::frage;
    using Oberflaeche::meldung;
    void meldung(Symbol symbol, std::string_view text, std::string_view titel) override;
    Antwort frage(Symbol symbol, std::string_view text, Antwort vorgabe, std::string_view titel) override;
    void fortschritt_zeigen(std::string_view text) override;
    void fortschritt_setzen(double prozent) override;
    void fortschritt_verbergen() override;
    bool ereignisse() override;
    /// Prints the path.
    bool im_editor_oeffnen(std::string_view pfad) override;
    /// What the program prints streams onto standard error.
    std::error_code im_fenster_starten(const Fensterstart& start) override;
    /// Returns when all programs started so have ended: what follows on the command line counts on their files.
    void fenster_abwarten();
    /// Gives `dateiwahl` once, then cancels.
    std::optional<Dateiwahl> dateien_waehlen(Dateiart art, std::string_view verzeichnis) override;
    /// Gives `verfahrenswahl` once, then cancels, so that a refused choice isn't offered for ever.
    void neues_verfahren(const Verfahrenswahl& vorschlag, std::string_view nummer, const Verfahrensanlage& ok) override;

    /// Progress of the start is nobody's business: shown from here on.
    void fortschritt_erlauben() { m_fortschritt_erlaubt = true; }

    std::optional<Dateiwahl> dateiwahl;
    std::optional<Verfahrenswahl> verfahrenswahl;

    /// How many messages with the stop icon were shown.
    int stopmeldungen() const { return m_stopmeldungen; }

private:
    void zeile(std::string_view kennwort, std::string_view text);
    void fortschritt_zeichnen();
    void fortschritt_loeschen();

    std::ostream& m_ausgabe;
    std::ostream& m_meldungen;
    Verhalten m_verhalten;
    std::function<bool()> m_abbruch;
    std::string m_fortschritt;  // UTF-8
    int m_prozent = 0;
    std::vector<std::function<void()>> m_fenster;
    bool m_fortschritt_erlaubt = false, m_sichtbar = false;
    std::chrono::steady_clock::time_point m_gezeichnet{};
    int m_stopmeldungen = 0;
};

}  // namespace jorv
