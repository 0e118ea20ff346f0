#include "werkzeuge/umgebung.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <fstream>
#include <iterator>

#include "simulator/text.h"

namespace jorv::simulator {

Testordner::Testordner()
{
    static std::atomic<int> laufend = 0;
    const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
    for (;; ++laufend) {
        m_pfad = std::filesystem::temp_directory_path() / ("jorv-simulator-" + name + "-" + std::to_string(laufend));
        if (std::filesystem::create_directory(m_pfad)) return;
    }
}

Testordner::~Testordner()
{
    std::error_code fehler;
    std::filesystem::remove_all(m_pfad, fehler);
}

std::string datei_lesen(const std::filesystem::path& datei)
{
    std::ifstream f(datei, std::ios::binary);
    EXPECT_TRUE(f.good()) << datei;
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

std::vector<std::string> zeilen(std::string_view text)
{
    std::vector<std::string> alle;
    while (!text.empty()) {
        const auto ende = text.find('\n');
        EXPECT_NE(ende, std::string_view::npos) << "the last line is not ended";
        alle.emplace_back(text.substr(0, ende));
        text = ende == std::string_view::npos ? std::string_view{} : text.substr(ende + 1);
    }
    return alle;
}

double spalte(const std::string& zeile, std::size_t von, std::size_t breite)
{
    std::string feld = zeile.size() < von ? "" : zeile.substr(von - 1, breite);
    std::replace(feld.begin(), feld.end(), 'D', 'e');
    feld.erase(0, feld.find_first_not_of(' '));
    const auto wert = zahl(feld);
    EXPECT_TRUE(wert) << "columns " << von << " to " << von + breite - 1 << " of: " << zeile;
    return wert.value_or(0);
}

Beobachtungen beobachtungen_lesen(const std::string& text)
{
    Beobachtungen alle;
    const auto z = zeilen(text);
    std::size_t i = 0, arten = 0;
    double erster_tag = 0;
    for (; i < z.size() && z[i].substr(60) != "END OF HEADER"; ++i) {
        if (z[i].substr(60) == "# / TYPES OF OBSERV") arten = static_cast<std::size_t>(spalte(z[i], 1, 6));
        if (z[i].substr(60) == "TIME OF FIRST OBS") erster_tag = spalte(z[i], 13, 6);
    }
    for (++i; i < z.size();) {
        const std::string epoche = z[i++];
        EXPECT_EQ(epoche.substr(26, 3), "  0") << epoche;
        double t = spalte(epoche, 11, 2) * 3600 + spalte(epoche, 14, 2) * 60 + spalte(epoche, 16, 11);
        if (spalte(epoche, 8, 2) != erster_tag) t += 86400;
        const auto anzahl = static_cast<std::size_t>(spalte(epoche, 30, 3));
        std::string namen = epoche.substr(32);
        for (; namen.size() < 3 * anzahl && i < z.size(); ++i) namen += z[i].substr(32);
        for (std::size_t s = 0; s < anzahl && i < z.size(); ++s, i += (arten + 4) / 5) {
            Gelesen& g = alle[{t, namen.substr(3 * s, 3)}];
            for (std::size_t f = 0; f < 2; ++f) {
                g.code[f] = spalte(z[i], 1 + 32 * f, 14);
                g.phase[f] = spalte(z[i], 17 + 32 * f, 14);
                g.verloren[f] = z[i].at(30 + 32 * f) == '1';
            }
        }
    }
    return alle;
}

Szenario ohne_wirkung()
{
    Szenario s;
    s.saat = 7;
    for (const auto& [pkz, ort] : {std::pair{"0590", Vektor{3884392.8034, 629154.7793, 5002948.8397}},
                                   std::pair{"5501", Vektor{3870372.8758, 638983.2864, 5012484.3465}}}) {
        Punkt p;
        p.pkz = pkz;
        p.ort = ort;
        p.von = 9 * 3600;
        p.bis = 10 * 3600;
        s.punkte.push_back(p);
    }
    return s;
}

Beobachtungen simulieren(const Szenario& szenario, std::size_t punkt)
{
    const Testordner ordner;
    std::string meldung;
    EXPECT_TRUE(schreiben(szenario, ordner.pfad(), meldung)) << meldung;
    return beobachtungen_lesen(datei_lesen(ordner.pfad() / dateiname(szenario, szenario.punkte.at(punkt), 'o')));
}

}  // namespace jorv::simulator
