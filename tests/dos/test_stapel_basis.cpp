// The batches of baselines and of the I95 evaluation as the workbench writes them, and what they leave.
#include <gmock/gmock.h>

#include "dos/ersatz.h"

namespace jorv::dos::test {
namespace {

using testing::UnorderedElementsAre;

constexpr std::string_view batch_basislinie = R"(if not exist jorv_out mkdir jorv_out
cd jorv_out
if not exist dat_bas mkdir dat_bas
if not exist lis_bas mkdir lis_bas
if not exist prot_bas mkdir prot_bas
if not exist export mkdir export
cd..
wa2 55010920.05o 55020920.05o +ACF001.ATX +TL1 +R30 -e15 -SVG05 +L2 +U32 +E-NS1,NS2 +FE001.ext +FL001.log +FS001.sol
if exist 001.log copy 001.log 001.LIS
if exist 001.LIS type 001.LIS >> jorv_out\lis_bas\001.LIS
if exist 001.log copy 001.log jorv_out\lis_bas\55010920-55020920.lis
if exist 001.LIS del 001.LIS
if exist 001.log del 001.log
if exist 001.sol copy 001.sol jorv_out\prot_bas\55010920-55020920.prt
if exist 001.sol del 001.sol
wa2 55010920.05o 55020920.05o +ACF001.ATX +TL1 +R30 -e15 -SVG05 +L1 +U32 +SE +FS001.EMD
if exist 001.EMD type 001.EMD >> jorv_out\export\001.EMD
if exist 001.EMD del 001.EMD
if exist wa2ext.txt del wa2ext.txt
if exist wa2log.txt del wa2log.txt
REM
REM ====
REM Ende
REM ====
REM
)";

TEST(Stapel, eine_basislinie)
{
    for (const std::string_view ordner : {"D:\\Prüf Verfahren äöü", "\\\\server\\freigabe\\Grüße aus A"}) {
        const Verfahren verfahren{ordner,
                                  {"55010920.05o=r", "55020920.05o=s", "jorv_out\\lis_bas\\001.LIS=alt\n",
                                   "jorv_out\\prot_bas\\55010920-55020920.prt=alt"}};
        EXPECT_THAT(
            verfahren.ausgefuehrt(batch_basislinie),
            UnorderedElementsAre("55010920.05o=r", "55020920.05o=s", "001.ext=ext", "jorv_out\\dat_bas\\",
                                 "jorv_out\\lis_bas\\001.LIS=alt\nlis", "jorv_out\\lis_bas\\55010920-55020920.lis=lis",
                                 "jorv_out\\prot_bas\\55010920-55020920.prt=sol", "jorv_out\\export\\001.EMD=sol"));
    }
    const Verfahren ohne{"E:\\ohne Datei", {"55020920.05o=s"}};
    EXPECT_THAT(ohne.ausgefuehrt(batch_basislinie),
                UnorderedElementsAre("55020920.05o=s", "jorv_out\\dat_bas\\", "jorv_out\\lis_bas\\",
                                     "jorv_out\\prot_bas\\", "jorv_out\\export\\"));
}

constexpr std::string_view batch_basislinien = R"(if exist 001.MRK del 001.MRK
if exist 001.TEM del 001.TEM
if exist 001.LIS del 001.LIS
if exist jorv_out\prot_bas rmdir jorv_out\prot_bas /s/q
mkdir jorv_out\prot_bas
echo 1(2)
wasoft 55010920.05o 55020920.05o +A001.ATX -0 +R30 -e5 >> 001.LIS
waprt 55020920.prt -VSbscd >> 001.MRK
waprt 55020920.prt +VS0sadveop >> 001.TEM
rename 55020920.prt 55010920._55020920.prt
echo 2(2)
wasoft 55030920.05o 55020920.05o +A001.ATX -0 +R30 -e5 >> 001.LIS
waprt 55020920.prt -VSbscd >> 001.MRK
waprt 55020920.prt +VS0sadveop >> 001.TEM
rename 55020920.prt 55030920._55020920.prt
goto :kopieren
REM
:fehler1
echo Fehler: Es konnte keine virtuelle Station erzeugt werden! Abbruch der Auswertung!
pause
goto :ende
REM
:kopieren
REM Basislinien-Protokolle
copy *.prt jorv_out\prot_bas
del *.prt
goto :ende
REM
:ende
)";

TEST(Stapel, alle_basislinien)
{
    const std::string lis =
        "001.LIS=wasoft 55010920.05o 55020920.05o +A001.ATX -0 +R30 -e5\n"
        "wasoft 55030920.05o 55020920.05o +A001.ATX -0 +R30 -e5\n";
    const std::string mrk = "waprt 55020920.prt -VSbscd\n", tem = "waprt 55020920.prt +VS0sadveop\n";
    const Verfahren verfahren{"D:\\Prüf Verfahren äöü",
                              {"55010920.05o=r", "55020920.05o=s", "55030920.05o=t", "001.MRK=alt", "001.TEM=alt",
                               "jorv_out\\prot_bas\\alt\\x=1", "jorv_out\\dat_bas\\y=bleibt"}};
    EXPECT_THAT(verfahren.ausgefuehrt(batch_basislinien),
                UnorderedElementsAre("55010920.05o=r", "55020920.05o=s", "55030920.05o=t", lis,
                                     verkettet("001.MRK=", mrk, mrk), verkettet("001.TEM=", tem, tem),
                                     "jorv_out\\dat_bas\\y=bleibt", "jorv_out\\prot_bas\\55010920._55020920.prt=P",
                                     "jorv_out\\prot_bas\\55030920._55020920.prt=P"));
    // The second baseline fails: its lines add nothing and the first one's protocol stays what it is.
    const Verfahren ohne_dritte{"\\\\server\\freigabe\\ü", {"55010920.05o=r", "55020920.05o=s"}};
    EXPECT_THAT(ohne_dritte.ausgefuehrt(batch_basislinien),
                UnorderedElementsAre("55010920.05o=r", "55020920.05o=s", lis, "001.MRK=" + mrk, "001.TEM=" + tem,
                                     "jorv_out\\prot_bas\\55010920._55020920.prt=P"));
}

constexpr std::string_view batch_i95 = R"(if exist 001.UTM del 001.UTM
if exist 001.LIS del 001.LIS
echo -- I95-Auswertung...
wasoft 0920 0384,0585,0587,0640 +k +Vvirt,58300920.05o +A001.ATX +C001.COO >> 001.LIS
if exist wav2.err type wav2.err >> 001.ERR
if exist wav2.err del wav2.err
if not exist virt0920.??o goto :fehler1
if not exist virt0920.rxo rename virt0920.??o virt0920.rxo 
washmod model.wam +Si
goto :ende
REM
REM ============
REM Fehlerliste:
REM ============
REM
:fehler1
echo Fehler: Es konnte keine virtuelle Station erzeugt werden! Abbruch der Auswertung!
pause
goto :ende
REM
REM ====
REM Ende
REM ====
REM
:ende
)";

TEST(Stapel, i95)
{
    const std::string lis = "001.LIS=wasoft 0920 0384,0585,0587,0640 +k +Vvirt,58300920.05o +A001.ATX +C001.COO\n";
    const Verfahren verfahren{"D:\\Prüf Verfahren äöü", {"58300920.05o=r", "001.LIS=alt", "001.UTM=alt"}};
    EXPECT_THAT(verfahren.ausgefuehrt(batch_i95),
                UnorderedElementsAre("58300920.05o=r", lis, "virt0920.rxo=O", "virt0920.05n=N", "virt0920.05g=G",
                                     "virt0920.vrt=V", "washmod.log=model.wam +Si\n"));
    const Verfahren ohne{"\\\\server\\freigabe\\ü ü", {"58300920.05o=r", "KEINVRS=", "001.ERR=alt"}};
    EXPECT_THAT(ohne.ausgefuehrt(batch_i95), UnorderedElementsAre("58300920.05o=r", "KEINVRS=", "001.ERR=altF", lis));
}

}  // namespace
}  // namespace jorv::dos::test
