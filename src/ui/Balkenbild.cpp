#include "ui/Balkenbild.h"

#include <algorithm>

#include "ui/qtext.h"

namespace jorv {

namespace {

constexpr int luft = 4, zeichen = 14, balkenrand = 2;
constexpr double kleinster_abstand = 5;  // between two lines of the grid
// The shade of this many satellites fills the bar, unless a file has more.
constexpr std::int32_t volle_hoehe = 12;
const QColor grund(224, 224, 224), fein(206, 206, 206), stark(150, 150, 150), luecke(255, 255, 255, 215),
    rand(90, 90, 90);

// On a dark colour the shade has to be deeper.
QColor schatten(const QColor& farbe)
{
    constexpr int dunkel = 100;
    return {0, 0, 0, qGray(farbe.rgb()) < dunkel ? 85 : 45};
}

void haken_malen(QPainter& maler, const QPointF& ecke, bool gesetzt)
{
    const QRectF kasten(ecke, QSizeF(11, 11));
    maler.setPen(rand);
    maler.setBrush(Qt::white);
    maler.drawRect(kasten);
    if (!gesetzt) return;
    maler.setPen(QPen(Qt::black, 1.8));
    maler.drawPolyline(QPolygonF({ecke + QPointF(2.5, 5.5), ecke + QPointF(4.8, 8.2), ecke + QPointF(9, 2.8)}));
}

}  // namespace

void Balkenbild::setzen(std::vector<Balkenzeile> zeilen, const QFontMetrics& schrift)
{
    m_zeilen = std::move(zeilen);
    m_namensbreite = schrift.horizontalAdvance(QStringLiteral("00.00.0000")) + 2 * luft;
    m_meiste_Satelliten = volle_hoehe;
    for (const auto& z : m_zeilen) {
        m_namensbreite = std::max(m_namensbreite, namen_einzug(z) + schrift.horizontalAdvance(z.name) + 2 * luft);
        if (z.dichte) m_meiste_Satelliten = std::max(m_meiste_Satelliten, z.dichte->meiste_Satelliten);
    }
}

int Balkenbild::namen_einzug(const Balkenzeile& z) const
{
    return z.haken || !z.bild.isNull() ? luft + zeichen + luft : luft;
}

QRectF Balkenbild::zeitflaeche(const QRectF& kasten) const
{
    return kasten.adjusted(m_namensbreite, 0, 0, 0);
}

double Balkenbild::anteil(double x, double breite) const
{
    const double zeit = breite - m_namensbreite;
    return zeit > 0 ? (x - m_namensbreite) / zeit : 0;
}

// The day stands over the names; its labels keep apart from each other.
void Balkenbild::kopf_malen(QPainter& maler, const QRectF& kasten) const
{
    const QRectF flaeche = zeitflaeche(kasten);
    if (achse.sekunden() <= 0) return;
    const QColor schrift = maler.pen().color();
    QColor blass = schrift;
    blass.setAlphaF(0.6F);
    const QRectF namen(kasten.left() + luft, kasten.top(), m_namensbreite - 2 * luft, kasten.height() - 4);
    maler.drawText(namen, Qt::AlignLeft | Qt::AlignVCenter, anzeige(tag_text(achse.zeit(0))));
    const double breit = maler.fontMetrics().horizontalAdvance(QStringLiteral("00:00")) + 3 * luft;
    for (const auto& marke : achse.marken(static_cast<int>(flaeche.width() / breit))) {
        const double x = flaeche.left() + marke.anteil * flaeche.width();
        maler.setPen(marke.Text.ends_with(":00") ? schrift : blass);
        maler.drawLine(QPointF(x, kasten.bottom() - 4), QPointF(x, kasten.bottom()));
        const QRectF platz(x - breit / 2, kasten.top(), breit, kasten.height() - 4);
        if (platz.left() >= kasten.left() + m_namensbreite - breit / 2 && platz.right() <= kasten.right() + luft)
            maler.drawText(platz, Qt::AlignCenter, anzeige(marke.Text));
    }
}

// Hours strong, quarter hours fine, as far as there is room for them.
void Balkenbild::raster_malen(QPainter& maler, const QRectF& flaeche) const
{
    struct Linien {
        int minuten;
        const QColor* farbe;
    };
    if (achse.sekunden() <= 0) return;
    for (const auto& [minuten, farbe] : {Linien{15, &fein}, Linien{60, &stark}, Linien{1440, &rand}}) {
        if (flaeche.width() * 60 * minuten / achse.sekunden() < kleinster_abstand) continue;
        maler.setPen(*farbe);
        for (const double anteil : achse.raster(minuten)) {
            const double x = flaeche.left() + anteil * flaeche.width();
            maler.drawLine(QPointF(x, flaeche.top()), QPointF(x, flaeche.bottom()));
        }
    }
}

void Balkenbild::zeile_malen(QPainter& maler, const QRectF& kasten, int nummer) const
{
    const Balkenzeile& z = m_zeilen.at(static_cast<std::size_t>(nummer));
    const QRectF flaeche = zeitflaeche(kasten);
    const QColor schrift = maler.pen().color();
    const double oben = kasten.top() + (kasten.height() - zeichen) / 2;
    if (z.haken) haken_malen(maler, QPointF(kasten.left() + luft + 1.5, oben + 1.5), *z.haken);
    if (!z.bild.isNull()) z.bild.paint(&maler, QRectF(kasten.left() + luft, oben, zeichen, zeichen).toAlignedRect());
    maler.setPen(schrift);
    maler.drawText(kasten.adjusted(namen_einzug(z), 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, z.name);
    maler.save();
    maler.setClipRect(flaeche, Qt::IntersectClip);
    maler.fillRect(flaeche, grund);
    raster_malen(maler, flaeche);
    balken_malen(maler, flaeche, z);
    if (leitzeile >= 0 && leitzeile < anzahl()) {
        const Balkenzeile& leit = m_zeilen[static_cast<std::size_t>(leitzeile)];
        maler.setPen(QPen(rand, 1, Qt::DashLine));
        for (const auto& zeit : {leit.von, leit.bis}) {
            const double x = flaeche.left() + achse.anteil(zeit) * flaeche.width();
            maler.drawLine(QPointF(x, flaeche.top()), QPointF(x, flaeche.bottom()));
        }
    }
    maler.restore();
}

void Balkenbild::balken_malen(QPainter& maler, const QRectF& flaeche, const Balkenzeile& z) const
{
    const Balken balken = achse.balken(z.von, z.bis);
    if (achse.anteil(z.bis) < 0 || achse.anteil(z.von) > 1) return;
    constexpr double schmal = 2;  // a bar of a few seconds stays in sight
    const double links = flaeche.left() + balken.von * flaeche.width();
    const double breite = std::max(schmal, (balken.bis - balken.von) * flaeche.width());
    const QRectF kasten(links, flaeche.top() + balkenrand, breite, flaeche.height() - 2 * balkenrand);
    maler.fillRect(kasten, z.farbe);
    if (z.dichte) dichte_malen(maler, flaeche, kasten, z);
    maler.setPen(rand);
    maler.setBrush(Qt::NoBrush);
    maler.drawRect(kasten);
}

void Balkenbild::dichte_malen(QPainter& maler, const QRectF& flaeche, const QRectF& balken, const Balkenzeile& z) const
{
    const QColor dunkler = schatten(z.farbe);
    const auto stelle = [&](double zeit) {
        return std::clamp(flaeche.left() + achse.anteil(zeit) * flaeche.width(), balken.left(), balken.right());
    };
    double ende = balken.left();
    for (const auto& a : z.dichte->Abschnitte) {
        const double von = stelle(a.von), bis = stelle(a.bis);
        constexpr double sichtbar = 1;
        if (von > ende)
            maler.fillRect(QRectF(ende, balken.top(), std::max(sichtbar, von - ende), balken.height()), luecke);
        const double hoehe = balken.height() * a.Satelliten / m_meiste_Satelliten;
        if (bis > von) maler.fillRect(QRectF(von, balken.bottom() - hoehe, bis - von, hoehe), dunkler);
        ende = bis;
    }
}

}  // namespace jorv
