// The wait panel in the middle of the main window. While it is shown, nothing but its abort button can be operated.
#pragma once

#include <QElapsedTimer>
#include <QFrame>

class QLabel;
class QProgressBar;
class QPushButton;

namespace jorv {

class Fortschrittsfeld final : public QFrame {
public:
    explicit Fortschrittsfeld(QWidget* hauptform);
    ~Fortschrittsfeld() override;

    /// Shows the panel with a caption; shown already, only the caption changes.
    void zeigen(const QString& text);
    /// Per cent. From the first steps on the remaining time is told.
    void setzen(double prozent);
    void verbergen();
    /// Whether the abort button has been pressed since the panel was shown.
    bool abbruch() const { return m_abbruch; }
    /// Keeps the panel in the middle of the window.
    void ausrichten();

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    QLabel* lbl_fortschritt;
    QLabel* m_restzeit;
    QProgressBar* prg_fortschritt;
    QPushButton* cmd_abbrechen;
    QElapsedTimer m_uhr;
    bool m_abbruch = false;
};

}  // namespace jorv
