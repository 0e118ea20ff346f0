#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QTest>

#include "hilfen/Projekt.h"
#include "ui/Betrachter.h"

namespace jorv {

namespace {

class BetrachterFenster : public testing::Test {
protected:
    void SetUp() override
    {
        hilfen::schreiben(ordner.host() / "a.LIS",
                          "Gr\xF6\xDF"
                          "e \x80 1\r\nzwei\r\ngr\xF6\xDF"
                          "er 3\r\n");
        hilfen::schreiben(ordner.host() / "b.LIS", "");
    }
    void TearDown() override
    {
        for (auto* fenster : alle()) delete fenster;
    }
    static QList<Betrachter*> alle()
    {
        QList<Betrachter*> fenster;
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* b = dynamic_cast<Betrachter*>(w)) fenster.append(b);
        return fenster;
    }
    bool zeigen(const char* name) const { return Betrachter::zeigen(dateien, ordner.dos() + "\\" + name); }

    hilfen::Arbeitsordner ordner;
    Dateisystem dateien;
};

}  // namespace

TEST_F(BetrachterFenster, ZeigtDenTextDerCodeseiteUndJedeDateiInEinemFenster)
{
    ASSERT_TRUE(zeigen("a.LIS"));
    auto* fenster = alle().at(0);
    ASSERT_TRUE(zeigen("b.LIS"));
    hilfen::schreiben(ordner.host() / "a.LIS", "\x80 neu\r\n");
    ASSERT_TRUE(zeigen("a.LIS"));
    EXPECT_FALSE(zeigen("fehlt.LIS"));
    EXPECT_EQ(alle().size(), 2);
    EXPECT_EQ(fenster->findChild<QPlainTextEdit*>("txt_datei")->toPlainText(), QStringLiteral("€ neu\n"));
}

TEST_F(BetrachterFenster, SuchtRundUmKopiertUndSchliesstMitEscape)
{
    ASSERT_TRUE(zeigen("a.LIS"));
    QPointer<Betrachter> fenster = alle().at(0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(fenster));
    auto& text = *fenster->findChild<QPlainTextEdit*>("txt_datei");
    auto& suche = *fenster->findChild<QLineEdit*>("txt_suchen");
    EXPECT_EQ(text.toPlainText(), QStringLiteral("Größe € 1\nzwei\ngrößer 3\n"));
    QTest::keyClick(&text, Qt::Key_F, Qt::ControlModifier);
    suche.setText(QStringLiteral("GRÖß"));
    const int zeilen[] = {0, 2, 0};
    for (const int zeile : zeilen) {
        QTest::keyClick(&suche, Qt::Key_F3);
        EXPECT_EQ(text.textCursor().blockNumber(), zeile);
    }
    EXPECT_FALSE(fenster->findChild<QLabel*>("lbl_fund")->text().isEmpty());
    QTest::keyClick(&suche, Qt::Key_Escape);
    ASSERT_TRUE(fenster);
    QTest::keyClick(&text, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Größ"));
    QTest::keyClick(&text, Qt::Key_Escape);
    QTest::qWait(1);
    EXPECT_FALSE(fenster);
}

TEST_F(BetrachterFenster, DrucktAufSeiten)
{
    ASSERT_TRUE(zeigen("a.LIS"));
    QPrinter drucker;
    drucker.setOutputFormat(QPrinter::PdfFormat);
    drucker.setOutputFileName(QString::fromStdString((ordner.host() / "a.pdf").string()));
    alle().at(0)->drucken_auf(drucker);
    EXPECT_TRUE(hilfen::lesen(ordner.host() / "a.pdf").starts_with("%PDF"));
}

}  // namespace jorv
