#include "projekt/import_batch.h"

#include <array>
#include <cctype>

#include "modell/Batchzeilen.h"
#include "modell/Gemeinsam.h"
#include "plattform/text.h"

namespace jorv {

namespace {

constexpr std::array<std::string_view, 7> endungen = {".APC", ".ATX", ".COO", ".LIS", ".ERR", ".KRZ", ".UTM"};

bool beginnt(std::string_view zeile, std::string_view anfang)
{
    return !anfang.empty() && gleich_ohne_gross(links(zeile, anfang.size()), anfang);
}

bool hat_endung(std::string_view rest)
{
    for (const auto endung : endungen)
        if (beginnt(rest, endung)) return true;
    return false;
}

// A word begins behind any sign, and directly behind the letters of an option ("+ACF001.ATX"). A longer name that only
// ends in the word, such as a rover's, doesn't count.
bool am_wortanfang(std::string_view zeile, std::size_t stelle)
{
    const std::string_view davor = zeile.substr(0, stelle);
    if (davor.empty() || std::isalnum(static_cast<unsigned char>(davor.back())) == 0) return true;
    const auto leer = davor.find_last_of(' ');
    const std::string_view option = leer == std::string_view::npos ? davor : davor.substr(leer + 1);
    return option.starts_with('+') && option.find_first_of("0123456789") == std::string_view::npos;
}

// The old word with one of the endings directly behind it becomes the new one.
std::string worte_ersetzen(std::string_view zeile, std::string_view alt, std::string_view neu)
{
    if (alt.empty()) return std::string(zeile);
    std::string text;
    for (std::size_t i = 0; i < zeile.size();) {
        if (beginnt(zeile.substr(i), alt) && hat_endung(zeile.substr(i + alt.size())) && am_wortanfang(zeile, i)) {
            text += neu;
            i += alt.size();
        } else {
            text += zeile[i++];
        }
    }
    return text;
}

class Zeilenumschrift {
public:
    explicit Zeilenumschrift(const Batchumschrift& u)
        : m_u(u),
          m_altes_laufwerk(batch_laufwerk(u.altes_Verzeichnis)),
          m_neues_laufwerk(batch_laufwerk(u.neues_Verzeichnis)),
          m_altes_cd(u.altes_Verzeichnis.empty() ? "" : batch_cd(u.altes_Verzeichnis))
    {
    }

    std::string zeile(std::string_view alt) const
    {
        if (beginnt(alt, "path %path%;")) return batch_path(m_u.EXE_Verzeichnis);
        if (!m_altes_cd.empty() && gleich_ohne_gross(alt, m_altes_cd)) return batch_cd(m_u.neues_Verzeichnis);
        std::string neu(alt);
        if (beginnt(alt, m_altes_laufwerk)) neu = m_neues_laufwerk + neu.substr(m_altes_laufwerk.size());
        neu = worte_ersetzen(neu, m_u.alte_Nummer, m_u.neue_Nummer);
        neu = worte_ersetzen(neu, m_u.alter_Name, m_u.neue_Nummer);
        const std::string name_850 = dos_text(m_u.alter_Name);
        return name_850 == m_u.alter_Name ? neu : worte_ersetzen(neu, name_850, m_u.neue_Nummer);
    }

private:
    const Batchumschrift& m_u;
    std::string m_altes_laufwerk, m_neues_laufwerk, m_altes_cd;
};

}  // namespace

std::string batch_umschreiben(std::string_view text, const Batchumschrift& u)
{
    const Zeilenumschrift umschrift(u);
    std::string neu;
    Zeilenleser leser(text);
    while (const auto zeile = leser.naechste()) {
        neu += verkettet(umschrift.zeile(*zeile), "\r\n");
        if (beginnt(*zeile, "REM WaSoft- Auswertung von:"))
            neu += dos_text(verkettet("REM importiert als: ", u.neuer_Name, " (", u.neue_Nummer, ")\r\n"));
        if (beginnt(*zeile, "REM am:")) neu += verkettet("REM importiert am : ", u.Zeitpunkt, "\r\n");
    }
    return neu;
}

}  // namespace jorv
