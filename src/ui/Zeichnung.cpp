#include "ui/Zeichnung.h"

#include <QPainterPath>
#include <QPixmap>
#include <algorithm>
#include <cmath>

#include "ui/qtext.h"

namespace jorv {

namespace {

// From this count on a circle is painted once and copied.
constexpr std::size_t stempeln_ab = 200;

QPointF punkt(const Bildort& ort)
{
    return {ort.x, ort.y};
}

QPen qstift(const Stift& stift)
{
    QPen feder(qfarbe(stift.farbe), stift.breite);
    if (stift.strich == Strich::gepunktet) feder.setDashPattern({1.5, 2.5});
    feder.setJoinStyle(Qt::RoundJoin);
    return feder;
}

QPolygonF vieleck(const std::vector<Bildort>& orte)
{
    QPolygonF ecken;
    ecken.reserve(static_cast<qsizetype>(orte.size()));
    for (const auto& ort : orte) ecken << punkt(ort);
    return ecken;
}

class Maler {
public:
    explicit Maler(QPainter& m) : m_m(m) {}

    void operator()(const Linie& s)
    {
        stift(s.stift);
        m_m.drawLine(punkt(s.von), punkt(s.bis));
    }
    void operator()(const Linienzug& s)
    {
        stift(s.stift);
        m_m.drawPolyline(vieleck(s.orte));
    }
    void operator()(const Vieleck& s)
    {
        stift(s.stift);
        m_m.setBrush(qfarbe(s.fuellung));
        m_m.drawPolygon(vieleck(s.orte));
    }
    void operator()(const Rechteck& s)
    {
        m_m.setPen(s.stift ? qstift(*s.stift) : QPen(Qt::NoPen));
        m_m.setBrush(s.fuellung ? QBrush(qfarbe(*s.fuellung)) : QBrush(Qt::NoBrush));
        m_m.drawRect(QRectF(s.ecke.x, s.ecke.y, s.breite, s.hoehe));
    }
    void operator()(const Kreise& s)
    {
        if (s.orte.size() >= stempeln_ab) return stempeln(s);
        kreis_einrichten(m_m, s);
        for (const auto& ort : s.orte) m_m.drawEllipse(punkt(ort), s.radius, s.radius);
    }
    void operator()(const Schrift& s)
    {
        QFont schrift = m_m.font();
        schrift.setPixelSize(std::max(1, static_cast<int>(std::lround(s.groesse))));
        m_m.setFont(schrift);
        const QString text = anzeige(s.text);
        const QFontMetricsF mass(schrift, m_m.device());
        const QRectF kasten = kasten_von(s, mass.horizontalAdvance(text), mass.height());
        if (s.hintergrund) m_m.fillRect(kasten, qfarbe(*s.hintergrund));
        const QPointF grundlinie(kasten.left(), kasten.top() + mass.ascent());
        if (s.hof) {
            QPainterPath umriss;
            umriss.addText(grundlinie, schrift, text);
            m_m.strokePath(umriss, QPen(QColor(255, 255, 255, 220), 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        }
        m_m.setPen(qfarbe(s.farbe));
        m_m.drawText(grundlinie, text);
    }

private:
    void stift(const Stift& s)
    {
        m_m.setPen(qstift(s));
        m_m.setBrush(Qt::NoBrush);
    }

    static void kreis_einrichten(QPainter& m, const Kreise& s)
    {
        m.setPen(qstift(s.stift));
        m.setBrush(s.fuellung ? QBrush(qfarbe(*s.fuellung)) : QBrush(Qt::NoBrush));
    }

    void stempeln(const Kreise& s)
    {
        const qreal dichte = m_m.device()->devicePixelRatioF();
        const double halb = std::ceil(s.radius + s.stift.breite + 1);
        const int seite = static_cast<int>(std::ceil(2 * halb * dichte));
        QPixmap stempel(seite, seite);
        stempel.setDevicePixelRatio(dichte);
        stempel.fill(Qt::transparent);
        {
            QPainter m(&stempel);
            m.setRenderHint(QPainter::Antialiasing);
            kreis_einrichten(m, s);
            m.drawEllipse(QPointF(halb, halb), s.radius, s.radius);
        }
        // Whole device pixels: a copy between them would have to be interpolated.
        for (const auto& ort : s.orte)
            m_m.drawPixmap(
                QPointF(std::round((ort.x - halb) * dichte) / dichte, std::round((ort.y - halb) * dichte) / dichte),
                stempel);
    }

    static QRectF kasten_von(const Schrift& s, double breite, double hoehe)
    {
        const double x = s.ort.x + s.abstand.x, y = s.ort.y + s.abstand.y;
        switch (s.anker) {
            case Anker::links_oben:
                return {x, y, breite, hoehe};
            case Anker::links_mitte:
                return {x, y - hoehe / 2, breite, hoehe};
            case Anker::rechts_mitte:
                return {x - breite, y - hoehe / 2, breite, hoehe};
            case Anker::mitte_unten:
                return {x - breite / 2, y - hoehe, breite, hoehe};
            case Anker::mitte_oben:
                return {x - breite / 2, y, breite, hoehe};
        }
        return {x, y, breite, hoehe};
    }

    QPainter& m_m;
};

}  // namespace

QColor qfarbe(const Farbe& farbe)
{
    return {farbe.rot, farbe.gruen, farbe.blau};
}

void malen(QPainter& maler, const Zeichenliste& bild)
{
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    Maler m(maler);
    for (const auto& schritt : bild) std::visit(m, schritt.form);
    maler.restore();
}

}  // namespace jorv
