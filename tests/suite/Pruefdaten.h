// Aids of the suite's tests: a working folder with files of the real data, the two programs run in-process, and the
// values that they leave.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <map>

#include "hilfen/Projekt.h"
#include "plattform/zahl.h"
#include "suite/basislinie.h"
#include "suite/virtuelle_station.h"

namespace jorv::suite {

namespace fs = std::filesystem;

/// The real observations: beside the project, or where the environment variable JORV_DATEN says.
inline fs::path echt()
{
    const char* ort = std::getenv("JORV_DATEN");
    return fs::path(ort ? ort : JORV_DATEN) / "echt";
}

#define NUR_MIT_DATEN(unterordner) \
    if (!fs::is_directory(echt() / (unterordner))) GTEST_SKIP() << "ohne die Daten in " << (echt() / (unterordner))
#define NUR_MIT_LOESER() \
    if (programm_finden("rnx2rtkp").empty()) GTEST_SKIP() << "ohne das Rechenprogramm rnx2rtkp"

struct Lauf {
    int status = -1;
    std::string protokoll, ausgabe;
    bool meldet(std::string_view text) const { return ausgabe.find(text) != std::string::npos; }
};

struct Pruefordner {
    hilfen::Arbeitsordner temp;
    Arbeitsordner ordner{temp.dos()};
    Festuhr uhr{{2016, 12, 1, 12, 0, 0}};

    fs::path pfad(std::string_view name) const { return temp.host() / std::string(name); }
    bool da(std::string_view name) const { return fs::exists(pfad(name)); }
    std::string text(std::string_view name) const { return hilfen::lesen(pfad(name)); }
    void schreiben(std::string_view name, std::string_view bytes) const { hilfen::schreiben(pfad(name), bytes); }
    void holen(const fs::path& quelle, std::string_view als = "") const
    {
        const fs::path ziel = als.empty() ? temp.host() / quelle.filename() : pfad(als);
        fs::copy_file(quelle, ziel, fs::copy_options::overwrite_existing);
        fs::permissions(ziel, fs::perms::owner_write, fs::perm_options::add);  // the data may be write-protected
    }
    /// Both stations of the 3.3 km baseline and the antenna file under the name of a project's.
    void geonet() const
    {
        for (const char* name : {"30400920.05o", "30400920.05n", "07590920.05o", "07590920.05n"})
            holen(echt() / "geonet2005" / name);
        holen(echt() / "antennen" / "igs05_auszug.atx", "001.ATX");
    }
    /// Replaces a text that must stand in the file.
    void aendern(std::string_view name, std::string_view alt, std::string_view neu) const
    {
        const std::string vorher = text(name), nachher = ersetzt(vorher, alt, neu);
        ASSERT_NE(vorher, nachher) << alt;
        schreiben(name, nachher);
    }

    /// With less than the full troposphere the ionosphere is left alone too.
    Lauf wav2(const Worte& worte, Troposphaerenmodell modell = Troposphaerenmodell::voll, bool ionosphaere = true) const
    {
        std::string grund;
        auto aufruf = wav2_aufruf(worte, grund);
        EXPECT_TRUE(aufruf) << grund;
        aufruf->modell = modell;
        aufruf->ionosphaere = ionosphaere && modell == Troposphaerenmodell::voll;
        Protokoll p;
        const int status = suite::wav2(*aufruf, ordner, uhr, p);
        return {status, p.text(), p.ausgabe()};
    }
    Lauf wa2(const Worte& worte) const { return wa2(worte, {programm_finden("rnx2rtkp")}); }
    Lauf wa2(const Worte& worte, const Loeserumgebung& umgebung) const
    {
        std::string grund;
        const auto aufruf = wa2_aufruf(worte, grund);
        EXPECT_TRUE(aufruf) << grund;
        Protokoll p;
        const int status = suite::wa2(*aufruf, ordner, umgebung, uhr, p);
        return {status, p.text(), p.ausgabe()};
    }

    /// A value of the last result protocol; fails the test when it isn't there.
    std::string wort(std::string_view name) const
    {
        const std::string alles = text("wa2sol.txt"), marke = verkettet("WERT ", name, "=");
        const auto stelle = alles.find(marke);
        EXPECT_NE(stelle, std::string::npos) << name;
        if (stelle == std::string::npos) return {};
        const auto anfang = stelle + marke.size();
        return alles.substr(anfang, alles.find('\r', anfang) - anfang);
    }
    double wert(std::string_view name) const { return zahl_lesen(wort(name)); }
    Xyz rover() const { return {wert("rx"), wert("ry"), wert("rz")}; }
};

/// East, north, up of a difference in millimetres.
inline Enu abweichung_mm(const Xyz& ist, const Xyz& soll)
{
    const Enu d = enu(Ort(soll), ist - soll);
    return {d.e * 1000, d.n * 1000, d.u * 1000};
}

inline void expect_nahe(const Xyz& ist, const Xyz& soll, double lage_mm, double hoehe_mm)
{
    const Enu d = abweichung_mm(ist, soll);
    EXPECT_LE(std::hypot(d.e, d.n), lage_mm) << "E " << d.e << " N " << d.n << " mm";
    EXPECT_LE(std::abs(d.u), hoehe_mm) << "U " << d.u << " mm";
}

}  // namespace jorv::suite
