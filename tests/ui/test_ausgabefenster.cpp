#include <gtest/gtest.h>

#include <QApplication>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include "hilfen/Projekt.h"
#include "ui/Ausgabefenster.h"

namespace jorv {

namespace {

Ausgabefenster* fenster()
{
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* f = dynamic_cast<Ausgabefenster*>(w)) return f;
    return nullptr;
}

QString ausgabe()
{
    return fenster() ? fenster()->findChild<QPlainTextEdit*>("txt_ausgabe")->toPlainText() : QString();
}

Fensterstart skript(const hilfen::Arbeitsordner& ordner, const std::string& inhalt)
{
    const auto pfad = ordner.host() / "kind";
    hilfen::schreiben(pfad, "#!/bin/sh\n" + inhalt + "\n");
    std::filesystem::permissions(pfad, std::filesystem::perms::owner_all);
    return {pfad, {}, ordner.host()};
}

}  // namespace

TEST(AusgabefensterTest, ZeigtDieAusgabeSobaldSieKommtUndDasEnde)
{
    const hilfen::Arbeitsordner ordner;
    ASSERT_FALSE(Ausgabefenster::starten(skript(
        ordner, R"(printf 'eins \204\r\n'; read x; while [ ! -e los ]; do sleep 0.05; done; echo zw\ö; exit 3)")));
    ASSERT_TRUE(QTest::qWaitFor([] { return fenster() && fenster()->isVisible(); }, 10000));
    EXPECT_EQ(ausgabe(), QStringLiteral("eins ä\n"));
    hilfen::schreiben(ordner.host() / "los", "");
    ASSERT_TRUE(QTest::qWaitFor([] { return ausgabe().contains("Status"); }, 10000));
    EXPECT_TRUE(ausgabe().startsWith(QStringLiteral("eins ä\nzwö\n--- beendet nach"))) << ausgabe().toStdString();
    EXPECT_TRUE(ausgabe().endsWith(QStringLiteral("Status 3 ---")));
    fenster()->close();
    EXPECT_TRUE(QTest::qWaitFor([] { return !fenster(); }));
}

TEST(AusgabefensterTest, BeendenEndetDasProgrammUndEinStilleGutesZeigtSichNicht)
{
    const hilfen::Arbeitsordner ordner;
    ASSERT_FALSE(Ausgabefenster::starten(skript(ordner, "echo da; sleep 100")));
    ASSERT_TRUE(QTest::qWaitFor([] { return fenster()->isVisible(); }, 10000));
    fenster()->findChild<QPushButton*>("cmd_beenden")->click();
    EXPECT_TRUE(QTest::qWaitFor([] { return ausgabe().contains("Status 143"); }, 10000));
    fenster()->close();
    ASSERT_TRUE(QTest::qWaitFor([] { return !fenster(); }));
    ASSERT_FALSE(Ausgabefenster::starten(skript(ordner, "true")));
    EXPECT_FALSE(fenster()->isVisible());
    EXPECT_TRUE(QTest::qWaitFor([] { return !fenster(); }, 10000));
    EXPECT_TRUE(Ausgabefenster::starten({ordner.host() / "fehlt", {}, ordner.host()}));
    EXPECT_EQ(fenster(), nullptr);
}

}  // namespace jorv
