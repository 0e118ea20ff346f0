// A numeric text box with its spin arrows: the screen side of Zahlenfeld.
#pragma once

#include <QLineEdit>
#include <QString>

#include "planung/zahlenfeld.h"

namespace jorv {

/// The text box. It keeps its field up to date with every change of the text, selects all of it when it gets the focus,
/// and takes the focus back when it is left with a value beyond the limits.
class Zahlenbox final : public QLineEdit {
public:
    /// "txt_<name>", with its arrows "upd_<name>". Field and screen outlive the box.
    Zahlenbox(Zahlenfeld& feld, Oberflaeche& schirm, const char* name, QWidget* eltern);

    /// The box with its arrows behind it, for the layout.
    QWidget* mit_pfeilen() { return m_rahmen; }

    /// What leaving the box does, at once: an empty one takes its minimum; a value beyond the limits is told, the box
    /// gets the focus, and the answer is false.
    [[nodiscard]] bool abschliessen();

protected:
    void focusInEvent(QFocusEvent* ereignis) override;
    void focusOutEvent(QFocusEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;

private:
    void zeigen();
    void faerben(bool gut);
    QWidget* pfeile(const char* name);
    void pfeil(int richtung);

    Zahlenfeld& m_feld;
    Oberflaeche& m_schirm;
    QWidget* m_rahmen;
    bool m_pruefung_steht_aus = false, m_durch_klick = false;
};

/// Marks a button that closes its window without taking anything over: going to it checks no box.
void ohne_pruefung(QWidget& knopf);

}  // namespace jorv
