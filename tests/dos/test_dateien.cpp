// copy, del, rename and type: the folder before and after.
#include <gtest/gtest.h>

#include <chrono>

#include "dos/probe.h"

namespace jorv::dos::test {
namespace {

namespace fs = std::filesystem;
using Zeilen = std::vector<std::string>;

TEST(Dateien, copy)
{
    baumfaelle_pruefen({
        // a pattern into a folder
        {{"a.LIS=1", "B.lis=2", "c.txt=3", "o\\b.LIS=alt"},
         "copy *.LIS o",
         {"a.LIS=1", "B.lis=2", "c.txt=3", "o\\a.LIS=1", "o\\b.LIS=2"}},
        {{"a.x=1\x1A"
          "2",
          "o\\"},
         "copy *.x o\\",
         {"a.x=1\x1A"
          "2",
          "o\\a.x=1\x1A"
          "2"}},
        {{"x.prt\\y=1", ".z.prt=2", "o\\"}, "copy *.prt o", {"x.prt\\y=1", ".z.prt=2", "o\\"}, 1},
        {{"a.vrt=1"}, "copy *.ext o", {"a.vrt=1"}, 1},
        {{"d\\a=1", "d\\b=2", "o\\"}, "copy d o", {"d\\a=1", "d\\b=2", "o\\a=1", "o\\b=2"}},
        {{"d\\a=1"}, "copy d\\*.*", {"a=1", "d\\a=1"}},
        // plain names
        {{"a=1\x1A"
          "2"},
         "copy a b",
         {"a=1\x1A"
          "2",
          "b=1\x1A"
          "2"}},
        {{"a=", "o\\"}, "copy a o\ncopy a leer", {"a=", "leer=", "o\\a="}},
        {{"a=1", "B=alt"}, "copy A b", {"a=1", "B=1"}},
        {{"a=1"}, "copy a fehlt\\b\ncopy a fehlt\\", {"a=1"}, 2},
        {{"a=1"}, "copy a A\ncopy a .\ncopy a", {"a=1"}, 3},
        {{"a=1", "ä b.txt=2", "o ö\\"}, "copy \"Ä B.TXT\" \"o ö\"", {"a=1", "ä b.txt=2", "o ö\\ä b.txt=2"}},
        {{"001.log=1", "j\\l\\"}, "copy 001.log j\\l\\5501-5502.lis", {"001.log=1", "j\\l\\5501-5502.lis=1"}},
        {{"a=1"}, "copy a b c\ncopy\ncopy fehlt b", {"a=1"}, 3},
        // joined in name order, as text
        {{"b.x=B\r\n\x1Arest", "A.x=A\r\n", "c.y=C"},
         "copy *.x alles",
         {"b.x=B\r\n\x1Arest", "A.x=A\r\n", "c.y=C", "alles=A\r\nB\r\n\x1A"}},
        {{"b.x=B"}, "copy *.x c.x\ncopy *.x d.x", {"b.x=B", "c.x=B\x1A", "d.x=BB\x1A"}},
        {{"b.x=B", "c.x=C"}, "copy *.x c.x", {"b.x=B", "c.x=B\x1A"}},
        {{"c.x=C"}, "copy *.x c.x", {"c.x=C"}, 1},
        {{"a.x=1", "b.x=2"}, "copy *.x fehlt\\c", {"a.x=1", "b.x=2"}, 1},
    });
}

TEST(Dateien, copy_behaelt_die_zeit)
{
    Probe probe;
    probe.anlegen({"a.x=1", "o\\"});
    const auto zeit = fs::file_time_type::clock::now() - std::chrono::hours(1000);
    fs::last_write_time(probe.ort("a.x"), zeit);
    EXPECT_EQ(probe.lauf("copy *.x o\ncopy a.x b\n").meldungen, 0);
    for (const auto* name : {"o\\a.x", "b"}) EXPECT_EQ(fs::last_write_time(probe.ort(name)), zeit) << name;
}

TEST(Dateien, del)
{
    baumfaelle_pruefen({
        {{"virt=1", "VIRT092.05o=", "xvirt=3", "virt.d\\x="}, "del virt*.*", {"xvirt=3", "virt.d\\x="}},
        {{"a=1", "b=2", "c=3"}, "del A b", {"c=3"}},
        {{"a=1"}, "del b\ndel *.x\ndel fehlt\\a", {"a=1"}, 3},
        {{"ü ä.txt=1", "b=2"}, "del \"Ü Ä.TXT\"", {"b=2"}},
        {{"virt092.05o=", "virt092.05n=", "virt092.5o="}, "del virt092.??o", {"virt092.05n=", "virt092.5o="}},
        // Everything is only deleted after a yes, and nobody answers.
        {{"a=1", "d\\b=2"}, "del *.*\ndel *\ndel d", {"a=1", "d\\b=2"}},
        {{"a=1", "d\\b=2", "d\\e\\f=3"}, "del /q *.*\ndel d /q", {"d\\e\\f=3"}},
        {{"a=1", "d\\b=2"}, "echo J| del d", {"a=1", "d\\"}},
    });
}

TEST(Dateien, del_laesst_schreibgeschuetzte)
{
    Probe probe;
    probe.anlegen({"a.x=1", "b.x=2", "c.x=3"});
    fs::permissions(probe.ort("b.x"), fs::perms::owner_read);
    EXPECT_EQ(probe.lauf("del *.x").meldungen, 1);
    EXPECT_EQ(probe.baum(), Zeilen{"b.x=2"});
    EXPECT_EQ(probe.lauf("copy probe.bat b.x").meldungen, 1);
    EXPECT_EQ(probe.lauf("echo 3 > a.x\ncopy a.x b.x").meldungen, 1);
    EXPECT_EQ(probe.inhalt("b.x"), "2");
}

TEST(Dateien, rename)
{
    baumfaelle_pruefen({
        {{"a=1"}, "rename a b ", {"b=1"}},
        {{"virt0920.rxo=1"}, "rename virt0920.rxo  virt55010920.05o", {"virt55010920.05o=1"}},
        {{"virt092.05n=1"}, "rename virt*.??n virt5501092a.05n", {"virt5501092a.05n=1"}},
        {{"a=1"}, "rename virt*.??n virt5501092a.05n", {"a=1"}, 1},
        {{"virt2.05n=2", "virt1.05n=1", "VIRT0.05n=0"},
         "rename virt*.??n virtx.05n",
         {"virtx.05n=0", "virt1.05n=1", "virt2.05n=2"},
         2},
        {{"a=1", "B=2"}, "rename a b\nrename fehlt c", {"a=1", "B=2"}, 2},
        {{"ab.txt=1"}, "rename AB.TXT Ab.Txt", {"Ab.Txt=1"}},
        {{"ä.txt=1"}, "rename Ä.txt Ö.TXT", {"Ö.TXT=1"}},
        {{"d\\a=1", "f=2"}, "rename d e\nrename e f\nrename d* g", {"e\\a=1", "f=2"}, 2},
        {{"d\\a=1"}, "rename d\\a b", {"d\\b=1"}},
        {{"d\\a=1"}, "rename d\\a d\\b\nrename d\\a\nrename d\\a x?", {"d\\a=1"}, 3},
        {{"a b.txt=1"}, "rename \"a b.txt\" \"c d.txt\"", {"c d.txt=1"}},
        {{"a=1"}, "rename a \"b. \"", {"b=1"}},
    });
}

TEST(Dateien, type)
{
    baumfaelle_pruefen({
        {{"a=1\r\n\x1A\xE4", "l=0"},
         "type a >> l\ntype A > n",
         {"a=1\r\n\x1A\xE4", "l=01\r\n\x1A\xE4", "n=1\r\n\x1A\xE4"}},
        {{"a="}, "type a >> n", {"a=", "n="}},
        {{"d\\a=x"}, "type fehlt\ntype d\ntype d\\a > n", {"d\\a=x", "n=x"}, 2},
        {{"wav2log.txt=v"},
         "if exist wav2log.txt type wav2log.txt >> 5501.vrt\nif exist wav2.err type wav2.err >> 001.ERR",
         {"wav2log.txt=v", "5501.vrt=v"}},
    });
}

}  // namespace
}  // namespace jorv::dos::test
