#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QImageReader>
#include <QListWidget>
#include <QTextBlock>
#include <QTextBrowser>
#include <algorithm>

#include "hilfen/Projekt.h"
#include "projekt/titel.h"
#include "ui/Handbuchfenster.h"

namespace jorv {

// What the program looks for beside itself was made with the build.
TEST(Beilagen, LogosJederRegionUndJedesModusZeichenUndTexteSindDa)
{
    hilfen::Pruefstand p;
    const auto host = [&](const std::string& dos) { return QString::fromStdString(p.g.dateien.host(dos).string()); };
    for (const char* land : {"KOR", "MT"})
        for (const char* modus : {"", "1", "2", "3", "4"}) {
            p.g.Land = land;
            p.g.Verfahrensname = *modus ? "Muster" : "";
            p.g.Verfahrensmodus = modus;
            EXPECT_EQ(QImage(host(Logo_laden(p.g))).size(), QSize(160, 60)) << land << modus;
        }
    const QString ordner = QStringLiteral(JORV_PROGRAMME "/");
    EXPECT_EQ(QImageReader(ordner + "Jorv.ICO").imageCount(), 4);
    EXPECT_TRUE(hilfen::lesen(JORV_PROGRAMME "/JorvPlus-Handbuch.pdf").starts_with("%PDF"));
    EXPECT_NE(hilfen::lesen(JORV_PROGRAMME "/Jorv-Neuerungen.txt").find("L\xE4uft auf Linux"), std::string::npos);
}

TEST(Beilagen, DasHandbuchZeigtSichAuchImEigenenFenster)
{
    handbuch_zeigen(QString::fromStdString(hilfen::lesen(JORV_PROGRAMME "/JorvPlus-Handbuch.md")));
    const auto oben = QApplication::topLevelWidgets();
    const auto stelle = std::find_if(
        oben.begin(), oben.end(), [](const QWidget* w) { return w->objectName() == QLatin1String("Handbuchfenster"); });
    ASSERT_NE(stelle, oben.end());
    auto& verzeichnis = *(*stelle)->findChild<QListWidget*>();
    const auto eintrag = verzeichnis.findItems(QStringLiteral("Grenzen"), Qt::MatchEndsWith);
    ASSERT_EQ(eintrag.size(), 1);
    verzeichnis.setCurrentItem(eintrag.front());
    EXPECT_EQ((*stelle)->findChild<QTextBrowser*>()->textCursor().block().text(), QStringLiteral("Grenzen"));
    delete *stelle;
}

}  // namespace jorv
