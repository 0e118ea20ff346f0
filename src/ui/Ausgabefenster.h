// The window of a program that nobody waits for: shows what it prints as it comes, and how it ended.
#pragma once

#include <QElapsedTimer>
#include <QTemporaryFile>
#include <QTimer>
#include <QWidget>
#include <system_error>

#include "plattform/fensterstart.h"

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace jorv {

class Ausgabefenster final : public QWidget {
public:
    /// Starts the program; the error when it couldn't be started. Its window comes up with the first output, or when it
    /// ends badly, so that a program with windows of its own gets no empty one beside them. Closing the window doesn't
    /// end the program, nor does the end of ours.
    static std::error_code starten(const Fensterstart& start);

protected:
    void closeEvent(QCloseEvent* ereignis) override;

private:
    explicit Ausgabefenster(const QString& name);
    void anlegen();
    void lesen();
    void anhaengen(const QString& text);

    const QString m_name;
    QTemporaryFile m_datei;
    Gestartet m_kind;
    QTimer m_takt;
    QElapsedTimer m_uhr;
    bool m_zeilenanfang = true, m_wagenruecklauf = false;
    QPlainTextEdit* txt_ausgabe;
    QLabel* m_zustand;
    QPushButton* cmd_beenden;
};

}  // namespace jorv
