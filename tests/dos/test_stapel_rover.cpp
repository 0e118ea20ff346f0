// The batches of rovers and of the date tool as the workbench writes them, and what they leave.
#include <gmock/gmock.h>

#include "dos/ersatz.h"

namespace jorv::dos::test {
namespace {

using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

constexpr std::string_view batch_virtuell = R"(if exist 001.UTM del 001.UTM
if exist jorv_out\dat_ext\55010920.05o.ext del jorv_out\dat_ext\55010920.05o.ext
if exist jorv_out\dat_rov\55010920.05o.UTM del jorv_out\dat_rov\55010920.05o.UTM
if exist jorv_out\krz_rov\55010920.05o.KRZ del jorv_out\krz_rov\55010920.05o.KRZ
if exist jorv_out\lis_rov\55010920.05o.LIS del jorv_out\lis_rov\55010920.05o.LIS
if exist wav2log.txt del wav2log.txt
if exist virt*.* del virt*.*
if exist wa2log.txt del wa2log.txt
if exist wa2sol.txt del wa2sol.txt
if exist wa2ext.txt del wa2ext.txt
if not exist jorv_out mkdir jorv_out
cd jorv_out
if not exist pro_vrs mkdir prot_vrs
if not exist rin_vrs mkdir rin_vrs
if not exist dat_rov mkdir dat_rov
if not exist krz_rov mkdir krz_rov
if not exist prot_rov mkdir prot_rov
if not exist lis_rov mkdir lis_rov
if not exist dat_ext mkdir dat_ext
cd ..
wav2 55010920.05o 0384,0585 +PRO +E +A001.ATX -e12 +b081500 +e091500 >> 001.LIS
if exist wav2log.txt type wav2log.txt >> 55010920.vrt
copy *.vrt jorv_out\prot_vrs
if not exist virt092.??o goto :fehler1
wa2 virt092.05o 55010920.05o +ACF001.ATX -e12 -M0 -N0 -SVG05 +L2 +U32  +E-NS2,CU2 +FE55010920.ext +FL55010920.05o.LIS +FS55010920.prt >> 001.LIS
rename virt092.05o virt55010920.05o
rename virt*.??n virt55010920.05n
rename virt*.??g virt55010920.05g
goto :kopieren
REM
REM ============
REM Fehlerliste:
REM ============
REM
:fehler1
echo Fehler: Es konnte keine virtuelle Station erzeugt werden! Abbruch der Auswertung!
goto :ende
REM
REM =============================================
REM Kopieren der Dateien und Erzeugung der Listen
REM =============================================
REM
:kopieren
REM wav2Log-Dateien
del wav2log.txt
del *.vrt
REM VRS-RINEX
copy virt*.* jorv_out\rin_vrs
del virt*.*
REM Ergebnisse
copy *.ext jorv_out\dat_ext
copy *.LIS jorv_out\lis_rov
del *.LIS
copy *.prt jorv_out\prot_rov
del *.prt
goto :ende
REM
REM ====
REM Ende
REM ====
REM
:ende
)";

constexpr std::string_view wav2_zeile = "wav2 55010920.05o 0384,0585 +PRO +E +A001.ATX -e12 +b081500 +e091500\n";
constexpr std::string_view wa2_zeile =
    "wa2 virt092.05o 55010920.05o +ACF001.ATX -e12 -M0 -N0 -SVG05 +L2 +U32 +E-NS2,CU2 +FE55010920.ext "
    "+FL55010920.05o.LIS +FS55010920.prt\n";

// On a drive and on a share, where drive line and cd line fail and the folder of the call file stays current.
constexpr std::string_view projektordner[] = {"D:\\Prüf Verfahren äöü", "\\\\server\\freigabe\\Grüße aus A",
                                              "E:\\a,b;c=d\\(1)\\ß! +x"};

TEST(Stapel, rover_mit_virtueller_station)
{
    for (const auto ordner : projektordner) {
        const Verfahren verfahren{ordner,
                                  {"55010920.05o=r", "001.ATX=a", "001.UTM=alt", "virt1.05o=alt", "wa2sol.txt=alt",
                                   "jorv_out\\dat_rov\\55010920.05o.UTM=alt", "jorv_out\\lis_rov\\55010920.05o.LIS=alt",
                                   "jorv_out\\lis_rov\\55020920.05o.LIS=andere"}};
        EXPECT_THAT(
            verfahren.ausgefuehrt(batch_virtuell),
            UnorderedElementsAre("55010920.05o=r", "001.ATX=a", "55010920.ext=ext", "wa2ext.txt=x", "wa2log.txt=x",
                                 "jorv_out\\dat_ext\\55010920.ext=ext", "jorv_out\\dat_rov\\", "jorv_out\\krz_rov\\",
                                 verkettet("jorv_out\\lis_rov\\001.LIS=", wav2_zeile, wa2_zeile),
                                 "jorv_out\\lis_rov\\55010920.05o.LIS=lis",
                                 "jorv_out\\lis_rov\\55020920.05o.LIS=andere", "jorv_out\\prot_rov\\55010920.prt=sol",
                                 "jorv_out\\prot_vrs\\55010920.vrt=L", "jorv_out\\rin_vrs\\virt55010920.05o=O",
                                 "jorv_out\\rin_vrs\\virt55010920.05n=N", "jorv_out\\rin_vrs\\virt55010920.05g=G"))
            << ordner;
    }
}

TEST(Stapel, rover_ohne_virtuelle_station)
{
    const Verfahren verfahren{projektordner[0], {"55010920.05o=r", "KEINVRS="}};
    EXPECT_THAT(verfahren.ausgefuehrt(batch_virtuell),
                UnorderedElementsAre("55010920.05o=r", "KEINVRS=", verkettet("001.LIS=", wav2_zeile), "55010920.vrt=L",
                                     "wav2log.txt=L", "jorv_out\\dat_ext\\", "jorv_out\\dat_rov\\",
                                     "jorv_out\\krz_rov\\", "jorv_out\\lis_rov\\", "jorv_out\\prot_rov\\",
                                     "jorv_out\\prot_vrs\\55010920.vrt=L", "jorv_out\\rin_vrs\\"));
}

TEST(Stapel, rover_nach_einem_fehlschlag)
{
    // The protocols of the failed run are still there, and the second one appends to them.
    const Verfahren verfahren{projektordner[1], {"55010920.05o=r", "KEINVRS="}};
    EXPECT_THAT(
        verfahren.ausgefuehrt(batch_virtuell, "KEINVRS"),
        UnorderedElementsAre("55010920.05o=r", "55010920.ext=ext", "wa2ext.txt=x", "wa2log.txt=x",
                             "jorv_out\\dat_ext\\55010920.ext=ext", "jorv_out\\dat_rov\\", "jorv_out\\krz_rov\\",
                             verkettet("jorv_out\\lis_rov\\001.LIS=", wav2_zeile, wav2_zeile, wa2_zeile),
                             "jorv_out\\lis_rov\\55010920.05o.LIS=lis", "jorv_out\\prot_rov\\55010920.prt=sol",
                             "jorv_out\\prot_vrs\\55010920.vrt=LL", "jorv_out\\rin_vrs\\virt55010920.05o=O",
                             "jorv_out\\rin_vrs\\virt55010920.05n=N", "jorv_out\\rin_vrs\\virt55010920.05g=G"));
}

constexpr std::string_view batch_fremd = R"(if exist 001.UTM del 001.UTM
if exist jorv_out\dat_ext\55010920.05o.ext del jorv_out\dat_ext\55010920.05o.ext
if exist wa2log.txt del wa2log.txt
if exist wa2sol.txt del wa2sol.txt
if exist wa2ext.txt del wa2ext.txt
if not exist jorv_out mkdir jorv_out
cd jorv_out
if not exist dat_ext mkdir dat_ext
if not exist prot_rov mkdir prot_rov
if not exist dat_rov mkdir dat_rov
if not exist krz_rov mkdir krz_rov
if not exist lis_rov mkdir lis_rov
cd ..
wa2 virt092a.05o 55010920.05o +ACF001.ATX -e10 -M0 -N0 +L2 +U32 +E-NL2,CU2 +FE55010920.ext +FL55010920.log +FS55010920.prt >> 001.LIS
if exist 55010920.log type 55010920.log >> 001.LIS
if exist 001.LIS type 001.LIS >> jorv_out\lis_rov\001.LIS
if exist 001.log copy 55010920.log jorv_out\lis_rov\55010920.05o.LIS
goto :kopieren
REM
:kopieren
REM Ergebnisse
copy *.ext jorv_out\dat_ext
copy *.LIS jorv_out\lis_rov
del *.log
REM Rover-Protokolle
copy *.prt jorv_out\prot_rov
del *.prt
goto :ende
REM
:ende
)";

TEST(Stapel, rover_mit_fremder_virtueller_station)
{
    const std::string lis =
        "wa2 virt092a.05o 55010920.05o +ACF001.ATX -e10 -M0 -N0 +L2 +U32 +E-NL2,CU2 +FE55010920.ext "
        "+FL55010920.log +FS55010920.prt\nlis";
    const Verfahren verfahren{projektordner[1],
                              {"55010920.05o=r", "virt092a.05o=V", "alt.LOG=x", "jorv_out\\lis_rov\\001.LIS=alt"}};
    EXPECT_THAT(verfahren.ausgefuehrt(batch_fremd),
                UnorderedElementsAre("55010920.05o=r", "virt092a.05o=V", "001.LIS=" + lis, "55010920.ext=ext",
                                     "wa2ext.txt=x", "wa2log.txt=x", "jorv_out\\dat_ext\\55010920.ext=ext",
                                     "jorv_out\\dat_rov\\", "jorv_out\\krz_rov\\", "jorv_out\\lis_rov\\001.LIS=" + lis,
                                     "jorv_out\\prot_rov\\55010920.prt=sol"));
    // Without the station's file nothing is computed, and the lists are there but empty.
    const Verfahren ohne{projektordner[0], {"55010920.05o=r"}};
    EXPECT_THAT(ohne.ausgefuehrt(batch_fremd),
                UnorderedElementsAre("55010920.05o=r", "001.LIS=", "jorv_out\\dat_ext\\", "jorv_out\\dat_rov\\",
                                     "jorv_out\\krz_rov\\", "jorv_out\\lis_rov\\001.LIS=", "jorv_out\\prot_rov\\"));
}

constexpr std::string_view batch_gesamt = R"(if exist 001.UTM del 001.UTM
if exist 001.LIS del 001.LIS
if exist 001.ERR del 001.ERR
if exist 001.KRZ del 001.KRZ
if exist virt*.* del virt*.*
if exist jorv_out rmdir jorv_out /s/q
mkdir jorv_out
cd jorv_out
mkdir rin_vrs
mkdir prot_rov
mkdir prot_vrs
cd ..
echo 1(3)
wasoft 0920 0384,0585 +Vvirt,55010920.05o +A001.ATX +C001.COO >> 001.LIS
if exist wav2.err type wav2.err >> 001.ERR
if exist wav2.err del wav2.err
if not exist virt0920.??o goto :fehler1
if not exist virt0920.rxo rename virt0920.??o virt0920.rxo 
wasoft virt0920.rxo 55010920.05o +A001.ATX -0 >> 001.LIS
if exist wav2.err type wav2.err >> 001.ERR
if exist wav2.err del wav2.err
waprt 55010920.prt -SUd +U32 +F >> 001.UTM
waprt 55010920.prt -Sd0avpreoHAB +F >> 001.KRZ
rename virt0920.rxo  virt55010920.05o
rename virt0920.vrt 55010920.vrt
echo 2(3)
echo 3(3)
wasoft 0920 0384 +Vvirt,55020920.05o +A001.ATX +C001.COO >> 001.LIS
if exist wav2.err type wav2.err >> 001.ERR
if exist wav2.err del wav2.err
if not exist virt0920.??o goto :fehler1
if not exist virt0920.rxo rename virt0920.??o virt0920.rxo 
wasoft virt0920.rxo 55020920.05o +A001.ATX -0 >> 001.LIS
waprt 55020920.prt -SUd +U32 +F >> 001.UTM
waprt 55020920.prt -Sd0avpreoHAB +F >> 001.KRZ
rename virt0920.rxo  virt55020920.05o
rename virt0920.vrt 55020920.vrt
goto :kopieren
REM
:fehler1
echo Fehler: Es konnte keine virtuelle Station erzeugt werden! Abbruch der Auswertung!
pause
goto :ende
REM
:kopieren
REM VRS-RINEX-Dateien
copy virt*.??o jorv_out\rin_vrs
del virt*.??o
REM Rover-Protokolle
copy *.prt jorv_out\prot_rov
del *.prt
REM VRS-Protokolle
copy *.vrt jorv_out\prot_vrs
del *.vrt
goto :ende
REM
:ende
)";

TEST(Stapel, alle_rover)
{
    const Verfahren verfahren{projektordner[0],
                              {"55010920.05o=r", "55020920.05o=s", "001.LIS=alt", "001.ERR=alt", "001.UTM=alt",
                               "virt0910.vrt=alt", "jorv_out\\alt\\x=1", "jorv_out\\prot_rov\\alt.prt=1"}};
    EXPECT_THAT(
        verfahren.ausgefuehrt(batch_gesamt),
        UnorderedElementsAre("55010920.05o=r", "55020920.05o=s", "virt0920.05n=N", "virt0920.05g=G",
                             "001.LIS=wasoft 0920 0384,0585 +Vvirt,55010920.05o +A001.ATX +C001.COO\n"
                             "wasoft virt0920.rxo 55010920.05o +A001.ATX -0\n"
                             "wasoft 0920 0384 +Vvirt,55020920.05o +A001.ATX +C001.COO\n"
                             "wasoft virt0920.rxo 55020920.05o +A001.ATX -0\n",
                             "001.UTM=waprt 55010920.prt -SUd +U32 +F\nwaprt 55020920.prt -SUd +U32 +F\n",
                             "001.KRZ=waprt 55010920.prt -Sd0avpreoHAB +F\nwaprt 55020920.prt -Sd0avpreoHAB +F\n",
                             "jorv_out\\rin_vrs\\virt55010920.05o=O", "jorv_out\\rin_vrs\\virt55020920.05o=O",
                             "jorv_out\\prot_rov\\55010920.prt=P", "jorv_out\\prot_rov\\55020920.prt=P",
                             "jorv_out\\prot_vrs\\55010920.vrt=V", "jorv_out\\prot_vrs\\55020920.vrt=V"));
}

TEST(Stapel, alle_rover_ohne_virtuelle_station)
{
    const Verfahren verfahren{projektordner[2], {"55010920.05o=r", "KEINVRS=", "jorv_out\\alt\\x=1"}};
    EXPECT_THAT(verfahren.ausgefuehrt(batch_gesamt),
                UnorderedElementsAre("55010920.05o=r", "KEINVRS=", "001.ERR=F",
                                     "001.LIS=wasoft 0920 0384,0585 +Vvirt,55010920.05o +A001.ATX +C001.COO\n",
                                     "jorv_out\\rin_vrs\\", "jorv_out\\prot_rov\\", "jorv_out\\prot_vrs\\"));
}

TEST(Stapel, gps_zeit)
{
    struct Fall {
        std::string_view ordner, wurzelzeilen, aufruf, antwort;
    };
    const Fall faelle[] = {
        {"D:\\Prüf Verfahren", "D:\ncd \\Prüf Verfahren", "WATIME 2016 12 1 12 0 0 > Jorv.tmp",
         "2016 12 1 12 0 0|Prüf Verfahren"},
        {"D:\\Ä", "D:\ncd \\Ä", "WATIME 1925/4 > Jorv.tmp", "1925/4|Ä"},
        {"\\\\server\\freigabe\\ö 1", "\\\\server\ncd \\freigabe\\ö 1", "WATIME 1925/4 > Jorv.tmp", "1925/4|ö 1"},
    };
    for (const auto& fall : faelle) {
        Probe probe(fall.ordner);
        ersatz_anlegen(probe);
        probe.anlegen({"Jorv.tmp=alt"});
        probe.batch("Jorv.BAT", verkettet("@echo off\npath %path%;", exe_verzeichnis, '\n', fall.wurzelzeilen, '\n',
                                          fall.aufruf, '\n'));
        probe.als_programm("Jorv.BAT");
        EXPECT_EQ(probe.inhalt("Jorv.tmp"), verkettet("01.12.2016 12:00:00 336(1)\n", fall.antwort, '\n'));
        // Without the tool the answer is there and empty.
        std::filesystem::remove(probe.ort("D:\\Hilfs programme\\WATIME"));
        probe.als_programm("Jorv.BAT");
        EXPECT_EQ(probe.inhalt("Jorv.tmp"), "");
    }
}

}  // namespace
}  // namespace jorv::dos::test
