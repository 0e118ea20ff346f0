#include "dos/programm.h"

#include <dirent.h>
#include <unistd.h>

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

bool startbar(const fs::path& datei, std::string_view name)
{
    std::error_code fehler;
    return fs::is_regular_file(datei, fehler) && ::access(datei.c_str(), ist_batchname(name) ? R_OK : X_OK) == 0;
}

struct Ordnerschluss {
    void operator()(DIR* ordner) const { ::closedir(ordner); }
};
using Ordner = std::unique_ptr<DIR, Ordnerschluss>;

// A quick no for most names of a long folder, before anything is converted: the first letter differs.
bool kann_passen(const char* utf8, std::string_view wort)
{
    const char erstes = utf8[0];
    return static_cast<unsigned char>(erstes) >= 0x80 || wort.empty() || klein(erstes) == klein(wort.front());
}

// One walk through the folder for all names: program folders of a host can be long. Among names that differ in case
// only the exact one wins, then the first in order.
std::optional<Programm> in_ordner_finden(const Umfeld& umfeld, std::string_view ordner, std::string_view wort)
{
    const fs::path ort = umfeld.dateien.host(ordner);
    if (ort.empty()) return std::nullopt;
    const auto namen = namen_von(wort);
    std::size_t bester_rang = namen.size();
    std::string bester;
    const Ordner offen(::opendir(ort.c_str()));
    for (const dirent* eintrag = offen ? ::readdir(offen.get()) : nullptr; eintrag; eintrag = ::readdir(offen.get())) {
        if (!kann_passen(eintrag->d_name, wort)) continue;
        const auto name = text_aus_utf8(eintrag->d_name);
        if (!name || name->size() > wort.size() + 4) continue;
        for (std::size_t rang = 0; rang < namen.size() && rang <= bester_rang; ++rang) {
            if (!gleich_ohne_gross(*name, namen[rang]) || !startbar(ort / eintrag->d_name, *name)) continue;
            const bool besser = rang < bester_rang || *name == wort || (bester != wort && *name < bester);
            if (besser) bester = *name;
            bester_rang = rang;
        }
    }
    if (bester.empty()) return std::nullopt;
    return Programm{ort / utf8_aus_1252(bester), pfad_verbinden(ordner, bester), ist_batchname(bester)};
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

std::optional<Programm> programm_finden(const Umfeld& umfeld, std::string_view wort)
{
    const std::string pfad = ersetzt(std::string(wort), '/', '\\');
    const std::string voll = umfeld.voll(pfad);
    if (ist_wurzel(voll)) return std::nullopt;
    if (const auto fund = in_ordner_finden(umfeld, pfad_ordner(voll), pfad_name(voll))) return fund;
    if (pfad.find_first_of("\\:") != std::string::npos) return std::nullopt;
    for (const auto& ordner : suchpfad_ordner(umfeld.suchpfad))
        if (const auto fund = in_ordner_finden(umfeld, umfeld.voll(ordner), pfad)) return fund;
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
