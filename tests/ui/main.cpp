// The windows' tests run without a screen, each in the style that the program has.
#include <gtest/gtest.h>

#include <QApplication>

int main(int anzahl, char** werte)
{
    testing::InitGoogleTest(&anzahl, werte);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(anzahl, werte);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    return RUN_ALL_TESTS();
}
