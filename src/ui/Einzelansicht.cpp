#include "ui/Einzelansicht.h"

#include <QMouseEvent>
#include <QPainter>

#include "ui/Zeichnung.h"

namespace jorv {

Einzelansicht::Einzelansicht(const Global& g, const Handarbeit& h, QWidget* eltern) : QWidget(eltern), m_karte(g, h)
{
    setObjectName(QStringLiteral("pic_einzel"));
    setAccessibleName(QStringLiteral("Karte der TOREL-Stationen"));
    setMouseTracking(true);
    setMinimumSize(200, 160);
}

void Einzelansicht::paintEvent(QPaintEvent*)
{
    QPainter maler(this);
    malen(maler, m_karte.bild());
    malen(maler, m_karte.ueberlagerung());
    maler.setPen(palette().mid().color());
    maler.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

void Einzelansicht::resizeEvent(QResizeEvent*)
{
    m_karte.groesse_setzen(width(), height());
}

void Einzelansicht::mouseMoveEvent(QMouseEvent* ereignis)
{
    m_karte.bewegen({ereignis->position().x(), ereignis->position().y()});
    update();
}

void Einzelansicht::leaveEvent(QEvent*)
{
    m_karte.verlassen();
    update();
}

}  // namespace jorv
