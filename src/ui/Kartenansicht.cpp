#include "ui/Kartenansicht.h"

#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "ui/Zeichnung.h"

namespace jorv {

namespace {

constexpr double radschritt = 1.25, tastenschritt = 1.5, schiebeschritt = 60;
constexpr int kante = 10;  // between logo and the map's edges

Bildort ort(const QPointF& punkt)
{
    return {punkt.x(), punkt.y()};
}

}  // namespace

Kartenansicht::Kartenansicht(Global& g, QWidget* eltern) : QWidget(eltern), m_g(g), m_karte(g)
{
    setObjectName(QStringLiteral("pic_grafik"));
    setAccessibleName(QStringLiteral("Netzkarte"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(240, 180);
}

void Kartenansicht::vergroessern()
{
    m_karte.zoomen({width() / 2.0, height() / 2.0}, tastenschritt);
    erneuern();
}

void Kartenansicht::grafik_zeichnen(bool neu)
{
    m_karte.grafik_zeichnen(neu);
    erneuern();
}

void Kartenansicht::erneuern()
{
    zeigen(true);
}

// Without a new picture only what moves above it is painted.
void Kartenansicht::zeigen(bool neu)
{
    if (neu) m_bild = {};
    update();
}

QImage Kartenansicht::bild(qreal dichte)
{
    QImage ziel((QSizeF(size()) * dichte).toSize(), QImage::Format_RGB32);
    ziel.setDevicePixelRatio(dichte);
    ziel.fill(Qt::white);
    QPainter maler(&ziel);
    malen(maler, m_karte.bild());
    return ziel;
}

void Kartenansicht::hinweis_setzen(const QString& text)
{
    if (text == m_hinweis) return;
    m_hinweis = text;
    update();
}

void Kartenansicht::logo_setzen(const QPixmap& logo)
{
    m_logo = logo;
    update();
}

void Kartenansicht::paintEvent(QPaintEvent*)
{
    if (m_bild.isNull() || m_bild.devicePixelRatio() != devicePixelRatioF())
        m_bild = QPixmap::fromImage(bild(devicePixelRatioF()));
    QPainter maler(this);
    maler.drawPixmap(0, 0, m_bild);
    if (!m_logo.isNull())
        maler.drawPixmap(width() - m_logo.width() - kante, height() - m_logo.height() - kante, m_logo);
    malen(maler, m_karte.ueberlagerung());
    hinweis_malen(maler);
    if (hasFocus()) {
        maler.setPen(QPen(palette().highlight().color(), 1));
        maler.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void Kartenansicht::hinweis_malen(QPainter& maler) const
{
    if (m_hinweis.isEmpty()) return;
    const QRect kasten = maler.fontMetrics().boundingRect(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_hinweis);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(QColor(200, 200, 200));
    maler.setBrush(QColor(255, 255, 255, 235));
    maler.drawRoundedRect(kasten.adjusted(-16, -10, 16, 10), 4, 4);
    maler.setPen(QColor(70, 70, 70));
    maler.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_hinweis);
}

void Kartenansicht::resizeEvent(QResizeEvent*)
{
    m_karte.groesse_setzen(width(), height());
    erneuern();
}

void Kartenansicht::mousePressEvent(QMouseEvent* ereignis)
{
    const bool schieben =
        ereignis->button() == Qt::MiddleButton || (ereignis->button() == Qt::LeftButton && m_leertaste);
    m_zuletzt = ereignis->position();
    if (schieben) {
        m_schieben = true;
        setCursor(Qt::ClosedHandCursor);
    } else if (ereignis->button() == Qt::LeftButton) {
        m_karte.links_druecken(ort(m_zuletzt));
        zeigen(false);
    }
}

void Kartenansicht::mouseMoveEvent(QMouseEvent* ereignis)
{
    const QPointF stelle = ereignis->position();
    if (m_schieben) m_karte.verschieben(stelle.x() - m_zuletzt.x(), stelle.y() - m_zuletzt.y());
    m_zuletzt = stelle;
    m_karte.bewegen(ort(stelle));
    if (bei_zeiger) bei_zeiger(m_karte.zeigertext());
    zeigen(m_schieben);
}

void Kartenansicht::mouseReleaseEvent(QMouseEvent* ereignis)
{
    if (m_schieben) {
        m_schieben = false;
        setCursor(m_leertaste ? Qt::OpenHandCursor : Qt::ArrowCursor);
        return;
    }
    if (ereignis->button() == Qt::LeftButton) {
        m_karte.links_loslassen(ort(ereignis->position()));
        erneuern();
    } else if (ereignis->button() == Qt::RightButton) {
        const int station = m_karte.rechts_loslassen(ort(ereignis->position()));
        if (station != 0 && bei_station) bei_station(station, ereignis->globalPosition().toPoint());
    }
}

void Kartenansicht::wheelEvent(QWheelEvent* ereignis)
{
    m_karte.zoomen(ort(ereignis->position()), std::pow(radschritt, ereignis->angleDelta().y() / 120.0));
    erneuern();
    ereignis->accept();
}

void Kartenansicht::keyPressEvent(QKeyEvent* ereignis)
{
    const Bildort mitte = {width() / 2.0, height() / 2.0};
    switch (ereignis->key()) {
        case Qt::Key_Escape:
            m_karte.zoom_abbrechen();
            return zeigen(false);
        case Qt::Key_Space:
            if (!ereignis->isAutoRepeat() && !m_schieben) setCursor(Qt::OpenHandCursor);
            m_leertaste = true;
            return;
        case Qt::Key_Plus:
            m_karte.zoomen(mitte, tastenschritt);
            break;
        case Qt::Key_Minus:
            m_karte.zoomen(mitte, 1 / tastenschritt);
            break;
        case Qt::Key_Left:
            m_karte.verschieben(schiebeschritt, 0);
            break;
        case Qt::Key_Right:
            m_karte.verschieben(-schiebeschritt, 0);
            break;
        case Qt::Key_Up:
            m_karte.verschieben(0, schiebeschritt);
            break;
        case Qt::Key_Down:
            m_karte.verschieben(0, -schiebeschritt);
            break;
        case Qt::Key_PageDown:
            return station_waehlen(1);
        case Qt::Key_PageUp:
            return station_waehlen(-1);
        case Qt::Key_Return:
        case Qt::Key_Enter:
            station_klicken();
            break;
        case Qt::Key_Home:
            m_karte.alles_zeigen();
            break;
        default:
            return QWidget::keyPressEvent(ereignis);
    }
    erneuern();
}

// Figures can be drawn without a mouse: the keys go from station to station, Enter clicks.
void Kartenansicht::station_waehlen(int schritt)
{
    const int alle = m_g.S_Punkt.anzahl();
    if (alle == 0) return;
    m_station =
        m_station < 1 || m_station > alle ? (schritt > 0 ? 1 : alle) : (m_station - 1 + schritt + alle) % alle + 1;
    const auto& punkt = m_g.S_Punkt[m_station];
    m_karte.bewegen(m_karte.ansicht().bild({punkt.Rechtswert, punkt.Hochwert}));
    if (bei_zeiger) bei_zeiger(m_karte.zeigertext());
    zeigen(false);
}

void Kartenansicht::station_klicken()
{
    if (m_station < 1 || m_station > m_g.S_Punkt.anzahl()) return;
    const auto& punkt = m_g.S_Punkt[m_station];
    const Bildort stelle = m_karte.ansicht().bild({punkt.Rechtswert, punkt.Hochwert});
    m_karte.links_druecken(stelle);
    m_karte.links_loslassen(stelle);
}

void Kartenansicht::keyReleaseEvent(QKeyEvent* ereignis)
{
    if (ereignis->key() != Qt::Key_Space || ereignis->isAutoRepeat()) return QWidget::keyReleaseEvent(ereignis);
    m_leertaste = false;
    if (!m_schieben) unsetCursor();
}

void Kartenansicht::leaveEvent(QEvent*)
{
    m_karte.verlassen();
    if (bei_zeiger) bei_zeiger({});
    zeigen(false);
}

void Kartenansicht::changeEvent(QEvent* ereignis)
{
    // What was held down while another window came up will never be released here.
    if (ereignis->type() == QEvent::ActivationChange && !isActiveWindow()) {
        m_leertaste = m_schieben = false;
        unsetCursor();
    }
    QWidget::changeEvent(ereignis);
}

}  // namespace jorv
