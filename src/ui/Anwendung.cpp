#include "ui/Anwendung.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "ui/Bilder.h"

namespace jorv {

void anwendung_vorbereiten()
{
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

void anwendung_einrichten()
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setApplicationName(QStringLiteral("jorvplus"));
    QApplication::setDesktopFileName(QStringLiteral("jorvplus"));
    QApplication::setWindowIcon(programmbild());
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    auto* deutsch = new QTranslator(qApp);
    if (deutsch->load(QStringLiteral("qtbase_de"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(deutsch);
}

}  // namespace jorv
