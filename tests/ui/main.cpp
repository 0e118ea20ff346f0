// The tests of the windows: one application without a screen, as the program sets it up.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>

int main(int anzahl, char** werte)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&anzahl, werte);
    QApplication app(anzahl, werte);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    return RUN_ALL_TESTS();
}
