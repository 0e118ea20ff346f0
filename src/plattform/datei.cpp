#include "plattform/datei.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <set>

#include "plattform/hostpfad.h"
#include "plattform/text.h"
#include "plattform/wiederholen.h"

namespace jorv {

namespace fs = std::filesystem;

namespace {

std::error_code grund()
{
    return {errno, std::generic_category()};
}
std::error_code kein_laufwerk()
{
    return std::make_error_code(std::errc::no_such_device);
}

fs::path link_ziel(const fs::path& pfad)
{
    std::error_code fehler;
    return fs::is_symlink(pfad, fehler) ? fs::weakly_canonical(pfad, fehler) : pfad;
}

// Through one buffer that stays in the processor's cache.
std::error_code uebertragen(Dateistrom& von, Ersatzdatei& nach)
{
    constexpr std::size_t stueck = 256 * 1024;
    const auto puffer = std::make_unique_for_overwrite<char[]>(stueck);
    while (const std::size_t n = von.lesen(puffer.get(), stueck))
        if (const auto fehler = nach.schreiben({puffer.get(), n})) return fehler;
    return von.fehler();
}

}  // namespace

bool Dateisystem::ist_datei(std::string_view pfad) const
{
    std::error_code fehler;
    const auto ort = m_laufwerke.host(pfad);
    return ort && fs::is_regular_file(*ort, fehler);
}

bool Dateisystem::ist_ordner(std::string_view pfad) const
{
    std::error_code fehler;
    const auto ort = m_laufwerke.host(pfad);
    return ort && fs::is_directory(ort->empty() ? fs::path(".") : *ort, fehler);
}

bool Dateisystem::vorhanden(std::string_view pfad) const
{
    std::error_code fehler;
    const auto ort = m_laufwerke.host(pfad);
    return ort && fs::exists(*ort, fehler);
}

std::optional<std::uint64_t> Dateisystem::groesse(std::string_view pfad) const
{
    std::error_code fehler;
    const auto ort = m_laufwerke.host(pfad);
    if (!ort || !fs::is_regular_file(*ort, fehler)) return std::nullopt;
    const auto bytes = fs::file_size(*ort, fehler);
    return fehler ? std::nullopt : std::optional<std::uint64_t>(bytes);
}

std::optional<std::string> Dateisystem::lesen(std::string_view pfad) const
{
    std::error_code fehler;
    return lesen(pfad, fehler);
}

std::optional<std::string> Dateisystem::lesen(std::string_view pfad, std::error_code& fehler) const
{
    auto text = anfang_lesen(pfad, std::string::npos);
    fehler = text ? std::error_code{} : grund();
    return text;
}

std::optional<std::string> Dateisystem::anfang_lesen(std::string_view pfad, std::size_t anzahl) const
{
    Gelesen gelesen = lesen_stufenweise(pfad, anzahl);
    // A close that fails behind a good read has lost nothing.
    if (!gelesen.gut() && gelesen.stufe != Dateistufe::schliessen) return std::nullopt;
    return std::move(gelesen.text);
}

Gelesen Dateisystem::lesen_stufenweise(std::string_view pfad, std::size_t hoechstens) const
{
    std::error_code fehler;
    const auto ort = m_laufwerke.host(pfad);
    if (!ort || !fs::is_regular_file(*ort, fehler)) {
        errno = ort && fs::is_directory(*ort, fehler) ? EISDIR : ENOENT;
        return {};
    }
    const int nummer = ungestoert([&] { return m_aufrufe->oeffnen(utf8(*ort).c_str(), O_RDONLY, 0); });
    if (nummer < 0) return {};
    Gelesen gelesen{"", Dateistufe::gut};
    std::string& text = gelesen.text;
    const auto laenge = fs::file_size(*ort, fehler);
    std::size_t platz = std::min<std::size_t>(fehler ? 65536 : static_cast<std::size_t>(laenge) + 1, hoechstens);
    int fehlernummer = 0;
    while (text.size() < hoechstens) {
        const std::size_t alt = text.size();
        text.resize(alt + std::max<std::size_t>(platz, 1));
        const long n = ungestoert([&] { return m_aufrufe->lesen(nummer, text.data() + alt, text.size() - alt); });
        if (n < 0) fehlernummer = errno;
        text.resize(alt + static_cast<std::size_t>(std::max(n, 0L)));
        if (n <= 0) break;
        // The end is looked for in the room that is left: more would copy a large file's text once over.
        const std::size_t frei = text.capacity() - text.size();
        platz = std::min<std::size_t>(frei > 0 ? frei : 65536, hoechstens - text.size());
    }
    if (fehlernummer != 0) gelesen.stufe = Dateistufe::lesen;
    if (m_aufrufe->schliessen(nummer) != 0 && errno != EINTR && gelesen.gut()) {
        gelesen.stufe = Dateistufe::schliessen;
        fehlernummer = errno;
    }
    errno = fehlernummer;
    return gelesen;
}

Dateistrom Dateisystem::stroemen(std::string_view pfad, std::error_code& fehler) const
{
    const auto ort = m_laufwerke.host(pfad);
    if (ort) return Dateistrom(*m_aufrufe, *ort, fehler);
    fehler = kein_laufwerk();
    return {};
}

Abbild Dateisystem::abbilden(std::string_view pfad, std::error_code& fehler) const
{
    const auto ort = m_laufwerke.host(pfad);
    if (ort) return Abbild(*m_aufrufe, *ort, fehler);
    fehler = kein_laufwerk();
    return {};
}

std::error_code Dateisystem::ordner_sichern(const fs::path& ordner) const
{
    const auto aufruf = [&] { return m_aufrufe->ordner_sichern(utf8(ordner).c_str()); };
    return ungestoert(aufruf) != 0 ? grund() : std::error_code{};
}

std::error_code Dateisystem::einsetzen(Ersatzdatei& ersatz, Dauer dauer, Dateistufe& stufe) const
{
    stufe = Dateistufe::schreiben;
    if (dauer == Dauer::fest)
        if (const auto fehler = ersatz.sichern()) return fehler;
    stufe = Dateistufe::schliessen;
    if (const auto fehler = ersatz.schliessen()) return fehler;
    stufe = Dateistufe::schreiben;
    if (const auto fehler = ersatz.einsetzen()) return fehler;
    if (dauer == Dauer::fest)
        if (const auto fehler = ordner_sichern(ersatz.ordner())) return fehler;
    stufe = Dateistufe::gut;
    return {};
}

std::error_code Dateisystem::ersetzen(const fs::path& ziel, std::string_view bytes, Dauer dauer,
                                      Dateistufe& stufe) const
{
    stufe = Dateistufe::oeffnen;
    Ersatzdatei ersatz(*m_aufrufe, ziel);
    if (const auto fehler = ersatz.anlegen()) return fehler;
    stufe = Dateistufe::schreiben;
    if (const auto fehler = ersatz.schreiben(bytes)) return fehler;
    return einsetzen(ersatz, dauer, stufe);
}

std::error_code Dateisystem::schreiben(std::string_view pfad, std::string_view bytes, Dauer dauer) const
{
    Dateistufe stufe;
    const auto ort = m_laufwerke.host(pfad);
    return ort ? ersetzen(link_ziel(*ort), bytes, dauer, stufe) : kein_laufwerk();
}

Dateistufe Dateisystem::schreiben_stufenweise(std::string_view pfad, std::string_view bytes) const
{
    Dateistufe stufe = Dateistufe::oeffnen;
    const auto ort = m_laufwerke.host(pfad);
    if (ort && !ersetzen(link_ziel(*ort), bytes, Dauer::fest, stufe)) return Dateistufe::gut;
    return stufe;
}

std::error_code Dateisystem::anhaengen(std::string_view pfad, std::string_view bytes, Dauer dauer) const
{
    const auto ort = m_laufwerke.host(pfad);
    if (!ort) return kein_laufwerk();
    std::error_code fehler;
    const auto zustand = fs::status(*ort, fehler);
    Dateistufe stufe;
    if (!fs::exists(zustand)) return ersetzen(*ort, bytes, dauer, stufe);
    if (!fs::is_regular_file(zustand)) return std::make_error_code(std::errc::invalid_argument);
    const auto alte_laenge = fs::file_size(*ort, fehler);
    const int nummer = ungestoert([&] { return m_aufrufe->oeffnen(utf8(*ort).c_str(), O_WRONLY | O_APPEND, 0); });
    if (nummer < 0) return grund();
    std::error_code ergebnis = alles_schreiben(*m_aufrufe, nummer, bytes);
    const auto sichern = [&] { return m_aufrufe->sichern(nummer); };
    if (!ergebnis && dauer == Dauer::fest && ungestoert(sichern) != 0) ergebnis = grund();
    if (m_aufrufe->schliessen(nummer) != 0 && errno != EINTR && !ergebnis) ergebnis = grund();
    if (ergebnis && !fehler) fs::resize_file(*ort, alte_laenge, fehler);
    return ergebnis;
}

std::error_code Dateisystem::kopieren(std::string_view von, std::string_view nach, Dauer dauer) const
{
    return host_kopieren(host(von), host(nach), dauer);
}

std::error_code Dateisystem::host_kopieren(const fs::path& quelle, const fs::path& ziel, Dauer dauer) const
{
    Ersatzdatei ersatz(*m_aufrufe, link_ziel(ziel));
    bool noetig = false;
    const auto fehler = kopie_anlegen(quelle, ziel, ersatz, noetig);
    Dateistufe stufe;
    return fehler || !noetig ? fehler : einsetzen(ersatz, dauer, stufe);
}

std::error_code Dateisystem::kopie_anlegen(const fs::path& quelle, const fs::path& ziel, Ersatzdatei& ersatz,
                                           bool& noetig) const
{
    if (quelle.empty() || ziel.empty()) return kein_laufwerk();
    noetig = !dieselbe_datei(quelle, ziel);
    if (!noetig) return {};
    std::error_code fehler;
    Dateistrom strom(*m_aufrufe, quelle, fehler);
    if (fehler) return fehler;
    fehler = ersatz.anlegen();
    return fehler ? fehler : uebertragen(strom, ersatz);
}

std::size_t Dateisystem::gemeinsam_kopieren(std::span<const Kopie> kopien, std::error_code& fehler) const
{
    fehler = {};
    std::vector<std::optional<Ersatzdatei>> neue;  // nothing where a file is its own copy
    neue.reserve(kopien.size());
    for (const auto& kopie : kopien) {
        const fs::path ziel = host(kopie.nach);
        bool noetig = false;
        neue.emplace_back(std::in_place, *m_aufrufe, link_ziel(ziel));
        if ((fehler = kopie_anlegen(host(kopie.von), ziel, *neue.back(), noetig))) {
            neue.pop_back();
            break;
        }
        if (noetig)
            neue.back()->ausschreiben_beginnen();
        else
            neue.back().reset();
    }
    // Whatever fails at one of them: those before it are taken, it and those behind it are removed.
    const auto alle = [&](auto schritt) {
        for (std::size_t i = 0; i < neue.size(); ++i) {
            if (!neue[i]) continue;
            const std::error_code grund = schritt(*neue[i]);
            if (!grund) continue;
            fehler = grund;
            while (neue.size() > i) neue.pop_back();
        }
    };
    alle([](Ersatzdatei& neu) { return neu.sichern(); });
    alle([](Ersatzdatei& neu) { return neu.schliessen(); });
    std::set<fs::path> ordner;
    alle([&](Ersatzdatei& neu) {
        ordner.insert(neu.ordner());
        return neu.einsetzen();
    });
    for (const auto& einer : ordner)
        if (const auto grund = ordner_sichern(einer)) {
            fehler = grund;
            return 0;
        }
    return neue.size();
}

std::error_code Dateisystem::loeschen(std::string_view pfad) const
{
    const auto ort = m_laufwerke.host(pfad);
    if (!ort) return kein_laufwerk();
    std::error_code fehler;
    if (fs::is_directory(*ort, fehler)) return std::make_error_code(std::errc::is_a_directory);
#ifdef _WIN32
    fs::permissions(*ort, fs::perms::owner_write, fs::perm_options::add, fehler);
#endif
    const auto aufruf = [&] { return m_aufrufe->loeschen(utf8(*ort).c_str()); };
    return ungestoert(aufruf) != 0 ? grund() : std::error_code{};
}

std::error_code Dateisystem::host_verschieben(const fs::path& von, std::string_view nach) const
{
    const auto ort = m_laufwerke.host(nach);
    if (!ort) return kein_laufwerk();
    const auto aufruf = [&] { return m_aufrufe->umbenennen(utf8(von).c_str(), utf8(*ort).c_str()); };
    return ungestoert(aufruf) != 0 ? grund() : std::error_code{};
}

std::error_code Dateisystem::ordner_anlegen(std::string_view pfad) const
{
    const auto ort = m_laufwerke.host(pfad);
    if (!ort) return kein_laufwerk();
    return ordner_und_eltern(*ort);
}

std::error_code Dateisystem::ordner_und_eltern(const fs::path& ordner) const
{
    std::error_code fehler;
    const auto zustand = fs::status(ordner, fehler);
    if (fs::is_directory(zustand)) return {};
    if (fs::exists(zustand)) return std::make_error_code(std::errc::not_a_directory);
    const fs::path eltern = ordner.parent_path();
    if (!eltern.empty() && eltern != ordner)
        if (const auto oben = ordner_und_eltern(eltern)) return oben;
    const auto aufruf = [&] { return m_aufrufe->ordner_anlegen(utf8(ordner).c_str()); };
    // Another program may have made it meanwhile.
    return ungestoert(aufruf) != 0 && errno != EEXIST ? grund() : std::error_code{};
}

std::error_code Dateisystem::ordner_loeschen(std::string_view pfad) const
{
    const auto ort = m_laufwerke.host(pfad);
    if (!ort) return kein_laufwerk();
    std::error_code fehler;
#ifdef _WIN32
    for (fs::recursive_directory_iterator lauf(*ort, fehler), ende; !fehler && lauf != ende; lauf.increment(fehler))
        fs::permissions(lauf->path(), fs::perms::owner_write, fs::perm_options::add, fehler);
#endif
    fs::remove_all(*ort, fehler);
    return fehler;
}

std::vector<Ordnereintrag> Dateisystem::ordner_lesen(std::string_view pfad) const
{
    std::vector<Ordnereintrag> eintraege;
    const auto ort = m_laufwerke.host(pfad);
    if (!ort) return eintraege;
    for (const auto& eintrag : Laufwerke::inhalt(*ort))
        if (auto name = text_aus_utf8(eintrag.name)) eintraege.push_back({std::move(*name), eintrag.ordner});
    std::sort(eintraege.begin(), eintraege.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    return eintraege;
}

void Dateisystem::reste_wegraeumen(std::string_view ordner) const
{
    const auto ort = m_laufwerke.host(ordner);
    if (!ort) return;
    for (const auto& eintrag : Laufwerke::inhalt(*ort)) {
        if (!ist_ueberrest(eintrag.name)) continue;
        const fs::path rest = *ort / aus_utf8(eintrag.name);
        std::error_code ohne;
        if (eintrag.ordner)
            fs::remove_all(rest, ohne);
        else
            m_aufrufe->loeschen(utf8(rest).c_str());
    }
}

fs::path Dateisystem::temporaer(std::string_view ordner, std::string_view name, int zaehler) const
{
    const auto ort = m_laufwerke.host(ordner);
    return ort ? aus_utf8(temporaerer_name(*ort / name, zaehler)) : fs::path{};
}

}  // namespace jorv
