// From process start to the first painted window: our main window against a bare one with the same widgets, by turns.
//   bench_fensterstart [ROUNDS]
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>
#include <QProcess>
#include <QSplitter>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "app/start.h"
#include "daten/katalog.h"
#include "plattform/text.h"
#include "ui/Anwendung.h"
#include "ui/Bilder.h"
#include "ui/Fensterschirm.h"
#include "ui/frmHauptform.h"

namespace {

// Ends the program as soon as the window has been painted.
class Nach_dem_Malen final : public QObject {
protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override
    {
        if (ereignis->type() == QEvent::Paint && objekt->isWidgetType())
            QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
        return false;
    }
};

int nacktes_fenster()
{
    QMainWindow fenster;
    for (const char* name :
         {"Datei", "Grundeinstellungen", "Grafik", "Geometrie", "Programme", "Protokolle", "Hilfe"}) {
        QMenu* menue = fenster.menuBar()->addMenu(QString::fromLatin1(name));
        for (int i = 0; i < 7; ++i) menue->addAction(QStringLiteral("Eintrag %1").arg(i));
    }
    QToolBar* leiste = fenster.addToolBar(QStringLiteral("Leiste"));
    for (int i = 0; i < 12; ++i) leiste->addAction(jorv::programmbild(), QString::number(i));
    auto* teiler = new QSplitter;
    auto* baum = new QTreeWidget;
    baum->addTopLevelItem(new QTreeWidgetItem({QStringLiteral("Dateien")}));
    teiler->addWidget(baum);
    teiler->addWidget(new QWidget);
    fenster.setCentralWidget(teiler);
    fenster.statusBar()->showMessage(QStringLiteral("bereit"));
    fenster.resize(1280, 800);
    fenster.show();
    return QApplication::exec();
}

// The state of a program whose settings, logos and catalogue lie in the folder.
bool starten(jorv::Global& g, const QString& ordner)
{
    const auto dos = g.dateien.laufwerke().dos(ordner.toStdString());
    if (!dos || ist_fehler(jorv::start(g, {*dos + "\\JorvPlus.INI", *dos}))) return false;
    g.Hinweis1.assign(1, '0');
    return true;
}

// A network of twenty stations and the pictures that belong to the program.
bool ordner_anlegen(const QString& ordner)
{
    const QDir programme(QStringLiteral(JORV_PROGRAMME));
    for (const QString& logo : programme.entryList({QStringLiteral("*.bmp")}))
        QFile::link(programme.filePath(logo), ordner + QLatin1Char('/') + logo);
    jorv::Fensterschirm schirm;
    const jorv::Systemuhr uhr;
    jorv::Global g(schirm, uhr, jorv::Dateisystem());
    std::string liste;
    for (int i = 0; i < 20; ++i)
        liste += jorv::verkettet(1000 + i, " ", 3880000 + i * 7919 % 60000, " ", 460000 + i * 5471 % 90000,
                                 " 5020000 Ort\n");
    return starten(g, ordner) && !ist_fehler(katalog_machen(g, liste)) && !ist_fehler(ende(g));
}

int unser_fenster(const QString& ordner)
{
    jorv::Fensterschirm schirm;
    const jorv::Systemuhr uhr;
    jorv::Global g(schirm, uhr, jorv::Dateisystem());
    if (!starten(g, ordner)) return 1;
    jorv::frmHauptform form(g, schirm);
    form.show();
    form.erste_aktivierung();
    return QApplication::exec();
}

double median(std::vector<double> werte)
{
    std::sort(werte.begin(), werte.end());
    return werte[werte.size() / 2];
}

}  // namespace

int main(int anzahl, char** werte)
{
    if (anzahl == 3) {
        jorv::anwendung_vorbereiten();
        QApplication app(anzahl, werte);
        jorv::anwendung_einrichten();
        Nach_dem_Malen waechter;
        app.installEventFilter(&waechter);
        return werte[1][0] == 'n' ? nacktes_fenster() : unser_fenster(QString::fromLocal8Bit(werte[2]));
    }
    QCoreApplication app(anzahl, werte);
    const int runden = anzahl > 1 ? std::max(1, QString::fromLatin1(werte[1]).toInt()) : 15;
    QTemporaryDir ordner;
    if (!ordner_anlegen(ordner.path())) return 1;
    std::vector<double> nackt, unser;
    for (int i = 0; i < 2 * runden; ++i) {
        QElapsedTimer uhr;
        uhr.start();
        const bool bar = i % 2 == 0;
        if (QProcess::execute(QCoreApplication::applicationFilePath(), {bar ? "nackt" : "unser", ordner.path()}) != 0) {
            std::puts("STOP a window didn't come up");
            return 1;
        }
        (bar ? nackt : unser).push_back(static_cast<double>(uhr.nsecsElapsed()) / 1e6);
    }
    std::printf("bare window %.1f ms, jorvplus %.1f ms, ratio %.2f (medians of %d)\n", median(nackt), median(unser),
                median(unser) / median(nackt), runden);
    return 0;
}
