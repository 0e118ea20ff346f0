#include "dos/programm.h"

#include <dirent.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <memory>
#include <system_error>

#include "dos/zeile.h"
#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv::dos {

namespace fs = std::filesystem;

namespace {

constexpr std::array<std::string_view, 4> endungen = {".com", ".exe", ".bat", ".cmd"};

bool ist_batchname(std::string_view name)
{
    const std::string kleiner = klein(name);
    return kleiner.ends_with(".bat") || kleiner.ends_with(".cmd");
}

// The names that a word may mean in a folder, lower case, best first.
std::vector<std::string> namen_von(std::string_view name)
{
    const std::string wort = klein(name);
    const bool mit_endung = wort.find('.') != std::string::npos;
    std::vector<std::string> namen;
    if (mit_endung) namen.push_back(wort);
    for (const auto endung : endungen) namen.push_back(wort + std::string(endung));
    if (!mit_endung) namen.push_back(wort);
    if (wort.ends_with(".exe")) namen.emplace_back(ohne_ende(wort, 4));
    return namen;
}

bool startbar(const std::string& datei, std::string_view name)
{
    struct stat zustand {};
    return ::stat(datei.c_str(), &zustand) == 0 && S_ISREG(zustand.st_mode) &&
           ::access(datei.c_str(), ist_batchname(name) ? R_OK : X_OK) == 0;
}

struct Ordnerschluss {
    void operator()(DIR* ordner) const { ::closedir(ordner); }
};
using Ordner = std::unique_ptr<DIR, Ordnerschluss>;

// A quick no for most names of a long folder, before anything is converted: the first letter differs.
bool kann_passen(std::string_view utf8, std::string_view wort)
{
    return static_cast<unsigned char>(utf8[0]) >= 0x80 || wort.empty() || klein(utf8[0]) == klein(wort.front());
}

bool gleiche_zeit(const timespec& a, const timespec& b)
{
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

// Among names that differ in case only the exact one wins, then the first in order.
std::optional<Programm> unter_namen_finden(std::string_view liste, const std::string& ort, std::string_view ordner,
                                           std::string_view wort)
{
    const auto namen = namen_von(wort);
    std::size_t bester_rang = namen.size();
    std::string bester;
    while (!liste.empty()) {
        const std::string_view utf8 = liste.substr(0, liste.find('\0'));
        liste.remove_prefix(utf8.size() + 1);
        if (!kann_passen(utf8, wort)) continue;
        const auto name = text_aus_utf8(utf8);
        if (!name || name->size() > wort.size() + 4) continue;
        for (std::size_t rang = 0; rang < namen.size() && rang <= bester_rang; ++rang) {
            if (!gleich_ohne_gross(*name, namen[rang]) || !startbar(verkettet(ort, '/', utf8), *name)) continue;
            const bool besser = rang < bester_rang || *name == wort || (bester != wort && *name < bester);
            if (besser) bester = *name;
            bester_rang = rang;
        }
    }
    if (bester.empty()) return std::nullopt;
    return Programm{fs::path(ort) / utf8_aus_1252(bester), pfad_verbinden(ordner, bester), ist_batchname(bester)};
}

std::vector<std::string> umgebung_fuer_kind(const Umfeld& umfeld)
{
    std::vector<std::string> umgebung;
    for (const auto& zeile : umfeld.umgebung)
        if (!zeile.starts_with("PATH=")) umgebung.push_back(zeile);
    umgebung.push_back("PATH=" + suchpfad_nach_host(umfeld));
    return umgebung;
}

}  // namespace

const std::string& Programmsuche::namen_in(const std::string& ort, const struct stat& zustand)
{
    constexpr time_t ruhezeit = 2;  // seconds; a change right behind the reading might not move the folder's time
    const auto fund = std::find_if(m_listen.begin(), m_listen.end(), [&](const Liste& l) {
        return l.geraet == zustand.st_dev && l.nummer == zustand.st_ino;
    });
    if (fund != m_listen.end() && fund->in_ruhe && gleiche_zeit(fund->geaendert, zustand.st_ctim)) return fund->namen;
    Liste& liste = fund != m_listen.end() ? *fund : m_listen.emplace_back();
    const time_t jetzt = ::time(nullptr);
    liste = {zustand.st_dev, zustand.st_ino, zustand.st_ctim, zustand.st_ctim.tv_sec + ruhezeit <= jetzt, {}};
    const Ordner offen(::opendir(ort.c_str()));
    for (const dirent* eintrag = offen ? ::readdir(offen.get()) : nullptr; eintrag; eintrag = ::readdir(offen.get()))
        liste.namen.append(eintrag->d_name).push_back('\0');
    return liste.namen;
}

std::optional<Programm> Programmsuche::in_ordner(const Umfeld& umfeld, std::string_view ordner, std::string_view wort)
{
    const std::string ort = umfeld.dateien.host(ordner).native();
    struct stat zustand {};
    if (ort.empty() || ::stat(ort.c_str(), &zustand) != 0) return std::nullopt;
    return unter_namen_finden(namen_in(ort, zustand), ort, ordner, wort);
}

std::optional<Programm> Programmsuche::finden(const Umfeld& umfeld, std::string_view wort)
{
    const std::string pfad = ersetzt(std::string(wort), '/', '\\');
    const std::string voll = umfeld.voll(pfad);
    if (ist_wurzel(voll)) return std::nullopt;
    if (const auto fund = in_ordner(umfeld, pfad_ordner(voll), pfad_name(voll))) return fund;
    if (pfad.find_first_of("\\:") != std::string::npos) return std::nullopt;
    for (const auto& ordner : suchpfad_ordner(umfeld.suchpfad))
        if (const auto fund = in_ordner(umfeld, umfeld.voll(ordner), pfad)) return fund;
    return std::nullopt;
}

int programm_ausfuehren(const Umfeld& umfeld, const Stroeme& stroeme, const Programm& programm, std::string_view text)
{
    Startauftrag auftrag;
    auftrag.programm = programm.datei;
    for (const auto& wort : argumente(text)) auftrag.argumente.push_back(utf8_aus_1252(wort));
    auftrag.ordner = umfeld.dateien.host(umfeld.verzeichnisse.aktuell());
    auftrag.umgebung = umgebung_fuer_kind(umfeld);
    auftrag.stroeme = stroeme;
    auftrag.frist = umfeld.frist;
    const Laufende ende = laufen_lassen(auftrag);
    if (!ende.gestartet) melden(stroeme, u8"Das Programm konnte nicht gestartet werden"_w, programm.pfad);
    if (ende.frist_abgelaufen)
        melden(
            stroeme,
            verkettet(u8"Das Programm wurde nach "_w, static_cast<long>(umfeld.frist.count()), u8" Sekunden beendet"_w),
            programm.pfad);
    return ende.gestartet ? ende.status : 9009;
}

}  // namespace jorv::dos
