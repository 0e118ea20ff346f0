// The one fast pass against the two readers written down word for word, on files that are broken in every way.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

#include "daten/rinex_abtastung.h"
#include "hilfen/Haeppchen.h"
#include "plattform/zahl.h"
#include "proben.h"

namespace jorv {

using namespace hilfen;

namespace {

const std::vector<std::string> marken = {
    "RINEX VERSION / TYPE", "PGM / RUN BY / DATE", "COMMENT",        "MARKER NAME",         "MARKER NUMBER",
    "OBSERVER / AGENCY",    "REC # / TYPE / VERS", "ANT # / TYPE",   "APPROX POSITION XYZ", "ANTENNA: DELTA H/E/N",
    "WAVELENGTH FACT L1/2", "# / TYPES OF OBSERV", "INTERVAL",       "TIME OF FIRST OBS",   "TIME OF LAST OBS",
    "LEAP SECONDS",         "# OF SATELLITES",     "PRN / # OF OBS", "END OF HEADER"};

std::string stueck(const std::string& zeile, std::size_t von, std::size_t anzahl)
{
    return zeile.size() < von ? "" : zeile.substr(von - 1, anzahl);
}

bool traegt(const std::string& zeile, const std::string& marke)
{
    return stueck(zeile, 61, marke.size()) == marke;
}

bool traegt_eine(const std::string& zeile)
{
    for (const auto& marke : marken)
        if (traegt(zeile, marke)) return true;
    return false;
}

// Plain lines, copied one by one.
class Zeilen {
public:
    explicit Zeilen(const std::string& text)
    {
        std::string zeile;
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] != '\n') {
                zeile += text[i];
                if (i + 1 < text.size()) continue;
            }
            if (!zeile.empty() && zeile.back() == '\r') zeile.pop_back();
            m_alle.push_back(zeile);
            zeile.clear();
        }
    }
    bool ende() const { return m_stelle == m_alle.size(); }
    std::string naechste() { return m_alle[m_stelle++]; }
    int nummer() const { return static_cast<int>(m_stelle); }

private:
    std::vector<std::string> m_alle;
    std::size_t m_stelle = 0;
};

// The next epoch line; false at the end of the file.
bool naechste_epoche(Zeilen& zeilen, std::string& zeile)
{
    while (!zeilen.ende()) {
        zeile = zeilen.naechste();
        if (traegt(zeile, "COMMENT")) continue;
        if (stueck(zeile, 27, 3) == "  0") return true;
        while (!zeilen.ende()) {
            zeile = zeilen.naechste();
            if (stueck(zeile, 27, 3) == "  0" && !traegt_eine(zeile)) return true;
        }
    }
    return false;
}

long long zahl(const std::string& zeile)
{
    return ganz32(zahl_lesen(stueck(zeile, 30, 3))).value_or(0);
}

void ueberspringen(Zeilen& zeilen, long long anzahl)
{
    for (; anzahl > 0 && !zeilen.ende(); --anzahl) zeilen.naechste();
}

struct Soll {
    std::string letzte;
    int zeilen = 0;
    std::vector<std::string> satelliten;
};

Soll langsam(const std::string& text, int typen)
{
    const long long je_satellit = static_cast<long long>(std::floor((typen + 4) / 5.0));
    Soll soll;
    std::string zeile;
    for (Zeilen zeilen(text); naechste_epoche(zeilen, zeile) || (soll.zeilen = zeilen.nummer(), false);) {
        soll.letzte = zeile;
        ueberspringen(zeilen, je_satellit * zahl(zeile));
    }
    for (Zeilen zeilen(text); naechste_epoche(zeilen, zeile);) {
        const long long anzahl = zahl(zeile);
        int in_epoche = 0;
        bool am_ende = false;
        for (long long i = 0; i < anzahl && !am_ende; ++i) {
            if (i > 0 && i % 12 == 0) {
                if (zeilen.ende()) {
                    am_ende = true;
                    continue;
                }
                zeile = zeilen.naechste();
            }
            std::string name = stueck(zeile, 33 + 3 * static_cast<std::size_t>(i % 12), 3);
            if (name.empty() || (name[0] != 'G' && name[0] != 'R' && name[0] != ' ')) continue;
            if (++in_epoche > 70) continue;
            if (name.size() > 1 && name[1] == ' ') name[1] = '0';
            if (soll.satelliten.size() < 70 &&
                std::find(soll.satelliten.begin(), soll.satelliten.end(), name) == soll.satelliten.end())
                soll.satelliten.push_back(name);
        }
        if (!am_ende) ueberspringen(zeilen, je_satellit * anzahl);
    }
    return soll;
}

void vergleichen(const Soll& soll, const std::string& text, int typen, Zeilenstrom strom)
{
    const Epochen ist = epochen_abtasten(strom, typen);
    ASSERT_EQ(ist.letzte_Zeile, soll.letzte) << "types " << typen << "\n" << text;
    ASSERT_EQ(strom.nummer(), soll.zeilen) << "types " << typen << "\n" << text;
    ASSERT_EQ(ist.Satelliten, soll.satelliten) << "types " << typen << "\n" << text;
}

// From memory and from a file in pieces of every kind, so that each line is cut somewhere.
void vergleichen(Haeppchen& datei, const std::string& text, int typen)
{
    const Soll soll = langsam(text, typen);
    vergleichen(soll, text, typen, Zeilenstrom(text));
    const std::array<std::size_t, 5> laengen = {1, 3, 81, 150, 4096};
    const std::size_t wahl = text.size();
    vergleichen(soll, text, typen, Zeilenstrom(datei.oeffnen(text, laengen[wahl % 5]), laengen[wahl / 5 % 5]));
}

// Draws data sections: mostly right epochs, with everything in between that files have.
class Generator {
public:
    explicit Generator(unsigned keim) : m_zufall(keim) {}
    int bis(int n) { return static_cast<int>(m_zufall() % static_cast<unsigned>(n)); }

    std::string datensatz(int typen)
    {
        std::string text;
        for (int n = bis(7); n >= 0; --n) switch (bis(9)) {
                case 0:
                    text += kopfzeile("something", marken[static_cast<std::size_t>(bis(19))]);
                    break;
                case 1:
                    text += ereignis();
                    break;
                case 2:
                    text += kopfzeile("                            0  3G01G02R03",
                                      marken[static_cast<std::size_t>(bis(19))]);
                    break;
                case 3:
                    text += "\n";
                    break;
                default:
                    text += epoche(typen);
            }
        return verderben(text);
    }

private:
    std::string ereignis()
    {
        std::string text = "                            " + std::to_string(1 + bis(6)) + "  2\n";
        return text + kopfzeile("9080", "MARKER NAME") + kopfzeile("4", "COMMENT");
    }
    std::string epoche(int typen)
    {
        constexpr std::array systeme = {"G", "R", " ", "E", "S", "G", "G"};
        const int anzahl = bis(5) == 0 ? bis(40) : bis(14);
        const std::string zahl_text = std::to_string(anzahl);
        std::string text = " 16  5  1  8  0  " + std::to_string(bis(10)) + ".0000000  0" +
                           std::string(3 - zahl_text.size(), ' ') + zahl_text;
        for (int i = 0; i < anzahl; ++i) {
            if (i > 0 && i % 12 == 0) text += "\n" + std::string(32, ' ');
            const int nummer = bis(33);
            text += systeme[static_cast<std::size_t>(bis(7))] + std::string(nummer < 10 ? " " : "") +
                    std::to_string(nummer);
        }
        text += "\n";
        for (int i = 0; i < anzahl * ((typen + 4) / 5); ++i)
            text += bis(8) == 0 ? "\n" : "  20000000.123 7         .  0  1  105000.456 6\n";
        return text;
    }
    std::string verderben(std::string text)
    {
        for (int n = bis(4); n > 0 && !text.empty(); --n) {
            const auto stelle = static_cast<std::size_t>(bis(static_cast<int>(text.size())));
            switch (bis(6)) {
                case 0:
                    text.erase(stelle);
                    break;
                case 1:
                    text.erase(stelle, static_cast<std::size_t>(bis(60)));
                    break;
                case 2:
                    text[stelle] = static_cast<char>(bis(256));
                    break;
                case 3:
                    text.insert(stelle, "\r\n");
                    break;
                case 4:
                    text.insert(stelle, "  0");
                    break;
                default:
                    text[stelle] = "0 9E-\n"[bis(6)];
            }
        }
        return text;
    }
    std::mt19937 m_zufall;
};

}  // namespace

TEST(Abtastung, GleichtDemLangsamenLeserAufVerdorbenenDateien)
{
    Haeppchen datei;
    constexpr std::array typen = {5, 5, 1, 10, 11, 0, -3, -9, 999999};
    for (unsigned keim = 1; keim <= 20000; ++keim) {
        Generator generator(keim);
        const int n = typen[static_cast<std::size_t>(generator.bis(static_cast<int>(typen.size())))];
        vergleichen(datei, generator.datensatz(std::clamp(n, 0, 20)), n);
        if (HasFatalFailure()) FAIL() << "seed " << keim;
    }
}

TEST(Abtastung, GleichtDemLangsamenLeserAnDenRaendern)
{
    Haeppchen datei;
    for (const char* text :
         {"", "\n", "\r\n", " 16  5  1  8  0  0.0000000  0999G01\n", " 16  5  1  8  0  0.0000000  0 13G01",
          " 16  5  1  8  0  0.0000000  09E9G01\n\n\n", " 16  5  1  8  0  0.0000000  0 -1G01\nx\n",
          " 16  5  1  8  0  0.0000000  0  2G", " 16  5  1  8  0  0.0000000  0  2G01G"})
        for (const int typen : {0, 1, 6, -7}) vergleichen(datei, text, typen);
}

TEST(Lang_Abtastung, GleichtDemLangsamenLeserAufVielenDateien)
{
    Haeppchen datei;
    for (unsigned keim = 100000; keim < 600000; ++keim) {
        Generator generator(keim);
        const int n = generator.bis(12);
        vergleichen(datei, generator.datensatz(n), n);
        if (HasFatalFailure()) FAIL() << "seed " << keim;
    }
}

}  // namespace jorv
