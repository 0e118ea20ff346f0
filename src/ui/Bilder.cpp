#include "ui/Bilder.h"

#include <QIconEngine>
#include <QPainterPath>
#include <QPixmap>
#include <array>
#include <cmath>
#include <numbers>

namespace jorv {

namespace {

using Zeichner = void (*)(QPainter&);

constexpr QRgb gruen = 0xff2e8b3d, gelb = 0xfff2c230, rot = 0xffc62f2f, grau = 0xff8a8f96, blau = 0xff2b63b8,
               dunkel = 0xff3a3f45;

// A picture drawn on a grid of 16 by 16 units, whatever its size in pixels.
class Rasterbild final : public QIconEngine {
public:
    explicit Rasterbild(Zeichner zeichner) : m_zeichner(zeichner) {}
    void paint(QPainter* maler, const QRect& flaeche, QIcon::Mode modus, QIcon::State) override
    {
        maler->save();
        maler->setRenderHint(QPainter::Antialiasing);
        if (modus == QIcon::Disabled) maler->setOpacity(0.35);
        const double mass = std::min(flaeche.width(), flaeche.height()) / 16.0;
        maler->translate(flaeche.center().x() + 0.5 - 8 * mass, flaeche.center().y() + 0.5 - 8 * mass);
        maler->scale(mass, mass);
        m_zeichner(*maler);
        maler->restore();
    }
    QPixmap pixmap(const QSize& groesse, QIcon::Mode modus, QIcon::State zustand) override
    {
        QPixmap bild(groesse);
        bild.fill(Qt::transparent);
        QPainter maler(&bild);
        paint(&maler, QRect(QPoint(0, 0), groesse), modus, zustand);
        return bild;
    }
    QIconEngine* clone() const override { return new Rasterbild(*this); }

private:
    Zeichner m_zeichner;
};

QPen stift(QRgb farbe, double breite)
{
    return {QColor(farbe), breite, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void flaeche(QPainter& m, QRgb farbe)
{
    m.setPen(stift(QColor(farbe).darker(125).rgb(), 0.8));
    m.setBrush(QColor(farbe));
}

void haken(QPainter& m)
{
    m.setPen(stift(0xffffffff, 1.8));
    m.setBrush(Qt::NoBrush);
    m.drawPolyline(QPolygonF({{4.6, 8.2}, {7.1, 10.7}, {11.5, 5.6}}));
}

void scheibe_mit_haken(QPainter& m, QRgb farbe)
{
    flaeche(m, farbe);
    m.drawEllipse(QPointF(8, 8), 6.6, 6.6);
    haken(m);
}

void verwendbar(QPainter& m)
{
    scheibe_mit_haken(m, gruen);
}

void berechnet(QPainter& m)
{
    flaeche(m, blau);
    m.drawEllipse(QPointF(8, 8), 6.6, 6.6);
    m.setPen(stift(0xffffffff, 0.9));
    m.setBrush(Qt::NoBrush);
    m.drawEllipse(QPointF(8, 8), 5.2, 5.2);
    haken(m);
}

void mit_vorbehalt(QPainter& m)
{
    flaeche(m, gelb);
    m.drawPolygon(QPolygonF({{8, 1.6}, {15, 14.2}, {1, 14.2}}));
    m.setPen(stift(dunkel, 1.7));
    m.drawLine(QPointF(8, 6.2), QPointF(8, 9.6));
    m.drawPoint(QPointF(8, 12.1));
}

void nicht_verwendbar(QPainter& m)
{
    flaeche(m, rot);
    QPolygonF achteck;
    for (int i = 0; i < 8; ++i) {
        const double winkel = (i + 0.5) * std::numbers::pi / 4;
        achteck << QPointF(8 + 7 * std::cos(winkel), 8 + 7 * std::sin(winkel));
    }
    m.drawPolygon(achteck);
    m.setPen(stift(0xffffffff, 1.8));
    m.drawLine(QPointF(5.5, 5.5), QPointF(10.5, 10.5));
    m.drawLine(QPointF(10.5, 5.5), QPointF(5.5, 10.5));
}

void ausgeschaltet(QPainter& m)
{
    m.setPen(stift(grau, 1.7));
    m.setBrush(Qt::NoBrush);
    m.drawEllipse(QPointF(8, 8), 6.1, 6.1);
    m.drawLine(QPointF(4.8, 8), QPointF(11.2, 8));
}

void leer(QPainter&) {}

void blatt(QPainter& m)
{
    m.setPen(stift(dunkel, 1));
    m.setBrush(Qt::white);
    m.drawPolygon(QPolygonF({{3.5, 1.5}, {9.5, 1.5}, {12.5, 4.5}, {12.5, 14.5}, {3.5, 14.5}}));
    m.drawPolyline(QPolygonF({{9.5, 1.5}, {9.5, 4.5}, {12.5, 4.5}}));
}

void neu(QPainter& m)
{
    blatt(m);
    m.setPen(stift(gruen, 1.8));
    m.drawLine(QPointF(8, 7), QPointF(8, 12));
    m.drawLine(QPointF(5.5, 9.5), QPointF(10.5, 9.5));
}

void oeffnen(QPainter& m)
{
    m.setPen(stift(dunkel, 1));
    m.setBrush(QColor(0xffe7b94a));
    m.drawPolygon(QPolygonF({{1.5, 3.5}, {6, 3.5}, {7.5, 5}, {13.5, 5}, {13.5, 13.5}, {1.5, 13.5}}));
    m.setBrush(QColor(0xfff6d98c));
    m.drawPolygon(QPolygonF({{3.8, 7.5}, {15.2, 7.5}, {13.3, 13.5}, {1.5, 13.5}}));
}

void sichern(QPainter& m)
{
    m.setPen(stift(dunkel, 1));
    m.setBrush(QColor(0xff6f87a8));
    m.drawPolygon(QPolygonF({{2, 2}, {12, 2}, {14, 4}, {14, 14}, {2, 14}}));
    m.setBrush(Qt::white);
    m.drawRect(QRectF(4.5, 2, 6.5, 4));
    m.drawRect(QRectF(4, 8.5, 8, 5.5));
}

void rinex(QPainter& m)
{
    blatt(m);
    m.setPen(stift(blau, 1.2));
    m.drawPolyline(QPolygonF({{5, 11}, {6.5, 8}, {8, 10}, {9.5, 7}, {11, 9}}));
}

void antenne(QPainter& m)
{
    m.setPen(stift(dunkel, 1.2));
    m.setBrush(QColor(0xffd5d9de));
    m.drawChord(QRectF(2.5, 2.5, 11, 9), 0, 180 * 16);
    m.drawLine(QPointF(8, 7), QPointF(8, 10));
    m.drawLine(QPointF(8, 10), QPointF(4, 14.5));
    m.drawLine(QPointF(8, 10), QPointF(12, 14.5));
}

void ausfuehren(QPainter& m)
{
    flaeche(m, gruen);
    m.drawPolygon(QPolygonF({{4, 2}, {13.5, 8}, {4, 14}}));
}

void lupe(QPainter& m)
{
    m.setPen(stift(dunkel, 1.3));
    m.setBrush(Qt::white);
    m.drawEllipse(QPointF(6.8, 6.8), 4.8, 4.8);
    m.setPen(stift(dunkel, 2));
    m.drawLine(QPointF(10.5, 10.5), QPointF(14, 14));
}

void original(QPainter& m)
{
    lupe(m);
    m.setPen(stift(blau, 1.1));
    m.setBrush(Qt::NoBrush);
    m.drawRect(QRectF(4.6, 5.2, 4.4, 3.2));
}

void verkleinern(QPainter& m)
{
    lupe(m);
    m.setPen(stift(blau, 1.4));
    m.drawLine(QPointF(4.6, 6.8), QPointF(9, 6.8));
}

void grenzen(QPainter& m)
{
    m.setPen(stift(0xffc060c8, 1.6));
    m.setBrush(QColor(0x30c060c8));
    m.drawPolygon(QPolygonF({{2, 5}, {6, 2}, {10, 3.5}, {14, 3}, {13, 9}, {14, 13}, {8, 14}, {3.5, 12}}));
}

void pkz(QPainter& m)
{
    m.setPen(stift(QColor(gruen).darker(130).rgb(), 0.8));
    m.setBrush(QColor(gruen));
    m.drawEllipse(QPointF(4.5, 11.5), 2.6, 2.6);
    m.setPen(stift(dunkel, 1.2));
    m.setBrush(Qt::NoBrush);
    m.drawLine(QPointF(8, 3), QPointF(14, 3));
    m.drawLine(QPointF(8, 6), QPointF(14, 6));
}

void zeiten(QPainter& m)
{
    m.setPen(Qt::NoPen);
    m.setBrush(QColor(blau));
    m.drawRect(QRectF(2, 3, 8, 2.6));
    m.drawRect(QRectF(5, 7, 9, 2.6));
    m.setBrush(QColor(grau));
    m.drawRect(QRectF(3, 11, 6, 2.6));
}

void protokoll(QPainter& m)
{
    blatt(m);
    m.setPen(stift(grau, 1));
    for (const double y : {7.0, 9.2, 11.4}) m.drawLine(QPointF(5.5, y), QPointF(10.5, y));
}

void hilfe(QPainter& m)
{
    flaeche(m, blau);
    m.drawEllipse(QPointF(8, 8), 6.6, 6.6);
    QFont schrift = m.font();
    schrift.setPixelSize(11);
    schrift.setBold(true);
    m.setFont(schrift);
    m.setPen(Qt::white);
    m.drawText(QRectF(0, 0, 16, 16), Qt::AlignCenter, QStringLiteral("?"));
}

// A triangle of reference stations around a computed point.
void zeichen(QPainter& m)
{
    m.setPen(Qt::NoPen);
    m.setBrush(QColor(0xff1f4e8c));
    m.drawRoundedRect(QRectF(0.5, 0.5, 15, 15), 3, 3);
    m.setPen(stift(0xffffffff, 1));
    m.drawPolygon(QPolygonF({{8, 3}, {13.2, 12.4}, {2.8, 12.4}}));
    m.setPen(Qt::NoPen);
    m.setBrush(QColor(gelb));
    for (const QPointF p : {QPointF(8, 3), QPointF(13.2, 12.4), QPointF(2.8, 12.4)}) m.drawEllipse(p, 1.7, 1.7);
    m.setBrush(QColor(0xffe04a3f));
    m.drawEllipse(QPointF(8, 9.2), 2, 2);
}

struct Befehlsbild {
    const char* name;
    Zeichner zeichner;
};
constexpr std::array befehlsbilder = {
    Befehlsbild{"m_datei_neu", neu},           Befehlsbild{"m_datei_laden", oeffnen},
    Befehlsbild{"m_datei_sichern", sichern},   Befehlsbild{"m_datei_rinex", rinex},
    Befehlsbild{"m_datei_antenne", antenne},   Befehlsbild{"m_wasoft_run_n", ausfuehren},
    Befehlsbild{"m_grafik_orginal", original}, Befehlsbild{"m_grafik_verkleinern", verkleinern},
    Befehlsbild{"m_grafik_grenzen", grenzen},  Befehlsbild{"m_grafik_pkz", pkz},
    Befehlsbild{"m_grafik_zeiten", zeiten},    Befehlsbild{"m_protkoll_einsehen", protokoll},
    Befehlsbild{"m_hilfe_handbuch", hilfe}};

QIcon aus(Zeichner zeichner)
{
    return QIcon(new Rasterbild(zeichner));
}

}  // namespace

QIcon baumbild(int nummer)
{
    switch (nummer) {
        case 1:
            return aus(verwendbar);
        case 2:
            return aus(mit_vorbehalt);
        case 3:
            return aus(nicht_verwendbar);
        case 9:
            return aus(ausgeschaltet);
        case 11:
            return aus(berechnet);
        default:
            return aus(leer);
    }
}

QIcon befehlsbild(const QString& name)
{
    for (const auto& bild : befehlsbilder)
        if (name == QLatin1String(bild.name)) return aus(bild.zeichner);
    return {};
}

QIcon programmbild()
{
    return aus(zeichen);
}

}  // namespace jorv
