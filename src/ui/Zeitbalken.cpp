#include "ui/Zeitbalken.h"

#include <QHelpEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPrinter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "ui/qtext.h"

namespace jorv {

namespace {

constexpr int zeilenhoehe = Balkenbild::zeilenhoehe, kopfhoehe = Balkenbild::kopfhoehe;
constexpr int schritte = 10000;  // of the horizontal scroll bar, for the whole axis
constexpr double radschritt = 1.25, schiebeschritt = 0.1, kleinste_spanne_s = 60;

}  // namespace

Zeitbalken::Zeitbalken(QWidget* eltern) : QAbstractScrollArea(eltern)
{
    setObjectName(QStringLiteral("pic_zeiten"));
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    viewport()->setAutoFillBackground(false);
    verticalScrollBar()->setSingleStep(zeilenhoehe);
    setMinimumSize(360, kopfhoehe + 4 * zeilenhoehe);
}

void Zeitbalken::setzen(const Zeitachse& achse, std::vector<Balkenzeile> zeilen, int feste)
{
    m_bild.setzen(std::move(zeilen), fontMetrics());
    m_achse = m_bild.achse = achse;
    m_von = 0, m_bis = 1;
    m_feste = std::min(feste, m_bild.anzahl());
    m_aktuelle = -1;
    bildlauf_erneuern();
    aktuell_setzen(m_feste < m_bild.anzahl() ? m_feste : m_bild.anzahl() - 1);
    verticalScrollBar()->setValue(0);  // the window may still be smaller than it will be shown
    updateGeometry();
    viewport()->update();
}

void Zeitbalken::zeile_zeigen(int zeile, const QColor& farbe, const QIcon& bild, std::optional<bool> haken)
{
    Balkenzeile& z = m_bild.zeile(zeile);
    z.farbe = farbe;
    z.bild = bild;
    z.haken = haken;
    viewport()->update();
}

void Zeitbalken::leitzeile_setzen(int zeile)
{
    m_bild.leitzeile = zeile;
    viewport()->update();
}

void Zeitbalken::ausschnitt_zeigen(double von, double bis)
{
    if (m_achse.sekunden() <= 0) return;
    const double spanne = std::clamp(bis - von, std::min(1.0, kleinste_spanne_s / m_achse.sekunden()), 1.0);
    m_von = std::clamp(von, 0.0, 1 - spanne);
    m_bis = m_von + spanne;
    m_bild.achse = m_achse.ausschnitt(m_von, m_bis);
    bildlauf_erneuern();
    viewport()->update();
}

void Zeitbalken::zoomen(double um, double faktor)
{
    const double fest = m_von + um * (m_bis - m_von);
    const double spanne = std::min(1.0, (m_bis - m_von) / faktor);
    ausschnitt_zeigen(fest - um * spanne, fest + (1 - um) * spanne);
}

int Zeitbalken::scrollbeginn() const
{
    return kopfhoehe + m_feste * zeilenhoehe;
}

QRect Zeitbalken::zeilenkasten(int zeile) const
{
    const int oben = kopfhoehe + zeile * zeilenhoehe - (zeile < m_feste ? 0 : verticalScrollBar()->value());
    return {0, oben, viewport()->width(), zeilenhoehe};
}

int Zeitbalken::zeile_an(const QPoint& ort) const
{
    if (ort.y() < kopfhoehe) return -1;
    const int verschoben = ort.y() < scrollbeginn() ? 0 : verticalScrollBar()->value();
    const int zeile = (ort.y() - kopfhoehe + verschoben) / zeilenhoehe;
    return zeile < m_bild.anzahl() ? zeile : -1;
}

void Zeitbalken::bildlauf_erneuern()
{
    const int hoehe = (m_bild.anzahl() - m_feste) * zeilenhoehe, platz = viewport()->height() - scrollbeginn();
    m_richtet_ein = true;
    verticalScrollBar()->setPageStep(std::max(zeilenhoehe, platz));
    verticalScrollBar()->setRange(0, std::max(0, hoehe - platz));
    const int seite = static_cast<int>(std::lround((m_bis - m_von) * schritte));
    horizontalScrollBar()->setPageStep(std::max(1, seite));
    horizontalScrollBar()->setSingleStep(std::max(1, seite / 10));
    horizontalScrollBar()->setRange(0, schritte - seite);
    horizontalScrollBar()->setValue(static_cast<int>(std::lround(m_von * schritte)));
    m_richtet_ein = false;
}

void Zeitbalken::aktuell_setzen(int zeile)
{
    if (zeile < 0 || zeile >= m_bild.anzahl() || zeile == m_aktuelle) return;
    m_aktuelle = zeile;
    if (zeile >= m_feste) {
        QScrollBar& balken = *verticalScrollBar();
        const int oben = (zeile - m_feste) * zeilenhoehe, platz = viewport()->height() - scrollbeginn();
        if (oben < balken.value()) balken.setValue(oben);
        if (oben + zeilenhoehe > balken.value() + platz) balken.setValue(oben + zeilenhoehe - platz);
    }
    setAccessibleDescription(m_bild.zeilen()[static_cast<std::size_t>(zeile)].hinweis);
    if (bei_wechsel) bei_wechsel(zeile);
    viewport()->update();
}

QString Zeitbalken::hinweis_an(const QPoint& ort) const
{
    const int zeile = zeile_an(ort);
    QStringList text;
    if (zeile >= 0) text << m_bild.zeilen()[static_cast<std::size_t>(zeile)].hinweis;
    if (ort.x() >= m_bild.namensbreite() && m_bild.achse.sekunden() > 0) {
        const Zeitpunkt zeit = m_bild.achse.zeit(m_bild.anteil(ort.x(), viewport()->width()));
        text << anzeige(verkettet(tag_text(zeit), " ", uhrzeit_text(zeit)));
    }
    return text.join(QLatin1Char('\n'));
}

QSize Zeitbalken::sizeHint() const
{
    constexpr int breite = 640, meiste_zeilen = 16;
    return {breite, kopfhoehe + std::clamp(m_bild.anzahl(), 4, meiste_zeilen) * zeilenhoehe + 2 * frameWidth()};
}

void Zeitbalken::paintEvent(QPaintEvent*)
{
    QPainter maler(viewport());
    const QRect alles = viewport()->rect();
    maler.fillRect(alles, palette().base());
    const auto zeile_malen = [&](int i) {
        const QRect kasten = zeilenkasten(i);
        const bool gewaehlt = i == m_aktuelle && hasFocus();
        const QRect name(0, kasten.top(), m_bild.namensbreite(), zeilenhoehe);
        if (gewaehlt) maler.fillRect(name, palette().highlight());
        maler.setPen(gewaehlt ? palette().highlightedText().color() : palette().text().color());
        m_bild.zeile_malen(maler, kasten, i);
    };
    maler.save();
    maler.setClipRect(alles.adjusted(0, scrollbeginn(), 0, 0));
    const int erste = m_feste + verticalScrollBar()->value() / zeilenhoehe;
    for (int i = erste; i < m_bild.anzahl() && zeilenkasten(i).top() < alles.bottom(); ++i) zeile_malen(i);
    maler.restore();
    for (int i = 0; i < m_feste; ++i) zeile_malen(i);
    maler.setPen(palette().text().color());
    m_bild.kopf_malen(maler, QRectF(0, 0, alles.width(), kopfhoehe));
    if (m_feste > 0) {
        maler.setPen(palette().mid().color());
        maler.drawLine(0, scrollbeginn(), alles.width(), scrollbeginn());
    }
}

void Zeitbalken::resizeEvent(QResizeEvent* ereignis)
{
    QAbstractScrollArea::resizeEvent(ereignis);
    bildlauf_erneuern();
}

void Zeitbalken::scrollContentsBy(int dx, int)
{
    if (dx != 0 && !m_richtet_ein) {
        const double von = static_cast<double>(horizontalScrollBar()->value()) / schritte;
        ausschnitt_zeigen(von, von + m_bis - m_von);
    }
    viewport()->update();
}

void Zeitbalken::mousePressEvent(QMouseEvent* ereignis)
{
    const int zeile = zeile_an(ereignis->position().toPoint());
    if (ereignis->button() != Qt::LeftButton || zeile < 0) return;
    aktuell_setzen(zeile);
    if (bei_klick) bei_klick(zeile);
}

// The time in the tool tip follows the pointer.
void Zeitbalken::mouseMoveEvent(QMouseEvent* ereignis)
{
    if (QToolTip::isVisible())
        QToolTip::showText(ereignis->globalPosition().toPoint(), hinweis_an(ereignis->position().toPoint()),
                           viewport());
}

bool Zeitbalken::viewportEvent(QEvent* ereignis)
{
    if (ereignis->type() == QEvent::ToolTip) {
        const auto& hilfe = static_cast<const QHelpEvent&>(*ereignis);
        QToolTip::showText(hilfe.globalPos(), hinweis_an(hilfe.pos()), viewport());
        return true;
    }
    return QAbstractScrollArea::viewportEvent(ereignis);
}

// Over the names, and with Shift, the wheel scrolls as elsewhere.
void Zeitbalken::wheelEvent(QWheelEvent* ereignis)
{
    const double x = ereignis->position().x();
    if (!m_zoom_erlaubt || x < m_bild.namensbreite() || (ereignis->modifiers() & Qt::ShiftModifier))
        return QAbstractScrollArea::wheelEvent(ereignis);
    zoomen(m_bild.anteil(x, viewport()->width()), std::pow(radschritt, ereignis->angleDelta().y() / 120.0));
    ereignis->accept();
}

void Zeitbalken::keyPressEvent(QKeyEvent* ereignis)
{
    const int seite = std::max(1, (viewport()->height() - scrollbeginn()) / zeilenhoehe - 1);
    const int letzte = m_bild.anzahl() - 1;
    const double spanne = m_bis - m_von;
    switch (ereignis->key()) {
        case Qt::Key_Up:
            return aktuell_setzen(m_aktuelle - 1);
        case Qt::Key_Down:
            return aktuell_setzen(m_aktuelle + 1);
        case Qt::Key_PageUp:
            return aktuell_setzen(std::max(0, m_aktuelle - seite));
        case Qt::Key_PageDown:
            return aktuell_setzen(std::min(letzte, m_aktuelle + seite));
        case Qt::Key_Home:
            return aktuell_setzen(0);
        case Qt::Key_End:
            return aktuell_setzen(letzte);
        case Qt::Key_Space:
            if (bei_klick && m_aktuelle >= 0) bei_klick(m_aktuelle);
            return;
        default:
            break;
    }
    if (m_zoom_erlaubt) switch (ereignis->key()) {
            case Qt::Key_Plus:
                return zoomen(0.5, radschritt);
            case Qt::Key_Minus:
                return zoomen(0.5, 1 / radschritt);
            case Qt::Key_Left:
                return ausschnitt_zeigen(m_von - schiebeschritt * spanne, m_bis - schiebeschritt * spanne);
            case Qt::Key_Right:
                return ausschnitt_zeigen(m_von + schiebeschritt * spanne, m_bis + schiebeschritt * spanne);
            case Qt::Key_0:
                return ausschnitt_zeigen(0, 1);
            default:
                break;
        }
    ereignis->ignore();  // Enter and Escape belong to the dialog
}

void Zeitbalken::focusInEvent(QFocusEvent* ereignis)
{
    QAbstractScrollArea::focusInEvent(ereignis);
    viewport()->update();
}

void Zeitbalken::focusOutEvent(QFocusEvent* ereignis)
{
    QAbstractScrollArea::focusOutEvent(ereignis);
    viewport()->update();
}

void Zeitbalken::drucken(QPrinter& drucker, const QString& titel) const
{
    QPainter maler(&drucker);
    constexpr double punkte_je_zoll = 96, titelhoehe = 30;
    const double masstab = drucker.resolution() / punkte_je_zoll;
    maler.scale(masstab, masstab);
    QFont schrift = font();
    schrift.setPixelSize(fontInfo().pixelSize());
    maler.setFont(schrift);
    const QRect flaeche = drucker.pageLayout().paintRectPixels(drucker.resolution());
    const QSizeF seite = QSizeF(flaeche.size()) / masstab;
    const int je_seite = std::max(1, static_cast<int>((seite.height() - titelhoehe - kopfhoehe) / zeilenhoehe));
    const int seiten = std::max(1, (m_bild.anzahl() + je_seite - 1) / je_seite);
    for (int s = 0; s < seiten; ++s) {
        if (s > 0) drucker.newPage();
        maler.setPen(Qt::black);
        const QRectF kopf(0, 0, seite.width(), titelhoehe);
        maler.drawText(kopf, Qt::AlignLeft | Qt::AlignVCenter, titel);
        maler.drawText(kopf, Qt::AlignRight | Qt::AlignVCenter,
                       QStringLiteral("Seite %1 von %2").arg(s + 1).arg(seiten));
        m_bild.kopf_malen(maler, QRectF(0, titelhoehe, seite.width(), kopfhoehe));
        const int ende = std::min(m_bild.anzahl(), (s + 1) * je_seite);
        for (int i = s * je_seite; i < ende; ++i) {
            maler.setPen(Qt::black);
            const double oben = titelhoehe + kopfhoehe + (i - s * je_seite) * zeilenhoehe;
            m_bild.zeile_malen(maler, QRectF(0, oben, seite.width(), zeilenhoehe), i);
        }
    }
}

QLabel* zeitbalken_legende(QWidget* eltern)
{
    auto* legende = new QLabel(QStringLiteral("Höhe des Schattens: Anzahl der Satelliten. Helle Streifen: Datenlücken "
                                              "von mehr als drei Intervallen."),
                               eltern);
    legende->setObjectName(QStringLiteral("lbl_legende"));
    legende->setForegroundRole(QPalette::PlaceholderText);
    return legende;
}

void an_eltern_ausrichten(QWidget& fenster)
{
    constexpr double teil = 0.85;
    if (const QWidget* eltern = fenster.parentWidget())
        fenster.resize((QSizeF(eltern->window()->size()) * teil).toSize().expandedTo(fenster.minimumSizeHint()));
}

}  // namespace jorv
