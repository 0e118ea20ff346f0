#include "dos/stapel.h"

#include <sys/mman.h>
#include <unistd.h>

#include "dos/befehle.h"
#include "dos/platzhalter.h"
#include "dos/umlenkung.h"
#include "plattform/codepage_850.h"
#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv::dos {

namespace {

// What one command of a pipe prints, kept in memory for the next one.
class Rohrspeicher {
public:
    Rohrspeicher() = default;
    ~Rohrspeicher() { schliessen(m_nummer); }
    Rohrspeicher(const Rohrspeicher&) = delete;
    Rohrspeicher& operator=(const Rohrspeicher&) = delete;

    /// A new store to print into; -1 when there is none.
    int neuer()
    {
        schliessen(m_nummer);
        return m_nummer = ::memfd_create("rohr", MFD_CLOEXEC);
    }
    /// The store from its beginning, to read from.
    int lesbar() const
    {
        ::lseek(m_nummer, 0, SEEK_SET);
        return m_nummer;
    }
    /// Gives the descriptor away: it must be closed by `schliessen`.
    int abgeben()
    {
        const int nummer = lesbar();
        m_nummer = -1;
        return nummer;
    }
    static void schliessen(int nummer)
    {
        if (nummer >= 0) ::close(nummer);
    }

private:
    int m_nummer = -1;
};

bool ist_laufwerk(std::string_view wort)
{
    return wort.size() == 2 && ist_dos_pfad(wort);
}

}  // namespace

bool Stapel::laden(std::string_view pfad, const std::vector<std::string>& argumente)
{
    const auto bytes = m_umfeld.dateien.lesen(pfad);
    if (!bytes) return false;
    const std::string text = aus_850(*bytes);
    m_zeilen.clear();
    Zeilenleser leser(text);
    while (const auto zeile = leser.naechste()) m_zeilen.emplace_back(*zeile);
    m_argumente.assign(1, std::string(pfad));
    m_argumente.insert(m_argumente.end(), argumente.begin(), argumente.end());
    m_naechste = 0;
    m_zeile_verlassen = true;
    return true;
}

bool Stapel::ausfuehren(std::string_view pfad, const std::vector<std::string>& argumente)
{
    if (!laden(pfad, argumente)) return false;
    for (std::size_t n = 0; m_naechste < m_zeilen.size() && n < m_umfeld.zeilen_hoechstens; ++n) {
        const std::string zeile = m_zeilen[m_naechste++];
        zeile_ausfuehren(zeile);
    }
    return true;
}

void Stapel::zeile_ausfuehren(const std::string& zeile)
{
    if (marke(zeile)) return;
    const std::string text = ausdehnen(
        zeile, [this](std::string_view name) { return m_umfeld.variable(name); }, m_argumente);
    const std::string_view rest = ohne_trenner(text);
    if (rest.empty()) return;
    if (m_umfeld.anzeige && !rest.starts_with('@'))
        text_ausgeben(m_umfeld.stroeme.aus, verkettet("\r\n", m_umfeld.verzeichnisse.aktuell(), ">", rest, "\r\n"));
    befehle_ausfuehren(rest);
}

void Stapel::befehle_ausfuehren(std::string_view rest)
{
    m_zeile_verlassen = false;
    Rohrspeicher speicher;
    bool aus_rohr = false;
    while (!m_zeile_verlassen) {
        rest = ohne_trenner(rest);
        while (rest.starts_with('@')) rest = ohne_trenner(rest.substr(1));
        if (rest.empty()) return;
        const std::string wort = befehlswort(rest);
        if (wort == "rem") return;
        if (wort == "if") {
            rest.remove_prefix(wort.size());
            const auto bedingung = bedingung_nehmen(rest);
            if (!bedingung) {
                melden(m_umfeld.stroeme, u8"Die Bedingung ist nicht lesbar"_w, rest);
                return;
            }
            if (etwas_da(m_umfeld.dateien, m_umfeld.voll(bedingung->name)) == bedingung->nicht) return;
            continue;
        }
        const Befehlstext befehl = befehl_nehmen(rest);
        Stroeme stroeme = m_umfeld.stroeme;
        const int eingabe = aus_rohr ? speicher.abgeben() : -1;
        if (aus_rohr) stroeme.ein = eingabe;
        aus_rohr = befehl.danach == Verknuepfung::rohr;
        if (aus_rohr) stroeme.aus = speicher.neuer();
        const bool gut = befehl_ausfuehren(befehl, stroeme);
        Rohrspeicher::schliessen(eingabe);
        if (befehl.danach == Verknuepfung::ende) return;
        if (befehl.danach == (gut ? Verknuepfung::bei_fehler : Verknuepfung::bei_erfolg)) return;
    }
}

bool Stapel::befehl_ausfuehren(const Befehlstext& befehl, const Stroeme& stroeme)
{
    Umlenkung umlenkung(stroeme);
    if (!umlenkung.oeffnen(m_umfeld, befehl.umlenkungen)) {
        m_umfeld.errorlevel = 1;
        return false;
    }
    return befehl.text.empty() || wort_ausfuehren(befehl.text, umlenkung.stroeme());
}

bool Stapel::wort_ausfuehren(std::string_view text, const Stroeme& stroeme)
{
    const std::string wort = befehlswort(text);
    if (wort == "goto") return springen(text.substr(wort.size()), stroeme);
    if (const Befehl befehl = interner_befehl(wort)) {
        const bool gut = befehl(m_umfeld, stroeme, text.substr(wort.size()));
        m_umfeld.errorlevel = gut ? 0 : 1;
        return gut;
    }
    return programm_starten(text, stroeme);
}

bool Stapel::programm_starten(std::string_view text, const Stroeme& stroeme)
{
    const std::string wort = wort_nehmen(text);
    if (ist_laufwerk(wort)) return laufwerk_wechseln(m_umfeld, stroeme, wort);
    const auto programm = m_programmsuche.finden(m_umfeld, wort);
    if (!programm) {
        m_umfeld.errorlevel = 9009;
        return melden(stroeme, u8"Befehl oder Programm nicht gefunden"_w, wort);
    }
    if (!programm->ist_batch) {
        m_umfeld.errorlevel = programm_ausfuehren(m_umfeld, stroeme, *programm, text);
        return m_umfeld.errorlevel == 0;
    }
    std::vector<std::string> worte = parameter(text).namen;
    return laden(programm->pfad, worte) ||
           melden(stroeme, u8"Die Batchdatei konnte nicht gelesen werden"_w, programm->pfad);
}

bool Stapel::springen(std::string_view text, const Stroeme& stroeme)
{
    text = ohne_trenner(text);
    const std::string name = marke(text.starts_with(':') ? std::string(text) : verkettet(':', text)).value_or("");
    m_zeile_verlassen = true;
    const std::size_t anzahl = m_zeilen.size();
    if (text.starts_with(':') && name == "eof") {
        m_naechste = anzahl;
        return true;
    }
    for (std::size_t i = 0; i < anzahl; ++i) {
        const std::size_t nummer = (m_naechste + i) % anzahl;
        if (name.empty() || marke(m_zeilen[nummer]) != name) continue;
        m_naechste = nummer + 1;
        return true;
    }
    m_naechste = anzahl;
    return melden(stroeme, u8"Die Sprungmarke fehlt"_w, name);
}

}  // namespace jorv::dos
