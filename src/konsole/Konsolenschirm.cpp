#include "konsole/Konsolenschirm.h"

#include <algorithm>
#include <utility>

#include "plattform/text.h"

namespace jorv {

namespace {

constexpr auto kleinster_abstand = std::chrono::milliseconds(100);
constexpr std::string_view zeile_loeschen = "\r\x1b[K";

std::string_view kennwort(Symbol symbol)
{
    switch (symbol) {
        case Symbol::stop:
            return "STOP ";
        case Symbol::warnung:
            return "WARNUNG ";
        case Symbol::info:
            return "INFO ";
        case Symbol::frage:
            return "FRAGE ";
        case Symbol::keins:
            break;
    }
    return "";
}

}  // namespace

void Konsolenschirm::zeile(std::string_view wort, std::string_view text)
{
    fortschritt_loeschen();
    m_meldungen << wort << utf8_aus_1252(text) << '\n' << std::flush;
}

void Konsolenschirm::meldung(Symbol symbol, std::string_view text, std::string_view)
{
    if (symbol == Symbol::stop) ++m_stopmeldungen;
    zeile(kennwort(symbol), text);
}

Antwort Konsolenschirm::frage(Symbol, std::string_view text, Antwort vorgabe, std::string_view)
{
    zeile(kennwort(Symbol::frage), text);
    const Antwort antwort = m_verhalten.antwort.value_or(vorgabe);
    zeile("-> ", antwort == Antwort::ja ? "Ja" : "Nein");
    return antwort;
}

void Konsolenschirm::fortschritt_zeigen(std::string_view text)
{
    if (!m_fortschritt_erlaubt) return;
    std::string neu = utf8_aus_1252(trimmen(text));
    const bool anders = neu != m_fortschritt || !m_sichtbar;
    m_fortschritt = std::move(neu);
    m_sichtbar = true;
    if (m_verhalten.terminal)
        fortschritt_zeichnen();
    else if (anders)
        m_meldungen << m_fortschritt << '\n' << std::flush;
}

void Konsolenschirm::fortschritt_setzen(double prozent)
{
    const int neu = static_cast<int>(std::clamp(prozent, 0.0, 100.0));
    if (neu == std::exchange(m_prozent, neu) || !m_verhalten.terminal || !m_sichtbar) return;
    if (std::chrono::steady_clock::now() - m_gezeichnet >= kleinster_abstand) fortschritt_zeichnen();
}

void Konsolenschirm::fortschritt_verbergen()
{
    fortschritt_loeschen();
    m_sichtbar = false;
    m_prozent = 0;
}

bool Konsolenschirm::ereignisse()
{
    return m_abbruch && m_abbruch();
}

bool Konsolenschirm::im_editor_oeffnen(std::string_view pfad)
{
    m_ausgabe << utf8_aus_1252(pfad) << '\n';
    return true;
}

std::error_code Konsolenschirm::im_fenster_starten(const Fensterstart& start)
{
    m_meldungen << std::flush;
    auto gestartet = fenster_starten(start, Fensterausgabe::fehlerausgabe);
    if (gestartet.abwarten) m_fenster.push_back(std::move(gestartet.abwarten));
    return gestartet.fehler;
}

void Konsolenschirm::fenster_abwarten()
{
    for (const auto& abwarten : std::exchange(m_fenster, {})) abwarten();
}

std::optional<Dateiwahl> Konsolenschirm::dateien_waehlen(Dateiart, std::string_view)
{
    return std::exchange(dateiwahl, std::nullopt);
}

void Konsolenschirm::neues_verfahren(const Verfahrenswahl&, std::string_view, const Verfahrensanlage& ok)
{
    if (const auto wahl = std::exchange(verfahrenswahl, std::nullopt)) static_cast<void>(ok(*wahl));
}

void Konsolenschirm::fortschritt_zeichnen()
{
    m_gezeichnet = std::chrono::steady_clock::now();
    m_meldungen << zeile_loeschen << m_fortschritt << ' ' << m_prozent << " %" << std::flush;
}

void Konsolenschirm::fortschritt_loeschen()
{
    if (m_sichtbar && m_verhalten.terminal) m_meldungen << zeile_loeschen << std::flush;
}

}  // namespace jorv
