// Several rovers at once leave the same bytes in the same files as one after the other.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <map>

#include "ganz/Beispielplatz.h"
#include "plattform/text.h"

namespace jorv {
namespace {

using hilfen::Beispielplatz;
using hilfen::lesen;
using hilfen::schreiben;
using ::testing::HasSubstr;
namespace fs = std::filesystem;

std::map<std::string, std::string> baum_von(const fs::path& ordner)
{
    std::map<std::string, std::string> baum;
    for (const auto& eintrag : fs::recursive_directory_iterator(ordner))
        baum[fs::relative(eintrag.path(), ordner).string()] =
            eintrag.is_directory() ? "(Ordner)" : lesen(eintrag.path());
    return baum;
}

struct Netz : Beispielplatz {
    Netz()
    {
        ::setenv("JORV_JETZT", "2016-12-01T12:00:00", 1);
        gut({"antennen", "1", "beispiel/antennen/antennen.atx"});
        gut({"rinex", "1", "beispiel/rinex"});
        gut({"figur", "1", "0590", "0591", "0593"});
        gut({"figur", "1", "0590", "0593", "0598", "0596"});
        fs::copy(verfahren, host("vorher"), fs::copy_options::recursive);
        fs::copy(host("JorvPlus.INI"), host("vorher.INI"));
    }
    ~Netz() { ::unsetenv("JORV_JETZT"); }

    // The project as it is after a run of the state in which the change has brought it.
    std::map<std::string, std::string> nach_lauf(int gleichzeitig, const std::function<void(const Netz&)>& aendern,
                                                 hilfen::Programmlauf& lauf) const
    {
        fs::remove_all(verfahren);
        fs::copy(host("vorher"), verfahren, fs::copy_options::recursive);
        aendern(*this);
        const std::string kopf = "[GRUNDEINSTELLUNGEN]\r\n";
        schreiben(host("JorvPlus.INI"),
                  ersetzt(lesen(host("vorher.INI")), kopf, verkettet(kopf, "Gleichzeitig=", gleichzeitig, "\r\n")));
        lauf = jorv({"auswerten", "1"});
        return baum_von(verfahren);
    }
    const fs::path verfahren = host("verfahren");
};

TEST(Gleichzeitig, dieselben_dateien_wie_nacheinander)
{
    const struct {
        const char* name;
        std::function<void(const Netz&)> aendern;
        int status;
    } faelle[] = {
        {"ungestoert", [](const Netz&) {}, 0},
        {"mit Resten frueherer Laeufe",
         [](const Netz& n) {
             for (const char* rest :
                  {"wav2log.txt", "alt.vrt", "virtalt.16o", "alt.ext", "001.ERR", "alt.LIS", "alt.prt",
                   "jorv_out/lis_rov/55021670.16o.LIS", "jorv_out/krz_rov/55041670.16o.KRZ"}) {
                 fs::create_directories((n.verfahren / rest).parent_path());
                 schreiben(n.verfahren / rest, "alt\r\n");
             }
         },
         0},
        {"mit einem, an dem der Lauf endet",
         [](const Netz& n) {
             const std::string text = lesen(n.verfahren / "55041670.16o");
             schreiben(n.verfahren / "55041670.16o", text.substr(0, text.find("END OF HEADER") + 14));
         },
         1},
    };
    const Netz netz;
    for (const auto& fall : faelle) {
        hilfen::Programmlauf einzeln, zusammen;
        const auto erwartet = netz.nach_lauf(1, fall.aendern, einzeln);
        const auto baum = netz.nach_lauf(3, fall.aendern, zusammen);
        EXPECT_EQ(zusammen.status, fall.status) << fall.name << zusammen.err;
        EXPECT_EQ(zusammen.err, einzeln.err) << fall.name;
        EXPECT_EQ(zusammen.aus, einzeln.aus) << fall.name;
        for (const auto& [name, bytes] : erwartet) {
            const auto fund = baum.find(name);
            if (fund == baum.end())
                ADD_FAILURE() << fall.name << ": " << name << " fehlt";
            else
                EXPECT_EQ(fund->second, bytes) << fall.name << ": " << name;
        }
        for (const auto& [name, bytes] : baum) EXPECT_TRUE(erwartet.contains(name)) << fall.name << ": " << name;
    }
}

}  // namespace
}  // namespace jorv
