// The dialogs of projects and files, driven as a user does it: keys, clicks, and the messages that come.
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QListWidget>
#include <QProgressBar>
#include <QRadioButton>
#include <QTableWidget>
#include <QTreeWidget>

#include "projekt/verfahren.h"
#include "ui/Fensterprobe.h"
#include "ui/Fensterpruefung.h"
#include "ui/frmVerfahrEdit.h"
#include "ui/frmVerzeichnis.h"

namespace jorv {

using namespace hilfen;

namespace {

QTreeWidgetItem* verzeichnis(const QWidget& fenster, const char* name)
{
    const auto fund =
        teil<QTreeWidget>(fenster, "Dir1").findItems(QLatin1String(name), Qt::MatchExactly | Qt::MatchRecursive);
    return fund.isEmpty() ? nullptr : fund.last();
}

void doppelklick(QAbstractItemView& ansicht, const QModelIndex& stelle)
{
    const QPoint ort = ansicht.visualRect(stelle).center();
    QTest::mouseClick(ansicht.viewport(), Qt::LeftButton, {}, ort);
    QTest::mouseDClick(ansicht.viewport(), Qt::LeftButton, {}, ort);
}

std::string text(const QWidget& fenster, const char* name)
{
    return fenster.findChild<QWidget*>(QLatin1String(name))->property("text").toString().toStdString();
}

// A file that the intake offers as RINEX and refuses to read; enough for the picker.
constexpr std::string_view rinex_kopf =
    "     2.11           OBSERVATION DATA    G (GPS)             RINEX VERSION / TYPE\n";

}  // namespace

// ---- directory picker

TEST(Verzeichnisfenster, LegtMitDerTastaturEinNeuesVerzeichnisAn)
{
    Fensterprobe p;
    fs::create_directories(p.pfad("messung/januar"));
    Drehbuch b;
    std::optional<std::string> wahl;
    b.im("frmVerzeichnis", [&](QWidget& fenster) {
        EXPECT_EQ(fokus(), "Dir1");
        tippen("mes");  // the list finds by letters
        taste(Qt::Key_Return);
        EXPECT_TRUE(verzeichnis(fenster, "januar"));
        taste(Qt::Key_Down);
        taste(Qt::Key_N, Qt::AltModifier);
        EXPECT_EQ(fokus(), "txt_neu");
        tippen("tag 1");
        EXPECT_TRUE(teil(fenster, "lbl_pfad").toolTip().endsWith(QStringLiteral("\\messung\\januar\\tag 1")));
        taste(Qt::Key_Return);
    });
    wahl = frmVerzeichnis::waehlen(p.g, p.ordner.dos(), nullptr);
    EXPECT_EQ(wahl, p.ordner.dos() + "\\messung\\januar\\tag 1");
    EXPECT_TRUE(fs::is_directory(p.pfad("messung/januar/tag 1")));
}

TEST(Verzeichnisfenster, BleibtNachEinerMeldungUndMitDerMausGehtEsAuch)
{
    Fensterprobe p;
    fs::create_directories(p.pfad("messung/januar"));
    schreiben(p.pfad("messung/datei"), "x");
    Drehbuch b;
    b.im("frmVerzeichnis", [&](QWidget& fenster) {
        auto& liste = teil<QTreeWidget>(fenster, "Dir1");
        doppelklick(liste, liste.indexFromItem(verzeichnis(fenster, "messung")));
        klick(fenster, "txt_neu");
        tippen("datei");
        b.meldung();
        klick(fenster, "cmd_ok");
        EXPECT_TRUE(fenster.isVisible());
        EXPECT_EQ(fokus(), "txt_neu");
        tippen("ab/c");  // replaces what was refused
        b.meldung();
        taste(Qt::Key_Return);
        taste(Qt::Key_Backspace);
        QTest::keyClick(&liste, Qt::Key_Backspace);
        EXPECT_EQ(liste.currentItem()->text(0).toStdString(), "p");
        taste(Qt::Key_Escape);
    });
    EXPECT_EQ(frmVerzeichnis::waehlen(p.g, p.ordner.dos(), nullptr), std::nullopt);
    const std::string ordner = utf8_aus_1252(p.ordner.dos()) + "\\messung\\";
    EXPECT_EQ(b.meldungen,
              (std::vector<std::string>{"Das Verzeichnis:\n" + ordner + "datei\n konnte nicht angelegt werden!",
                                        "Das Verzeichnis:\n" + ordner + "ab/c\n konnte nicht angelegt werden!"}));
    EXPECT_EQ(b.symbole, std::vector<QMessageBox::Icon>(2, QMessageBox::Warning));
}

TEST(Verzeichnisfenster, PasstUndKuerztLangePfade)
{
    Fensterprobe p;
    const std::string lang(60, 'x');
    fs::create_directories(p.pfad(lang + "/" + lang + "/ende"));
    p.g.dateien = Dateisystem([&] {
        Laufwerke l;
        l.zuordnen("D:", p.ordner.host());
        return l;
    }());
    Drehbuch b;
    b.im("frmVerzeichnis", [&](QWidget& fenster) {
        elemente_pruefen(fenster, {{"Drive1", "&Laufwerk:"},
                                   {"Dir1", "&Verzeichnis:"},
                                   {"txt_neu", "&Neues Verzeichnis:"},
                                   {"lbl_pfad", nullptr},
                                   {"cmd_ok", "OK"},
                                   {"cmd_abbrechen", "Abbrechen"}});
        fenster_pruefen(fenster);
        EXPECT_TRUE(text(fenster, "lbl_pfad").starts_with("D:\\...\\"));
        EXPECT_TRUE(text(fenster, "lbl_pfad").ends_with("\\ende"));
        auto& laufwerke = teil<QComboBox>(fenster, "Drive1");
        EXPECT_EQ(laufwerke.currentText().toStdString(), "D:");
        laufwerke.setFocus();
        taste(Qt::Key_Down);
        EXPECT_EQ(text(fenster, "lbl_pfad"), "Z:\\");
        taste(Qt::Key_Escape);
    });
    (void)frmVerzeichnis::waehlen(p.g, "D:\\" + lang + "\\" + lang + "\\ende", nullptr);
}

// ---- new project

TEST(NeuesVerfahrenFenster, FuehrtNachJederMeldungZumFeldZurueck)
{
    Fensterprobe p;
    schreiben(p.pfad("voll/datei"), "x");
    p.zeigen();
    Drehbuch b;
    b.im("frmverfahr", [&](QWidget& fenster) {
        EXPECT_EQ(text(fenster, "txt_nummer"), "002");
        EXPECT_EQ(text(fenster, "txt_arbeit"), utf8_aus_1252(p.ordner.dos()));
        EXPECT_TRUE(teil<QRadioButton>(fenster, "opt_modus1").isChecked());
        EXPECT_EQ(fokus(), "txt_name");
        b.meldung();
        taste(Qt::Key_Return);
        EXPECT_EQ(fokus(), "txt_name");
        tippen("Muster");
        b.meldung();
        taste(Qt::Key_Return);
        EXPECT_EQ(fokus(), "txt_name");
        tippen("Süd");
        b.meldung();
        taste(Qt::Key_Return);
        EXPECT_EQ(fokus(), "txt_arbeit");
        tippen((utf8_aus_1252(p.ordner.dos()) + "\\voll\\datei\\x").c_str());
        b.meldung();
        taste(Qt::Key_Return);
        EXPECT_EQ(fokus(), "txt_arbeit");
        // A double click opens the picker, which makes the directory.
        b.im("frmVerzeichnis", [](QWidget& verzeichnis) {
            EXPECT_TRUE(teil<QTreeWidget>(verzeichnis, "Dir1").currentItem()->text(0) == QStringLiteral("voll"));
            klick(verzeichnis, "txt_neu");
            tippen("neu");
            taste(Qt::Key_Return);
        });
        QTest::mouseDClick(&teil(fenster, "txt_arbeit"), Qt::LeftButton);
        EXPECT_TRUE(text(fenster, "txt_arbeit").ends_with("\\voll\\neu"));
        taste(Qt::Key_B, Qt::AltModifier);
        taste(Qt::Key_Return);
    });
    p.befehl("m_datei_neu");
    const std::string ordner = utf8_aus_1252(p.ordner.dos());
    EXPECT_EQ(b.meldungen,
              (std::vector<std::string>{
                  "Ein Verfahrensname ist zwingend erforderlich!",
                  "Der Verfahrensname: >Muster< ist bereits für\ndas Verfahren Nr.: 001 vergeben. Bitte einen anderen "
                  "Namen wählen!",
                  "Das angegebene Verzeichnis:\n" + ordner +
                      "\nexistiert bereits und ist nicht leer!\nBitte ein anderes Verzeichnis auswählen!",
                  "Das Verfahrensverzeichnis:\n" + ordner + "\\voll\\datei\\x\nkonnt nicht angelegt werden!"}));
    EXPECT_EQ(utf8_aus_1252(p.g.Verfahrensname) + p.g.Verfahrensmodus, "Süd4");
    EXPECT_TRUE(fs::exists(p.pfad("voll/neu/002.INI")));
    EXPECT_TRUE(p.form.windowTitle().startsWith(QStringLiteral("Verfahren -->Süd<--(002) Modus: >B<")));
}

TEST(NeuesVerfahrenFenster, PasstUndLaesstSichAbbrechen)
{
    Fensterprobe p;
    Drehbuch b;
    b.im("frmverfahr", [&](QWidget& fenster) {
        EXPECT_EQ(fenster.windowTitle().toStdString(), " Jorv+ - Neues Verfahren anlegen");
        elemente_pruefen(fenster, {{"txt_nummer", "Nu&mmer:"},
                                   {"txt_name", "&Name:"},
                                   {"txt_arbeit", "&Arbeitsverzeichnis:"},
                                   {"cmd_arbeit", "Aus&wählen..."},
                                   {"fra_modus", "Modus"},
                                   {"opt_modus1", "&E – eine virtuelle Referenzstation je ROVER"},
                                   {"opt_modus2", "&S – wenige virtuelle Referenzstationen für mehrere ROVER"},
                                   {"opt_modus3", "&F – fremde virtuelle Referenzstationen"},
                                   {"opt_modus4", "&B – Basislinien zwischen Punkten"},
                                   {"cmd_ok", "OK"},
                                   {"cmd_abbrechen", "Abbrechen"}});
        fenster_pruefen(fenster);
        EXPECT_TRUE(teil<QLineEdit>(fenster, "txt_nummer").isReadOnly());
        tippen("Anders");
        taste(Qt::Key_Escape);
    });
    ASSERT_EQ(m_datei_neu(p.g), Fehler::keiner);
    EXPECT_EQ(p.g.Verfahrensname, "Muster");
}

// ---- project list

namespace {

void weiteres(Global& g, const char* nummer, const char* name, const char* datum)
{
    Verfahren_Satz v;
    v.Nummer = nummer;
    v.Name = t1252(name);
    v.Pfad = g.Arbeitsverzeichnis + "\\" + nummer;
    v.Modus = "2";
    v.ErstDatum = v.LetztDatum = datum;
    v.Antenne = "ATX";
    (void)g.Verfahren.anfuegen(v);
}

std::string spalte(const QTableWidget& t, int s)
{
    std::string alle;
    for (int z = 0; z < t.rowCount(); ++z) alle += t.item(z, s)->text().toStdString() + " ";
    return alle;
}

}  // namespace

TEST(Verfahrensliste, PasstSortiertUndStelltBreitenEin)
{
    Fensterprobe p;
    weiteres(p.g, "007", "Ärger", "02.01.2015 10:00:00");
    weiteres(p.g, "012", "besonders langer Name eines Verfahrens", "01.02.2017");
    frmVerfahrEdit fenster(p.g, nullptr);
    fenster.show();
    elemente_pruefen(fenster, {{"grd_verfahren", nullptr}, {"cmd_ok", "OK"}, {"cmd_abbrechen", "Abbrechen"}});
    fenster_pruefen(fenster);
    auto& t = teil<QTableWidget>(fenster, "grd_verfahren");
    EXPECT_EQ(t.item(1, 1)->text().toStdString() + t.item(1, 2)->text().toStdString(), "ÄrgerS");
    EXPECT_EQ(fenster.name(), "Muster") << "the open project is selected";

    QHeaderView& kopf = *t.horizontalHeader();
    const auto ort = [&](int s) { return QPoint(kopf.sectionViewportPosition(s) + 12, kopf.height() / 2); };
    QTest::mouseClick(kopf.viewport(), Qt::LeftButton, {}, ort(4));
    EXPECT_EQ(spalte(t, 0), "007 001 012 ") << "dates by time";
    EXPECT_EQ(t.item(0, 4)->text().toStdString(), "02.01.2015 10:00:00");
    EXPECT_EQ(fenster.name(), "Muster");
    fenster.activateWindow();
    taste(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(spalte(t, 0), "001 007 012 ");

    kopf.resizeSection(1, 30);
    kopf.resizeSection(2, 300);
    for (int s : {1, 2}) {
        QTest::mouseClick(kopf.viewport(), Qt::LeftButton, {}, ort(s));
        QTest::mouseDClick(kopf.viewport(), Qt::LeftButton, {}, ort(s));
    }
    EXPECT_GE(kopf.sectionSize(1),
              fenster.fontMetrics().horizontalAdvance(QStringLiteral("besonders langer Name eines Verfahrens")));
    EXPECT_EQ(kopf.sectionSize(2), 67) << "1000 units at least";
}

TEST(Verfahrensliste, OeffnetMitEnterUndDoppelklickUndMeldetWasFehlt)
{
    Fensterprobe p;
    ASSERT_EQ(Verfahren_anlegen(p.g, {"Nord", p.ordner.dos() + "\\nord", "1"}), Fehler::keiner);
    ASSERT_EQ(Verfahren_anlegen(p.g, {t1252("Süd"), p.ordner.dos() + "\\sued", "4"}), Fehler::keiner);
    p.zeigen();
    Drehbuch b;
    b.im("frmVerfahrEdit", [](QWidget& fenster) {
        auto& t = teil<QTableWidget>(fenster, "grd_verfahren");
        EXPECT_EQ(fokus(), "grd_verfahren");
        EXPECT_EQ(t.currentRow(), 2);
        taste(Qt::Key_Up);
        taste(Qt::Key_Return);
    });
    p.befehl("m_datei_laden");
    EXPECT_EQ(p.g.Verfahrensname, "Nord");
    b.im("frmVerfahrEdit", [](QWidget& fenster) {
        auto& t = teil<QTableWidget>(fenster, "grd_verfahren");
        doppelklick(t, t.model()->index(2, 3));
    });
    p.befehl("m_datei_laden");
    EXPECT_EQ(p.g.Verfahrensname, t1252("Süd"));
    // The first project's file is gone: it leaves the list, the open one stays.
    fs::remove(p.pfad("001.INI"));
    b.im("frmVerfahrEdit", [](QWidget& fenster) {
        teil<QTableWidget>(fenster, "grd_verfahren").setCurrentCell(0, 0);
        klick(fenster, "cmd_ok");
    });
    b.meldung();
    p.befehl("m_datei_laden");
    EXPECT_EQ(b.meldungen,
              std::vector<std::string>{"Die Verfahrensdatei:\n" + utf8_aus_1252(p.ordner.dos()) +
                                       "\\001.INI\nfür das Verfahren >Muster< (001)\nexistiert nicht mehr!"});
    EXPECT_EQ(p.g.Verfahren.anzahl(), 2);
    b.im("frmVerfahrEdit", [](QWidget&) { taste(Qt::Key_Escape); });
    p.befehl("m_datei_laden");
    EXPECT_EQ(p.g.Verfahrensname, t1252("Süd"));
}

// ---- files

TEST(Dateienfenster, BietetAnMarkiertUndKopiertBeiOffenemFenster)
{
    Fensterprobe p;
    const fs::path quelle = p.ordner.wurzel() / "Quelle";
    for (const char* name : {"55010011.16O", "55020011.16o", "unter/55030011.16o", "brief.txt"})
        schreiben(quelle / name, rinex_kopf);
    p.g.Datei_Verzeichnis = Laufwerke().dos(quelle).value();
    p.zeigen();
    Drehbuch b;
    b.im("Dateien", [&](QWidget& fenster) {
        QTest::qWait(20);
        auto& liste = teil<QListWidget>(fenster, "List1");
        EXPECT_EQ(liste.count(), 2);
        taste(Qt::Key_U, Qt::AltModifier);
        EXPECT_EQ(liste.count(), 3);
        EXPECT_TRUE(liste.item(2)->text().endsWith(QStringLiteral("\\Quelle\\unter\\55030011.16o")));
        klick(fenster, "cmd_alle");
        EXPECT_EQ(liste.selectedItems().size(), 3);
        klick(fenster, "cmd_keine");
        EXPECT_EQ(liste.selectedItems().size(), 0);
        klick(fenster, "Command1");  // nothing is marked
        EXPECT_EQ(p.g.dateien_liste.anzahl(), 0);
        liste.setFocus();
        taste(Qt::Key_Home);
        taste(Qt::Key_Down, Qt::ShiftModifier);
        klick(fenster, "Command1");
        EXPECT_TRUE(fs::exists(p.pfad("55010011.16o")) && fs::exists(p.pfad("55020011.16o")));
        EXPECT_FALSE(fs::exists(p.pfad("55030011.16o")));
        EXPECT_EQ(liste.selectedItems().size(), 0) << "what was copied is no longer marked";
        EXPECT_FALSE(teil(fenster, "prg_fortschritt").isVisible());
        EXPECT_TRUE(fenster.isVisible());
        auto& baum = teil<QTreeWidget>(fenster, "Dir1");
        doppelklick(baum, baum.indexFromItem(verzeichnis(fenster, "unter")));
        EXPECT_EQ(liste.count(), 1);
        klick(fenster, "Command2");
    });
    b.meldung();  // the second file has no observations; the intake says so and goes on
    p.befehl("m_datei_rinex");
    EXPECT_EQ(p.g.Datei_Verzeichnis, Laufwerke().dos(quelle / "unter").value());
    EXPECT_EQ(p.g.dateien_liste.anzahl(), 2);

    // Escape after nothing was copied leaves all as it is.
    b.im("Dateien", [](QWidget&) { taste(Qt::Key_Escape); });
    const std::string vorher = p.g.Datei_Verzeichnis;
    p.befehl("m_datei_rinex");
    EXPECT_EQ(p.g.Datei_Verzeichnis, vorher);
    EXPECT_EQ(p.g.dateien_liste.anzahl(), 0);
}

TEST(Dateienfenster, MeldetFehlerUndEndetDamit)
{
    Fensterprobe p;
    const fs::path quelle = p.ordner.wurzel() / "Quelle";
    for (const char* name : {"a.apc", "b.atx", "c.apc"}) schreiben(quelle / name, "x");
    p.g.Verfahren[1].Antenne = "?";
    p.g.Datei_Verzeichnis = Laufwerke().dos(quelle).value();
    fs::create_directory(p.pfad("a.apc"));
    p.zeigen();
    Drehbuch b;
    b.im("Dateien", [&](QWidget& fenster) {
        QTest::qWait(20);
        EXPECT_EQ(fenster.windowTitle().toStdString(), "Antennen-Dateien in das Verfahren einfügen");
        klick(fenster, "cmd_alle");
        b.meldung();
        klick(fenster, "Command1");
        EXPECT_EQ(teil<QListWidget>(fenster, "List1").selectedItems().size(), 3);
        fs::remove(p.pfad("a.apc"));
        b.meldung();
        taste(Qt::Key_P, Qt::AltModifier);
        EXPECT_TRUE(fs::exists(p.pfad("a.apc")));
        EXPECT_FALSE(fs::exists(p.pfad("b.atx")) || fs::exists(p.pfad("c.apc")));
        taste(Qt::Key_Escape);  // what was copied counts all the same
    });
    b.meldung();
    p.befehl("m_datei_antenne");
    ASSERT_EQ(b.meldungen.size(), 3u);
    EXPECT_TRUE(b.meldungen[0].starts_with("Kopierfehler! Die Datei: \n"));
    EXPECT_TRUE(b.meldungen[1].starts_with("Das Format von Antennenkorrekturdaten (IGS / ANTEX) darf\n"));
    EXPECT_TRUE(b.meldungen[2].starts_with("Antennen-Dateien im Format *.apc"));
    EXPECT_EQ(p.g.Antennen_Dateien.anzahl(), 1);
}

TEST(Dateienfenster, PasstAuchWaehrendDesKopierens)
{
    Fensterprobe p;
    Drehbuch b;
    p.zeigen();
    b.im("Dateien", [&](QWidget& fenster) {
        EXPECT_EQ(fenster.windowTitle().toStdString(), "RINEX-Dateien in das Verfahren einfügen");
        elemente_pruefen(fenster, {{"Drive1", "&Laufwerk:"},
                                   {"Dir1", "&Verzeichnis:"},
                                   {"Check1", "mit &Unterverzeichnissen"},
                                   {"List1", "&Dateien:"},
                                   {"fra_markieren", "Dateien markieren"},
                                   {"cmd_alle", "&Alle"},
                                   {"cmd_keine", "&Keine"},
                                   {"Command1", "zu &Projekt kopieren"},
                                   {"Command2", "Über&nehmen"},
                                   {"prg_fortschritt", nullptr},
                                   {"lbl_fortschritt", nullptr}});
        fenster_pruefen(fenster);
        teil<QLabel>(fenster, "lbl_fortschritt").setText(QStringLiteral("Bitte warten (Dateien werden kopiert)"));
        for (const char* name : {"lbl_fortschritt", "prg_fortschritt"}) teil(fenster, name).show();
        QTest::qWait(5);
        fenster_pruefen(fenster);
        taste(Qt::Key_Escape);
    });
    p.befehl("m_datei_rinex");
}

// ---- editor

TEST(Editorwahl, SetztDenEditorUndDieBeschriftungDesMenues)
{
    Fensterprobe p;
    schreiben(p.pfad("kate"), "#!/bin/sh\n");
    p.zeigen();
    Drehbuch b;
    b.im("editor", [&](QWidget& fenster) {
        auto& wahl = static_cast<QFileDialog&>(fenster);
        EXPECT_EQ(wahl.windowTitle().toStdString(), "Editor auswählen");
        EXPECT_EQ(wahl.nameFilters(),
                  (QStringList{QStringLiteral("Programme (*.exe)"), QStringLiteral("Alle Dateien (*)")}));
        wahl.selectNameFilter(QStringLiteral("Alle Dateien (*)"));
        wahl.setDirectory(QString::fromStdString(p.ordner.host().string()));
        QTest::qWait(50);
        teil<QLineEdit>(fenster, "fileNameEdit").setText(QStringLiteral("kate"));
        QTest::keyClick(&teil(fenster, "fileNameEdit"), Qt::Key_Return);
    });
    p.befehl("m_grund_editor");
    EXPECT_EQ(p.g.Editor, p.ordner.dos() + "\\kate");
    EXPECT_EQ(p.form.eintrag(QStringLiteral("m_grund_editor"))->text().remove(QLatin1Char('&')).toStdString(),
              "Editor: \"kate\"");
}

}  // namespace jorv
