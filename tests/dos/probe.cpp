#include "dos/probe.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "plattform/codepage_850.h"
#include "plattform/prozess.h"
#include "plattform/text.h"

namespace jorv::dos::test {

namespace fs = std::filesystem;

namespace {

std::string eng(std::string_view utf8)
{
    return text_aus_utf8(utf8).value();
}

fs::path neue_wurzel()
{
    std::string muster = (fs::temp_directory_path() / "jorv_dos_XXXXXX").string();
    return ::mkdtemp(muster.data());
}

Laufwerke laufwerke_in(const fs::path& wurzel)
{
    Laufwerke laufwerke;
    laufwerke.zuordnen("D:", wurzel / "d");
    laufwerke.zuordnen("E:", wurzel / "e");
    laufwerke.zuordnen("\\\\server\\freigabe", wurzel / "freigabe");
    for (const char* name : {"d", "e", "freigabe"}) fs::create_directories(wurzel / name);
    return laufwerke;
}

std::string datei_lesen(const fs::path& ort)
{
    std::ifstream datei(ort, std::ios::binary);
    return {std::istreambuf_iterator<char>(datei), {}};
}

std::string strom_lesen(int nummer)
{
    std::string text(static_cast<std::size_t>(::lseek(nummer, 0, SEEK_END)), '\0');
    EXPECT_EQ(::pread(nummer, text.data(), text.size(), 0), static_cast<ssize_t>(text.size()));
    return utf8_aus_1252(aus_850(text));
}

void schreiben(const fs::path& ort, std::string_view bytes)
{
    fs::create_directories(ort.parent_path());
    std::ofstream(ort, std::ios::binary) << bytes;
}

constexpr std::string_view helfer = "D:\\Hilfs programme";

}  // namespace

std::string batchbytes(std::string_view utf8)
{
    return nach_850(ersetzt(eng(utf8), "\n", "\r\n"));
}

Probe::Probe(std::string_view ordner)
    : m_wurzel(neue_wurzel()),
      m_ordner(ordner),
      umfeld{Dateisystem(laufwerke_in(m_wurzel)),
             Verzeichnisse(eng(ordner)),
             eng(helfer),
             {"PATH=/nirgends", "PROBE=Wert", "JORV_A=ä"},
             {}}
{
    fs::create_directories(ort(ordner));
    fs::create_directories(ort(helfer));
    umfeld.anzeige = false;
}

Probe::~Probe()
{
    std::error_code fehler;
    fs::remove_all(m_wurzel, fehler);
}

fs::path Probe::ort(std::string_view dos) const
{
    const Verzeichnisse von(eng(m_ordner));
    return umfeld.dateien.host(von.voll(eng(dos)));
}

void Probe::anlegen(const std::vector<std::string>& angaben) const
{
    for (const std::string_view angabe : angaben) {
        const auto gleich = angabe.find('=');
        if (angabe.ends_with('\\'))
            fs::create_directories(ort(angabe));
        else
            schreiben(ort(angabe.substr(0, gleich)), angabe.substr(gleich + 1));
    }
}

void Probe::programm(std::string_view name, std::string_view skript) const
{
    const fs::path datei = ort(helfer) / name;
    schreiben(datei, "#!/bin/sh\nPATH=$PATH:/usr/bin:/bin\n" + std::string(skript) + "\n");
    fs::permissions(datei, fs::perms::owner_all);
}

void Probe::batch(std::string_view pfad, std::string_view text) const
{
    schreiben(ort(pfad), batchbytes(text));
}

Ausgang Probe::lauf(std::string_view zeilen, const std::vector<std::string>& argumente)
{
    const std::string pfad = std::string(helfer) + "\\PROBE.BAT";
    batch(pfad, zeilen);
    umfeld.stroeme = {::open("/dev/null", O_RDONLY | O_CLOEXEC), ::memfd_create("aus", MFD_CLOEXEC),
                      ::memfd_create("fehler", MFD_CLOEXEC)};
    Ausgang ausgang;
    ausgang.gelesen = Stapel(umfeld).ausfuehren(eng(pfad), argumente);
    ausgang.aus = strom_lesen(umfeld.stroeme.aus);
    ausgang.fehler = strom_lesen(umfeld.stroeme.fehler);
    ausgang.meldungen = static_cast<int>(std::count(ausgang.fehler.begin(), ausgang.fehler.end(), '\n'));
    for (const int nummer : {umfeld.stroeme.ein, umfeld.stroeme.aus, umfeld.stroeme.fehler}) ::close(nummer);
    return ausgang;
}

void Probe::als_programm(std::string_view name) const
{
    const std::string wurzel = m_wurzel.string();
    const std::string tabelle =
        verkettet("D:=", wurzel, "/d;E:=", wurzel, "/e;\\\\server\\freigabe=", wurzel, "/freigabe");
    ::setenv("JORV_LAUFWERKE", tabelle.c_str(), 1);
    // Alone in a folder: other programs beside it would be found before the stand-ins.
    std::error_code schon_da;
    fs::create_directories(m_wurzel / "bin");
    fs::create_symlink(JORV_PROGRAMME "/jorv-dos", m_wurzel / "bin/jorv-dos", schon_da);
    ::setenv("PATH", verkettet(wurzel, "/bin:/usr/bin:/bin").c_str(), 1);
    EXPECT_TRUE(prozess_warten(umfeld.dateien, verkettet('"', eng(m_ordner), '\\', eng(name), '"')));
}

std::vector<std::string> Probe::baum(std::string_view ordner) const
{
    std::vector<std::string> zeilen;
    const fs::path beginn = ort(ordner.empty() ? "." : ordner);
    for (const auto& eintrag : fs::recursive_directory_iterator(beginn)) {
        const std::string name = ersetzt(eintrag.path().lexically_relative(beginn).string(), '/', '\\');
        if (!eintrag.is_directory())
            zeilen.push_back(name + "=" + datei_lesen(eintrag.path()));
        else if (fs::is_empty(eintrag.path()))
            zeilen.push_back(name + "\\");
    }
    std::sort(zeilen.begin(), zeilen.end());
    return zeilen;
}

void baumfaelle_pruefen(const std::vector<Baumfall>& faelle)
{
    for (const auto& fall : faelle) {
        SCOPED_TRACE(std::string(fall.zeilen));
        Probe probe;
        probe.anlegen(fall.vorher);
        const Ausgang ausgang = probe.lauf(fall.zeilen);
        std::vector<std::string> nachher = fall.nachher;
        std::sort(nachher.begin(), nachher.end());
        EXPECT_EQ(probe.baum(), nachher);
        EXPECT_EQ(ausgang.meldungen, fall.meldungen) << ausgang.fehler;
    }
}

std::string Probe::inhalt(std::string_view datei) const
{
    return datei_lesen(ort(datei));
}

}  // namespace jorv::dos::test
