// Time bars in a window: the axis above, the first rows fixed, the others scrolled; rows are chosen by mouse and
// keyboard, and the time is enlarged with the wheel where the window allows it.
#pragma once

#include <QAbstractScrollArea>
#include <functional>

#include "ui/Balkenbild.h"

class QLabel;
class QPrinter;

namespace jorv {

class Zeitbalken final : public QAbstractScrollArea {
public:
    explicit Zeitbalken(QWidget* eltern);

    /// The first `feste` rows stay in view. The current row is the first one that scrolls.
    void setzen(const Zeitachse& achse, std::vector<Balkenzeile> zeilen, int feste);
    /// New looks of a row.
    void zeile_zeigen(int zeile, const QColor& farbe, const QIcon& bild, std::optional<bool> haken);
    /// Begin and end of this row are drawn through all rows.
    void leitzeile_setzen(int zeile);
    void zoom_erlauben() { m_zoom_erlaubt = true; }
    /// Shows the part of the axis between two fractions of it; the whole again with 0 and 1.
    void ausschnitt_zeigen(double von, double bis);
    /// Prints all rows with the shown part of the axis.
    void drucken(QPrinter& drucker, const QString& titel) const;

    int aktuelle() const { return m_aktuelle; }
    const Balkenbild& bild() const { return m_bild; }
    /// Box of a row in the viewport.
    QRect zeilenkasten(int zeile) const;
    /// Tool tip of a place in the viewport, with the time under the pointer.
    QString hinweis_an(const QPoint& ort) const;

    QSize sizeHint() const override;

    /// A row was clicked, or Space pressed on the current one.
    std::function<void(int zeile)> bei_klick;
    /// Another row has become the current one.
    std::function<void(int zeile)> bei_wechsel;

protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void wheelEvent(QWheelEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void focusInEvent(QFocusEvent* ereignis) override;
    void focusOutEvent(QFocusEvent* ereignis) override;
    bool viewportEvent(QEvent* ereignis) override;

private:
    int zeile_an(const QPoint& ort) const;
    int scrollbeginn() const;
    void aktuell_setzen(int zeile);
    void bildlauf_erneuern();
    void zoomen(double um, double faktor);

    Balkenbild m_bild;
    Zeitachse m_achse;
    double m_von = 0, m_bis = 1;  // shown part of the axis
    int m_feste = 0, m_aktuelle = -1;
    bool m_zoom_erlaubt = false, m_richtet_ein = false;
};

/// What shade and strips mean, as a line below the bars.
QLabel* zeitbalken_legende(QWidget* eltern);

/// A window for rows of bars takes most of its parent's place.
void an_eltern_ausrichten(QWidget& fenster);

}  // namespace jorv
