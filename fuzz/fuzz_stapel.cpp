// The command interpreter: any text as a batch ends, and does the same twice. It works in a small world of its own
// below the temporary folder, behind a fence.
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>

#include "dos/stapel.h"
#include "gehege.h"
#include "plattform/text.h"
#include "ziel.h"

using namespace jorv;
using namespace jorv::dos;
namespace fs = std::filesystem;

namespace {

// The folder of all runs, removed at the end.
class Weltordner {
public:
    Weltordner()
    {
        std::string muster = (fs::temp_directory_path() / "jorv_fuzz_XXXXXX").string();
        m_pfad = ::mkdtemp(muster.data());
        m_sicher = fuzz::einzaeunen(m_pfad);
        if (!m_sicher) std::cerr << "no fence on this system: the interpreter is not run\n";
    }
    Weltordner(const Weltordner&) = delete;
    Weltordner& operator=(const Weltordner&) = delete;
    ~Weltordner()
    {
        std::error_code fehler;
        fs::remove_all(m_pfad, fehler);
    }
    const fs::path& pfad() const { return m_pfad; }
    bool sicher() const { return m_sicher; }

private:
    fs::path m_pfad;
    bool m_sicher = false;
};

using Baum = std::map<std::string, std::string>;

std::string datei_lesen(const fs::path& ort)
{
    std::ifstream strom(ort, std::ios::binary);
    return {std::istreambuf_iterator<char>(strom), {}};
}

Baum baum_von(const fs::path& ordner)
{
    Baum baum;
    for (const auto& eintrag : fs::recursive_directory_iterator(ordner))
        baum[eintrag.path().lexically_relative(ordner).string()] =
            eintrag.is_regular_file() ? datei_lesen(eintrag.path()) : std::string("\\");
    return baum;
}

std::string strom_lesen(int nummer)
{
    std::string text(static_cast<std::size_t>(std::max<off_t>(::lseek(nummer, 0, SEEK_END), 0)), '\0');
    const auto gelesen = ::pread(nummer, text.data(), text.size(), 0);
    text.resize(static_cast<std::size_t>(std::max<ssize_t>(gelesen, 0)));
    return text;
}

void schreiben(const fs::path& ort, std::string_view bytes)
{
    std::ofstream(ort, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void welt_bauen(const fs::path& welt, std::string_view batch)
{
    fs::remove_all(welt);
    fs::create_directories(welt / "p" / "jorv_out");
    fs::create_directories(welt / "d");
    schreiben(welt / "p" / "a.txt", "eins\r\n");
    schreiben(welt / "p" / "b.UTM", "zwei\r\n");
    schreiben(welt / "p" / "jorv_out" / "c", "drei");
    schreiben(welt / "p" / "X.BAT", batch);
}

struct Ausgang {
    bool gelesen = false;
    std::string aus, fehler;
    Baum baum;
    bool operator==(const Ausgang&) const = default;
};

Ausgang laufen(const fs::path& welt, std::string_view batch)
{
    welt_bauen(welt, batch);
    // Z: too, which is otherwise the whole disk.
    Laufwerke laufwerke;
    laufwerke.zuordnen("Z:", welt);
    laufwerke.zuordnen("D:", welt / "d");
    Umfeld umfeld{Dateisystem(laufwerke), Verzeichnisse("Z:\\p"), "D:\\", {"PROBE=Wert"}, {}};
    umfeld.zeilen_hoechstens = 40;
    umfeld.frist = std::chrono::seconds(1);
    umfeld.stroeme = {::open("/dev/null", O_RDONLY | O_CLOEXEC), ::memfd_create("aus", MFD_CLOEXEC),
                      ::memfd_create("fehler", MFD_CLOEXEC)};
    Ausgang ausgang;
    ausgang.gelesen = Stapel(umfeld).ausfuehren("Z:\\p\\X.BAT", {"eins", "zwei"});
    ausgang.aus = strom_lesen(umfeld.stroeme.aus);
    ausgang.fehler = strom_lesen(umfeld.stroeme.fehler);
    for (const int nummer : {umfeld.stroeme.ein, umfeld.stroeme.aus, umfeld.stroeme.fehler}) ::close(nummer);
    ausgang.baum = baum_von(welt);
    return ausgang;
}

}  // namespace

JORV_ZIEL(stapel)
{
    static const Weltordner ordner;
    if (!ordner.sicher()) return;
    const fs::path wache = ordner.pfad() / "wache", welt = ordner.pfad() / "welt";
    if (!fs::exists(wache)) schreiben(wache, "bleibt");
    const Ausgang einmal = laufen(welt, bytes), nochmal = laufen(welt, bytes);
    fuzz::soll(einmal.gelesen, "any text is a batch");
    fuzz::soll(einmal == nochmal, "the same result twice");
    fuzz::soll(datei_lesen(wache) == "bleibt" && fs::is_directory(welt), "nothing changes outside the drives");
}
