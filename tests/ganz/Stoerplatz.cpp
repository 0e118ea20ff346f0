#include "ganz/Stoerplatz.h"

#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <thread>

#include "konsole/programm.h"
#include "plattform/kind_linux.h"

namespace jorv::hilfen {

namespace {

// The child's own world: what fails, how far it has come, and where each new text of a file is noted.
Stoerung plan;
int* zaehler = nullptr;  // shared with the parent
fs::path merkort;

bool scheitert()
{
    const int n = ++*zaehler;
    if (plan.bei == 0 || n < plan.bei || (n > plan.bei && !plan.von_da_an)) return false;
    if (plan.grund == 0) ::raise(SIGKILL);
    errno = plan.grund;
    return true;
}

bool zaehlt(const fs::path& datei)
{
    const auto endung = klein(datei.extension().string());
    return endung == ".ini" || endung == ".cif";
}

void merken(const fs::path& datei)
{
    if (merkort.empty() || !zaehlt(datei)) return;
    std::error_code fehler;
    const fs::path ziel = merkort / std::to_string(*zaehler) / datei.relative_path();
    fs::create_directories(ziel.parent_path());
    fs::copy_file(datei, ziel, fehler);
}

const Systemaufrufe gestoerte_tafel{
    [](const char* p, int a, unsigned r) { return scheitert() ? -1 : Systemaufrufe::echte().oeffnen(p, a, r); },
    [](int n, void* b, std::size_t a) { return scheitert() ? -1L : Systemaufrufe::echte().lesen(n, b, a); },
    [](int n, const void* b, std::size_t a) { return scheitert() ? -1L : Systemaufrufe::echte().schreiben(n, b, a); },
    [](int n) { return scheitert() ? -1 : Systemaufrufe::echte().sichern(n); },
    [](int n) {
        const int ergebnis = Systemaufrufe::echte().schliessen(n);
        return scheitert() ? -1 : ergebnis;
    },
    [](const char* a, const char* b) {
        if (scheitert()) return -1;
        const int ergebnis = Systemaufrufe::echte().umbenennen(a, b);
        merken(b);
        return ergebnis;
    },
    [](const char* p) { return scheitert() ? -1 : Systemaufrufe::echte().loeschen(p); },
    [](const char* p) { return scheitert() ? -1 : Systemaufrufe::echte().ordner_sichern(p); },
    [](const char* p) { return scheitert() ? -1 : Systemaufrufe::echte().ordner_anlegen(p); },
    [](int n, std::size_t l) { return scheitert() ? nullptr : Systemaufrufe::echte().einblenden(n, l); }};

std::string schluessel(const fs::path& relativ)
{
    return (klein(relativ.extension().string()) == ".cif" ? relativ.filename() : relativ).string();
}

// The settings without the recent list, which tells where the program has been.
std::string ohne_liste(const std::string& text)
{
    std::string rest;
    bool liste = false;
    Zeilenleser zeilen(text);
    while (const auto zeile = zeilen.naechste()) {
        if (zeile->starts_with('[')) liste = *zeile == "[VERFAHREN]" || *zeile == "[PFADE]" || *zeile == "[MODUS]";
        if (!liste) rest.append(*zeile).append("\n");
    }
    return rest;
}

std::string inhalt(const fs::path& datei)
{
    return datei.filename() == "JorvPlus.INI" ? ohne_liste(lesen(datei)) : lesen(datei);
}

Stand stand_von(const fs::path& ordner)
{
    Stand stand;
    if (!fs::exists(ordner)) return stand;
    for (const auto& eintrag : fs::recursive_directory_iterator(ordner))
        if (eintrag.is_regular_file() && zaehlt(eintrag.path()))
            stand[schluessel(eintrag.path().lexically_relative(ordner))] = inhalt(eintrag.path());
    return stand;
}

// Small files anew, large ones, which nobody writes in place, by a second name.
void spiegeln(const fs::path& von, const fs::path& nach)
{
    constexpr std::uintmax_t gross = 100'000;
    fs::create_directories(nach);
    for (const auto& eintrag : fs::directory_iterator(von)) {
        const fs::path ziel = nach / eintrag.path().filename();
        if (eintrag.is_symlink())
            fs::copy_symlink(eintrag.path(), ziel);
        else if (eintrag.is_directory())
            spiegeln(eintrag.path(), ziel);
        else if (std::error_code fehler = std::make_error_code(std::errc::file_too_large);
                 eintrag.file_size() <= gross || (fs::create_hard_link(eintrag.path(), ziel, fehler), fehler))
            fs::copy_file(eintrag.path(), ziel);
    }
}

const std::string rover = "55041670.16o", zweiter = "55011670.16o", neuer = "55021670.16o", linie = "55031670.16o";

}  // namespace

Stoerplatz::Stoerplatz() : m_platz("E")
{
    const fs::path wurzel = host("").parent_path().parent_path();
    m_vorlage = wurzel / "vorlage";
    m_staende = wurzel / "staende";
    ::setenv("JORV_JETZT", "2016-12-01T12:00:00", 1);
    ::setenv("PATH", (std::string(JORV_PROGRAMME ":") + std::getenv("PATH")).c_str(), 1);
    m_platz.gut({"antennen", "1", "beispiel/antennen/antennen.atx"});
    std::vector<std::string> dateien = {"rinex", "1", "beispiel/rinex/" + rover, "beispiel/rinex/" + zweiter};
    for (const char* station : {"0590", "0591", "0593"})
        for (const char* art : {"o", "n"}) dateien.push_back(verkettet("beispiel/rinex/", station, "1670.16", art));
    m_platz.gut(dateien);
    m_platz.gut({"figur", "1", "0590", "0591", "0593"});
    // One rover computed, one that waits.
    m_platz.gut({"einstellen", "1", zweiter, "Ein=0"});
    m_platz.gut({"auswerten", "1"});
    m_platz.gut({"einstellen", "1", zweiter, "Ein=1"});
    m_platz.gut({"neu", "Linien", "--modus", "B", "--verzeichnis", "linien"});
    m_platz.gut({"antennen", "2", "beispiel/antennen/antennen.atx"});
    m_platz.gut({"rinex", "2", "beispiel/rinex/" + neuer, "beispiel/rinex/" + zweiter, "beispiel/rinex/" + linie,
                 "beispiel/rinex/55031670.16n"});
    schreiben(wurzel / "linien.txt", "5503 5501\r\n");
    m_platz.gut({"basislinien", "2", "../linien.txt"});
    m_platz.gut({"auswerten", "2"});
    m_platz.gut({"neu", "Fremd", "--modus", "E", "--verzeichnis", "fremd"});
    m_platz.gut({"--ja", "loeschen", "3"});
    fs::rename(host("beispiel"), wurzel / "beispiel");
    schreiben(wurzel / "linien.txt", "5503 5501\r\n5502 5501\r\n");
    // The averaging comes from elsewhere.
    const fs::path mittelung = host("programme/runa");
    schreiben(mittelung, "#!/bin/sh\nexit 0\n");
    fs::permissions(mittelung, fs::perms::owner_all);
    spiegeln(host(""), m_vorlage);
}

void Stoerplatz::zuruecksetzen() const
{
    // A batch outlives the program that was killed, and may write into a folder that is just being removed.
    constexpr std::chrono::milliseconds pause(20);
    for (std::error_code fehler; !fs::is_empty(host("")); std::this_thread::sleep_for(pause))
        for (const auto& eintrag : fs::directory_iterator(host(""))) fs::remove_all(eintrag.path(), fehler);
    spiegeln(m_vorlage, host(""));
}

Gestoert Stoerplatz::ausfuehren(const std::vector<std::string>& worte, const Stoerung& stoerung) const
{
    void* const gemeinsam = ::mmap(nullptr, sizeof(int), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    zaehler = new (gemeinsam) int(0);
    const fs::path err = m_vorlage.parent_path() / "fehlerausgabe";
    fs::remove(err);
    const pid_t kind = ::fork();
    if (kind == 0) {
        plan = stoerung;
        std::vector<std::string> alle = {"--einstellungen", host("JorvPlus.INI").string()};
        alle.insert(alle.end(), worte.begin(), worte.end());
        fs::current_path(host(""));
        std::ostringstream aus, meldungen;
        if (stoerung.vorher) stoerung.vorher();
        const int status = programm({aus, meldungen, false, {}, &gestoerte_tafel}, alle);
        // The limit on the length of files is none for what the test notes.
        rlimit grenze{};
        ::getrlimit(RLIMIT_FSIZE, &grenze);
        grenze.rlim_cur = grenze.rlim_max;
        ::setrlimit(RLIMIT_FSIZE, &grenze);
        schreiben(err, meldungen.str());
        ::_exit(status);
    }
    int ende = 0;
    while (::waitpid(kind, &ende, 0) < 0 && errno == EINTR) {
    }
    if (stoerung.nachher) stoerung.nachher();
    const Gestoert lauf{WIFEXITED(ende) ? WEXITSTATUS(ende) : -1, *zaehler, lesen(err)};
    ::munmap(gemeinsam, sizeof(int));
    return lauf;
}

bool Stoerplatz::toeten(const std::vector<std::string>& worte, unsigned mikrosekunden) const
{
    Kindauftrag auftrag{JORV_PROGRAMME "/jorv", {"--einstellungen", host("JorvPlus.INI").string()}, host("")};
    auftrag.argumente.insert(auftrag.argumente.end(), worte.begin(), worte.end());
    Kind kind(Prozessaufrufe::echte(), auftrag);
    std::this_thread::sleep_for(std::chrono::microseconds(mikrosekunden));
    ::kill(kind.nummer(), SIGKILL);
    return kind.einsammeln() == 128 + SIGKILL;
}

Stand Stoerplatz::stand() const
{
    return stand_von(host(""));
}

std::map<std::string, std::set<std::string>> Stoerplatz::moegliche(const std::vector<std::string>& worte) const
{
    std::map<std::string, std::set<std::string>> alle;
    const auto aufnehmen = [&](const Stand& stand) {
        for (const auto& [name, text] : stand) alle[name].insert(text);
    };
    zuruecksetzen();
    const Stand vorher = stand();
    fs::remove_all(m_staende);
    (void)ausfuehren(worte, {.vorher = [this] { merkort = m_staende; }});
    aufnehmen(vorher);
    const Stand nachher = stand();
    aufnehmen(nachher);
    if (fs::exists(m_staende))
        for (const auto& einer : fs::directory_iterator(m_staende))
            aufnehmen(stand_von(einer.path() / host("").parent_path().relative_path()));
    for (auto& [name, texte] : alle)
        if (!vorher.contains(name) || !nachher.contains(name)) texte.insert("");
    return alle;
}

std::vector<std::string> Stoerplatz::reste(std::string_view ausser) const
{
    std::vector<std::string> namen;
    for (const auto& eintrag : fs::recursive_directory_iterator(host(""))) {
        const bool frei = !ausser.empty() && eintrag.path().parent_path().filename() == ausser;
        if (eintrag.path().filename().string().starts_with('.') && !frei) namen.push_back(eintrag.path().string());
    }
    return namen;
}

const std::vector<Befehlsfall>& sichernde_befehle()
{
    static const std::vector<Befehlsfall> faelle = {
        {{"sichern", "1"}},
        {{"zeitfenster", "1", "an"}},
        {{"figur", "1", "0591", "0593", "0590"}},
        {{"figur-loeschen", "1"}},
        {{"einstellen", "1", zweiter, "Elevation=12"}},
        {{"einstellen", "1", "alle", "Solution=1"}},
        {{"zuordnen", "1", zweiter, "05901670.16o", "05911670.16o", "--schutz"}},
        {{"batch", "1", zweiter}},
        {{"--ja", "batch", "1"}},
        {{"rinex", "1", "../beispiel/rinex/" + neuer}, true},
        {{"antennen", "1", "../beispiel/antennen/antennen.atx"}},
        {{"--ja", "antenne-loeschen", "1", "ANTENNEN.ATX"}},
        {{"nicht-fertig", "1", rover}},
        {{"--ja", "rover-loeschen", "1", rover}},
        {{"--ja", "loeschen", "1"}},
        {{"neu", "Zwei", "--modus", "B", "--verzeichnis", "zwei"}, false, "zwei"},
        {{"importieren", "fremd/003.INI", "--name", "Vier", "--nummer", "4"}, false, "fremd"},
        {{"basislinien", "2", "../linien.txt"}},
        {{"--ja", "basislinie-loeschen", "2", linie + "-" + zweiter}},
        {{"esa", "2"}},
        {{"--ja", "rv", "2"}},
        {{"mitteln", "1"}},
        {{"katalog", "machen", "../beispiel/katalog.txt"}},
        {{"katalog", "entfernen", "0598"}},
        {{"grenzen", "machen", "../beispiel/grenzen.txt"}},
        {{"auswerten", "1"}, true},
        {{"--ja", "wasoft", "1", "beides"}, true},
        {{"--ja", "basis", "2", "beides"}, true},
    };
    return faelle;
}

const std::vector<Befehlsfall>& lesende_befehle()
{
    static const std::vector<Befehlsfall> faelle = {
        {{"liste"}},
        {{"zeigen", "1"}},
        {{"zeiten", "1"}},
        {{"karte", "1", "--ausgabe", "svg"}},
        {{"katalog", "zeigen"}},
        {{"ergebnisse", "1"}},
        {{"export", "1", "--format", "csv"}},
    };
    return faelle;
}

}  // namespace jorv::hilfen
