// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/KlimaimportFenster.h"

#include "climate/import/eingabefilter.h"
#include "climate/import/importtexte.h"
#include "climate/import/vorschau.h"
#include "climate/klimadatei.h"
#include "climate/stationsordner.h"
#include "language/Beschriftungen.h"
#include "project/Dialogs.h"
#include "project/c_glob.h"
#include "ui/Bau.h"
#include "ui/Uebersetzen.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStringDecoder>

#include <algorithm>

namespace {

constexpr const char* FILTER = "Alle Dateien (*.*)|*.*";

// Left edge and width of the grid's columns, right of the row numbers.
constexpr int GITTER_X = 48;
constexpr int GITTER_BREITE = 146;

// A source's text as the controls show it: UTF-8 where it is, else the bytes as Latin-1, so
// that an ANSI file keeps its umlauts.
QString anzeige(std::string_view text) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString s = utf8(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    if (utf8.hasError()) {
        s = QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
    }
    return s;
}

// Drops every typed character that `erlaubt` refuses; keys that type nothing (cursor keys,
// Delete) and Escape, which belongs to the window, pass.
class Tastenfilter : public QObject {
public:
    Tastenfilter(bool (*erlaubt)(int), QObject* eltern) : QObject(eltern), erlaubt_(erlaubt) {}

protected:
    bool eventFilter(QObject* o, QEvent* e) override {
        if (e->type() == QEvent::KeyPress) {
            const auto* k = static_cast<QKeyEvent*>(e);
            const QString t = k->text();
            if (k->key() != Qt::Key_Escape && k->key() != Qt::Key_Delete) {
                for (const QChar c : t) {
                    if (!erlaubt_(c.unicode())) {
                        return true;
                    }
                }
            }
        }
        return QObject::eventFilter(o, e);
    }

private:
    bool (*erlaubt_)(int);
};

QLineEdit* feld(QWidget* eltern, const char* name, int x, int y, int w) {
    auto* e = new QLineEdit(eltern);
    e->setObjectName(QString::fromUtf8(name));
    e->setGeometry(x, y, w, 22);
    return e;
}

QComboBox* liste(QWidget* eltern, const char* name, const std::vector<std::string>& eintraege,
                 int x, int y, int w) {
    QComboBox* c = bau::liste(eltern, x, y, w);
    c->setObjectName(QString::fromUtf8(name));
    for (const std::string& e : eintraege) {
        c->addItem(QString::fromStdString(e));
    }
    return c;
}

// A caption of the design with its row in the English table.
template <class W> W* zeile(W* w, int nr) {
    w->setProperty("zeile", nr);
    return w;
}

} // namespace

KlimaimportFenster::KlimaimportFenster(Projekt& p, Dialogs& dateidialog, ImportDialoge& dialoge,
                                       QWidget* eltern)
    : QDialog(eltern), p_(p), dateidialog_(dateidialog), dialoge_(dialoge) {
    setObjectName(QStringLiteral("E_Klimaimport"));
    setWindowTitle(QStringLiteral("Klimadaten importieren"));
    bauen();
    if (p_.Sprache == "e") {
        // The first row of the table is the window's own title.
        const std::vector<Beschriftung>& tabelle = beschriftungen("E_Klimaimport");
        setWindowTitle(QString::fromUtf8(tabelle[0].Englisch.data(),
                                         static_cast<qsizetype>(tabelle[0].Englisch.size())));
        unuebersetzt = fenster_uebersetzen(*this, "E_Klimaimport") - 1;
    }
    verbinden();
    AlleEingabenTesten();
}

void KlimaimportFenster::bauen() {
    setFixedSize(960, 660);
    const std::string& s = p_.Sprache;

    QGroupBox* quelle = zeile(bau::rahmen(this, "Frame1", "Quelldatei", 8, 8, 944, 56), 1);
    DateinameBox = feld(quelle, "DateinameBox", 12, 22, 740);
    Command1 = zeile(bau::knopf(quelle, "Command1", "Quelldatei auswählen", 764, 20, 168, 26), 2);

    QGroupBox* format = zeile(bau::rahmen(this, "Frame2", "Datenformat", 8, 70, 450, 156), 3);
    const std::array<const char*, 3> trennung{
        "Daten durch Tabulatoren getrennt",
        "Daten in Spalten (durch Leerzeichen getrennt, linksbündig)",
        "Daten in Spalten (durch Leerzeichen getrennt, rechtsbündig)"};
    for (std::size_t i = 0; i < trennung.size(); ++i) {
        const std::string name = "Datentrennung(" + std::to_string(i) + ")";
        Datentrennung[i] = zeile(
            bau::option(format, name.c_str(), trennung[i], 12, 22 + 22 * static_cast<int>(i), 430),
            4 + static_cast<int>(i));
    }
    Datentrennung[0]->setChecked(true);
    zeile(bau::text(format, "Label1", "Anzahl der Kopfzeilen:", 12, 98), 7);
    Kopfzeilen = feld(format, "Kopfzeilen", 200, 95, 60);
    zeile(bau::text(format, "Label2", "Dezimalzeichen:", 12, 126), 8);
    Dezimalzeichen = liste(format, "Dezimalzeichen", text_dezimalzeichen(s), 200, 123, 120);

    QGroupBox* ort = zeile(bau::rahmen(this, "Frame3", "Standort", 466, 70, 486, 156), 9);
    zeile(bau::text(ort, "Label3", "Name des Standorts:", 12, 25), 10);
    Standortname = feld(ort, "Standortname", 150, 22, 320);
    zeile(bau::text(ort, "Label4", "Land:", 12, 51), 11);
    Land = feld(ort, "Land", 150, 48, 320);
    zeile(bau::text(ort, "Label5", "Breitengrad:", 12, 77), 12);
    Breitengrad = feld(ort, "Breitengrad", 150, 74, 130);
    Breitezusatz = liste(ort, "Breitezusatz", text_breitezusatz(s), 290, 74, 180);
    zeile(bau::text(ort, "Label6", "Längengrad:", 12, 103), 13);
    Laengengrad = feld(ort, "Laengengrad", 150, 100, 130);
    Laengezusatz = liste(ort, "Laengezusatz", text_laengezusatz(s), 290, 100, 180);
    zeile(bau::text(ort, "Label7", "Zeitzone:", 12, 129), 14);
    GMT = liste(ort, "GMT", text_gmt(), 150, 126, 130);
    Zeitzone = feld(ort, "Zeitzone", 290, 126, 180);

    QGroupBox* ansicht = zeile(bau::rahmen(this, "Frame5", "Dateivorschau", 8, 232, 944, 150), 16);
    Dateiansicht = new QPlainTextEdit(ansicht);
    Dateiansicht->setObjectName(QStringLiteral("Dateiansicht"));
    Dateiansicht->setReadOnly(true);
    Dateiansicht->setLineWrapMode(QPlainTextEdit::NoWrap);
    Dateiansicht->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    Dateiansicht->setGeometry(10, 20, 924, 120);

    QGroupBox* gitter = zeile(bau::rahmen(this, "Frame4", "Datenzuordnung", 8, 388, 944, 226), 15);
    const std::vector<std::string> arten = text_datenreihe(s);
    for (std::size_t j = 0; j < Spalte.size(); ++j) {
        const int x = GITTER_X + static_cast<int>(j) * GITTER_BREITE;
        Spalte[j] = bau::text(gitter, ("Spalte(" + std::to_string(j) + ")").c_str(), "", x, 20,
                              GITTER_BREITE - 4);
        Spalte[j]->setAlignment(Qt::AlignCenter);
        Datenreihe[j] = liste(gitter, ("Datenreihe(" + std::to_string(j) + ")").c_str(), arten, x,
                              38, GITTER_BREITE - 4);
    }
    for (std::size_t i = 0; i < Zeilenzaehler.size(); ++i) {
        const int y = 66 + static_cast<int>(i) * 20;
        Zeilenzaehler[i] = bau::text(gitter, ("Zeilenzaehler(" + std::to_string(i) + ")").c_str(),
                                     "", 8, y + 1, GITTER_X - 12);
        Zeilenzaehler[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        for (std::size_t j = 0; j < Zelle[i].size(); ++j) {
            QLabel* z = bau::anzeige(gitter, GITTER_X + static_cast<int>(j) * GITTER_BREITE, y,
                                     GITTER_BREITE - 4);
            z->setTextFormat(Qt::PlainText);
            z->setAutoFillBackground(true);
            z->setBackgroundRole(QPalette::Base);
            Zelle[i][j] = z;
        }
    }
    const int rechts = GITTER_X + 6 * GITTER_BREITE - 4;
    HScroll1 =
        bau::balken(gitter, Qt::Horizontal, GITTER_X, 66 + 6 * 20 + 4, rechts - GITTER_X, 17);
    HScroll1->setObjectName(QStringLiteral("HScroll1"));
    HScroll1->setRange(1, 1);
    HScroll1->setPageStep(1);
    HScroll1->setEnabled(false);
    VScroll1 = bau::balken(gitter, Qt::Vertical, rechts + 4, 66, 17, 6 * 20 - 2);
    VScroll1->setObjectName(QStringLiteral("VScroll1"));
    VScroll1->setRange(0, 0);
    VScroll1->setPageStep(6);

    Abbrechen = zeile(bau::knopf(this, "Abbrechen", "Abbrechen", 8, 622, 150, 28), 17);
    Command2 = zeile(bau::knopf(this, "Command2", "Klimaimport starten", 802, 622, 150, 28), 18);
    for (QPushButton* k : {Command1, Abbrechen, Command2}) {
        k->setAutoDefault(false);
    }
    schritte = {format, ort, ansicht, gitter};
    for (QGroupBox* r : schritte) {
        r->hide();
    }
}

void KlimaimportFenster::verbinden() {
    auto* zahlen = new Tastenfilter(&zahlentaste, this);
    for (QLineEdit* e : {Breitengrad, Laengengrad, Zeitzone}) {
        e->installEventFilter(zahlen);
    }
    Kopfzeilen->installEventFilter(new Tastenfilter(&ziffertaste, this));

    connect(Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
    connect(Abbrechen, &QPushButton::clicked, this, &QDialog::reject);

    // Typed texts go to their field and the inputs are tested anew.
    const std::array<std::pair<QLineEdit*, std::string*>, 7> texte{{
        {DateinameBox, &f.DateinameBox},
        {Kopfzeilen, &f.Kopfzeilen},
        {Standortname, &f.Standortname},
        {Land, &f.Land},
        {Breitengrad, &f.Breitengrad},
        {Laengengrad, &f.Laengengrad},
        {Zeitzone, &f.Zeitzone},
    }};
    for (const auto& [e, wert] : texte) {
        connect(e, &QLineEdit::textEdited, this, [this, wert = wert](const QString& t) {
            *wert = t.toStdString();
            AlleEingabenTesten();
        });
    }
    connect(Kopfzeilen, &QLineEdit::textEdited, this, [this] { vorschau_fuellen(); });

    for (std::size_t i = 0; i < Datentrennung.size(); ++i) {
        connect(Datentrennung[i], &QRadioButton::toggled, this, [this, i](bool an) {
            if (an && !f.Laden_aktiv) {
                f.Datentrennung = static_cast<int16_t>(i);
                vorschau_fuellen();
            }
        });
    }
    const std::array<std::pair<QComboBox*, int16_t*>, 4> listen{{
        {Dezimalzeichen, &f.Dezimalzeichen},
        {Breitezusatz, &f.Breitezusatz},
        {Laengezusatz, &f.Laengezusatz},
        {GMT, &f.GMT},
    }};
    for (const auto& [c, wert] : listen) {
        connect(c, &QComboBox::activated, this, [this, wert = wert](int i) {
            *wert = static_cast<int16_t>(i);
            AlleEingabenTesten();
        });
    }
    for (std::size_t j = 0; j < Datenreihe.size(); ++j) {
        connect(Datenreihe[j], &QComboBox::currentIndexChanged, this, [this, j](int i) {
            Datenreihe_Click(f, HScroll1->value(), static_cast<int>(j), static_cast<int16_t>(i));
        });
    }
    for (QScrollBar* b : {HScroll1, VScroll1}) {
        connect(b, &QScrollBar::valueChanged, this, [this] { vorschau_fuellen(); });
    }
}

void KlimaimportFenster::Command1_Click() {
    const std::optional<std::string> pfad = dateidialog_.oeffnen_dialog(FILTER, 1, p_.InitDir);
    if (!pfad || pfad->empty()) {
        return;
    }
    quelle_waehlen(*pfad);
}

void KlimaimportFenster::quelle_waehlen(const std::string& pfad) {
    std::string text;
    const Quelltext gelesen = quelltext_lesen(pfad, text);
    if (gelesen != Quelltext::gelesen) {
        dialoge_.meldung(text_fehler_titel(p_.Sprache), gelesen == Quelltext::zu_gross
                                                            ? text_zu_gross(p_.Sprache, pfad)
                                                            : text_nicht_lesbar(p_.Sprache, pfad));
        return;
    }
    text_ = std::move(text);
    zeilen_ = zeilen_teilen(text_);
    quelle_annehmen(f, pfad, text_, p_.Datei);
    // The project now remembers the source's name; the next save must ask for a name instead of
    // writing the project over the climate data.
    p_.Datei_offen = 0;
    f.Laden_aktiv = true;
    felder_zeigen();
    HScroll1->setValue(1);
    VScroll1->setValue(0);
    f.Laden_aktiv = false;
    vorschau_fuellen();
    for (QGroupBox* r : schritte) {
        r->show();
    }
    AlleEingabenTesten();
}

void KlimaimportFenster::felder_zeigen() {
    DateinameBox->setText(anzeige(f.DateinameBox));
    QString ansicht = anzeige(f.Dateiansicht);
    ansicht.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    Dateiansicht->setPlainText(ansicht);
    Kopfzeilen->setText(anzeige(f.Kopfzeilen));
    Datentrennung[static_cast<std::size_t>(std::clamp<int16_t>(f.Datentrennung, 0, 2))]->setChecked(
        true);
    Dezimalzeichen->setCurrentIndex(f.Dezimalzeichen);
    Standortname->setText(anzeige(f.Standortname));
    Land->setText(anzeige(f.Land));
    Breitengrad->setText(anzeige(f.Breitengrad));
    Laengengrad->setText(anzeige(f.Laengengrad));
    Zeitzone->setText(anzeige(f.Zeitzone));
    Breitezusatz->setCurrentIndex(f.Breitezusatz);
    Laengezusatz->setCurrentIndex(f.Laengezusatz);
    GMT->setCurrentIndex(f.GMT);
    // A source of a known format is read by its own rules: its columns need no choice.
    const bool spalten = f.Format == Quellformat::spalten;
    for (QRadioButton* o : Datentrennung) {
        o->setEnabled(spalten);
    }
    Kopfzeilen->setEnabled(spalten);
    Dezimalzeichen->setEnabled(spalten);
    // The lists start unused; the preview shows the choices where it can be filled.
    for (QComboBox* c : Datenreihe) {
        c->setCurrentIndex(SPALTE_UNBENUTZT);
        c->setEnabled(spalten);
    }
}

void KlimaimportFenster::vorschau_fuellen() {
    if (f.Laden_aktiv || f.Vorschau_aktiv) {
        return;
    }
    const Vorschau v = ::vorschau_fuellen(f, zeilen_, HScroll1->value(), VScroll1->value());
    if (!v.gefuellt) {
        return;
    }
    f.Vorschau_aktiv = true;
    HScroll1->setRange(1, v.HScroll1_Max);
    HScroll1->setValue(v.HScroll1);
    HScroll1->setEnabled(v.HScroll1_Enabled);
    VScroll1->setRange(0, v.VScroll1_Max);
    VScroll1->setValue(v.VScroll1);
    for (std::size_t j = 0; j < Spalte.size(); ++j) {
        Spalte[j]->setText(QString::number(v.Spalte[j]));
        Datenreihe[j]->setCurrentIndex(v.Datenreihe[j]);
    }
    for (std::size_t i = 0; i < Zeilenzaehler.size(); ++i) {
        Zeilenzaehler[i]->setText(QString::number(v.Zeilenzaehler[i]));
        for (std::size_t j = 0; j < Zelle[i].size(); ++j) {
            Zelle[i][j]->setText(anzeige(v.Zelle[i][j]));
        }
    }
    f.Vorschau_aktiv = false;
}

void KlimaimportFenster::AlleEingabenTesten() {
    Command2->setEnabled(::AlleEingabenTesten(f));
}

void KlimaimportFenster::Command2_Click() {
    ergebnis = klimadaten_importieren(f, importordner(p_), p_.Sprache, dialoge_);
    if (ergebnis.ausgang == Importausgang::geschrieben) {
        accept();
    }
}
