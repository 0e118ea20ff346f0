// The run with the batch interpreter and stand-ins for the suite's programs: the batch really leads every file to its
// place, in folders with blanks and umlauts.
#include <gtest/gtest.h>

#include <cstdlib>

#include "auswertung/lauf.h"
#include "beispiel.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

constexpr std::string_view wav2 = R"(#!/bin/sh
echo "wav2 $*"
echo log > wav2log.txt
[ "$1" = 5502092a.05o ] && exit 1
echo o > virt092.05o
echo n > virt092.05n
)";

constexpr std::string_view wa2 = R"(#!/bin/sh
echo "wa2 $*"
[ -f "$1" ] || exit 1
for wort; do
  case $wort in
    +FE*) printf '%0201d\r\n' 7 > "${wort#+FE}" ;;
    +FL*) echo Protokoll > "${wort#+FL}" ;;
    +FS*) echo Report > "${wort#+FS}" ;;
  esac
done
)";

void programm(const fs::path& datei, std::string_view skript)
{
    schreiben(datei, skript);
    fs::permissions(datei, fs::perms::owner_all);
}

TEST(LaufMitInterpreter, der_batch_legt_jede_datei_an_ihren_platz)
{
    const std::string alter_pfad = std::getenv("PATH");
    Beispiel b({"5501092a.05o", "5502092a.05o"});
    // The interpreter alone is in reach: the suite beside it would be found before the stand-ins.
    const fs::path nur_interpreter = b.ordner.wurzel() / "bin";
    fs::create_directories(nur_interpreter);
    fs::create_symlink(fs::path(JORV_PROGRAMME) / "jorv-dos", nur_interpreter / "jorv-dos");
    ::setenv("PATH", (nur_interpreter.string() + ":" + alter_pfad).c_str(), 1);
    const fs::path verzeichnis = b.ordner.wurzel() / "Büro Süd Nr. 5", suite = b.ordner.wurzel() / "Süite neu";
    fs::create_directories(verzeichnis);
    b.g.Arbeitsverzeichnis = Laufwerke().dos(verzeichnis).value();
    b.g.EXE_Verzeichnis = Laufwerke().dos(suite).value();
    programm(suite / "wav2", wav2);
    programm(suite / "wa2", wa2);
    b.legen("001.ATX", "TRM22020.00+GP  NONE00220020                                TYPE / SERIAL NO    \r\n");

    EXPECT_EQ(m_wasoft_run_n(b.g), Fehler::gesetzt);
    ::setenv("PATH", alter_pfad.c_str(), 1);

    const std::string kopf(101, '0');
    EXPECT_EQ(b.datei("jorv_out\\dat_rov\\5501092a.05o.UTM"), kopf + "\r\n");
    EXPECT_EQ(b.datei("jorv_out\\krz_rov\\5501092a.05o.KRZ"), kopf.substr(0, 99) + "7\r\n");
    EXPECT_EQ(b.datei("jorv_out\\lis_rov\\5501092a.05o.LIS"), "Protokoll\n");
    EXPECT_EQ(b.datei("jorv_out\\prot_rov\\5501092a.prt"), "Report\n");
    EXPECT_EQ(b.datei("jorv_out\\prot_vrs\\5501092a.vrt"), "log\n");
    EXPECT_EQ(b.datei("jorv_out\\rin_vrs\\virt5501092a.05o"), "o\n");
    EXPECT_EQ(b.datei("jorv_out\\rin_vrs\\virt5501092a.05n"), "n\n");
    EXPECT_TRUE(b.hat("jorv_out\\dat_ext\\5501092a.ext"));
    // The second rover gets no virtual station: the batch passes the solver by, and the run ends there.
    EXPECT_NE(b.datei("001.LIS").find("wav2 5502092a.05o 0590,0591,0593 +PRO +E +A001.ATX -e5"), std::string::npos);
    EXPECT_EQ(b.datei("001.LIS").find("wa2 "), std::string::npos);
    EXPECT_EQ(b.schirm.einzige().rfind("Die Extraktionsdatei:\n" + b.pfad8("5502092a.ext"), 0), 0u);
    EXPECT_FALSE(b.hat("virt092.05o"));
}

}  // namespace
