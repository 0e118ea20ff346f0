#include "plattform/wort.h"

namespace jorv {

Wort Wortfolge::naechstes()
{
    const auto ist_trenner = [this](char byte) { return byte == m_trenner || byte == '\0'; };
    while (m_stelle < m_text.size() && ist_trenner(m_text[m_stelle])) ++m_stelle;
    const bool in_anfuehrung = m_stelle < m_text.size() && m_text[m_stelle] == '"';
    if (in_anfuehrung) ++m_stelle;
    const std::size_t beginn = m_stelle;
    if (in_anfuehrung) {
        while (m_stelle < m_text.size() && m_text[m_stelle] != '"') ++m_stelle;
        // The closing quote is stepped over; the length counts it off even where it is missing.
        const std::size_t hinter = m_stelle < m_text.size() ? m_stelle + 1 : m_stelle;
        const std::size_t laenge = hinter > beginn ? hinter - beginn - 1 : 0;
        m_stelle = hinter;
        return {beginn + 1, laenge, laenge == 0 ? Wortstatus::leer : Wortstatus::gefunden,
                m_text.substr(beginn, laenge)};
    }
    while (m_stelle < m_text.size() && !ist_trenner(m_text[m_stelle])) ++m_stelle;
    const std::size_t laenge = m_stelle - beginn;
    return {beginn + 1, laenge, laenge == 0 ? Wortstatus::fehlt : Wortstatus::gefunden, m_text.substr(beginn, laenge)};
}

Wort wort_finden(std::string_view text, int nummer, char trenner)
{
    if (nummer < 1) return {};
    Wortfolge folge(text, trenner);
    for (int i = 1; i < nummer; ++i)
        if (folge.naechstes().status == Wortstatus::fehlt) return {text.size() + 1, 0, Wortstatus::fehlt, {}};
    return folge.naechstes();
}

}  // namespace jorv
