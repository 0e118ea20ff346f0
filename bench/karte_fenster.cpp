// Redraw of the map for very many stations, against the cheapest common way in the same run: one ready-made symbol, of
// each cell of 4 x 4 pixels only the first point.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <cstdlib>
#include <random>
#include <vector>

#include "hilfen/Pruefschirm.h"
#include "karte/karte.h"
#include "ui/Zeichnung.h"

namespace {

using namespace jorv;

constexpr int breite = 1600, hoehe = 1000;

void anwendung()
{
    static const bool gesetzt = ::setenv("QT_QPA_PLATFORM", "offscreen", 0) == 0;
    static int anzahl = gesetzt ? 1 : 0;
    static char name[] = "bench", *werte[] = {name, nullptr};
    static QGuiApplication app(anzahl, werte);
}

QImage leinwand()
{
    QImage bild(breite, hoehe, QImage::Format_ARGB32_Premultiplied);
    bild.fill(Qt::white);
    return bild;
}

// Stations all over a square of 300 km.
struct Netz {
    explicit Netz(int anzahl) : g(schirm, uhr, Dateisystem())
    {
        std::mt19937 zufall(1);
        std::uniform_real_distribution<double> ort(0, 300000);
        for (int i = 0; i < anzahl; ++i) {
            TOREL_Punkt_Satz station;
            station.Rechtswert = 350000 + ort(zufall);
            station.Hochwert = 5600000 + ort(zufall);
            benchmark::DoNotOptimize(g.TOREL_Punkt.anfuegen(station));
        }
        g.PKZ.assign(1, '0');
        karte.groesse_setzen(breite, hoehe);
        karte.m_grafik_orginal();
    }
    hilfen::Pruefschirm schirm;
    Systemuhr uhr;
    Global g;
    Karte karte{g};
};

void unsere(benchmark::State& stand)
{
    anwendung();
    Netz netz(static_cast<int>(stand.range(0)));
    for (auto _ : stand) {
        QImage bild = leinwand();
        QPainter maler(&bild);
        malen(maler, netz.karte.bild());
        benchmark::DoNotOptimize(bild.bits());
    }
}

void vergleich(benchmark::State& stand)
{
    anwendung();
    Netz netz(static_cast<int>(stand.range(0)));
    std::vector<QPointF> punkte;
    for (const auto& p : netz.g.TOREL_Punkt) {
        const auto ort = netz.karte.ansicht().bild({p.Rechtswert, p.Hochwert});
        punkte.emplace_back(ort.x, ort.y);
    }
    QPixmap symbol(11, 11);
    symbol.fill(Qt::transparent);
    {
        QPainter m(&symbol);
        m.setRenderHint(QPainter::Antialiasing);
        m.setBrush(QColor(0, 255, 0));
        m.drawEllipse(QPointF(5.5, 5.5), 4, 4);
    }
    for (auto _ : stand) {
        QImage bild = leinwand();
        QPainter maler(&bild);
        std::vector<bool> belegt(breite / 4 * (hoehe / 4));
        for (const auto& p : punkte) {
            const auto zelle =
                static_cast<std::size_t>(static_cast<int>(p.y()) / 4 * (breite / 4) + static_cast<int>(p.x()) / 4);
            if (zelle >= belegt.size() || belegt[zelle]) continue;
            belegt[zelle] = true;
            maler.drawPixmap(QPointF(static_cast<int>(p.x()) - 5, static_cast<int>(p.y()) - 5), symbol);
        }
        benchmark::DoNotOptimize(bild.bits());
    }
}

BENCHMARK(unsere)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(vergleich)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

}  // namespace
