// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop program on the platform, offscreen: a project opened through the desktop entry's
// Exec line, Qt's own dialogs in the language of the run, the save dialog's first folder and
// extension.
#include "project/Dialogs.h"
#include "project/c_glob.h"
#include "project/lebenszyklus/FILEIO.h"
#include "tests/project/SkriptDialogs.h"
#include "tests/support/Testprojekt.h"
#include "tests/ui/Uitesthilfe.h"
#include "ui/Desktopprogramm.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFocusFrame>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>
#include <QtTest>

#include <filesystem>
#include <fstream>
#include <functional>

class TestPlattform : public QObject {
    Q_OBJECT

    std::unique_ptr<TempOrdner> klima;
    std::unique_ptr<Testprogramm> programm;

    // Runs `pruefen` on the modal dialog that the next call opens.
    static void im_dialog(std::function<void(QWidget*)> pruefen) {
        QTimer::singleShot(0, [pruefen] {
            QWidget* w = QApplication::activeModalWidget();
            QVERIFY(w != nullptr);
            pruefen(w);
        });
    }

    // The Exec line of the delivered desktop entry with %f replaced by `datei`, as the
    // arguments the program gets.
    static QStringList exec_argumente(const std::string& datei) {
        std::ifstream eintrag(VELMARIS_SOURCE_DIR "/app/desktop/velmaris.desktop");
        std::string zeile;
        while (std::getline(eintrag, zeile) && zeile.rfind("Exec=", 0) != 0) {
        }
        QStringList argumente =
            QString::fromStdString(zeile.substr(5)).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (QString& a : argumente) {
            if (a == QStringLiteral("%f")) {
                a = QString::fromStdString(datei);
            }
        }
        argumente.removeFirst();
        return argumente;
    }

private slots:
    void initTestCase() { klima = klima_kopie(); }
    void cleanup() {
        programm.reset();
        std::filesystem::remove(klima->pfad() / "typ.dat");
    }

    void projekt_mit_grossbuchstaben_und_leerzeichen_aus_dem_desktopeintrag() {
        TempOrdner heim;
        const std::filesystem::path ordner = heim.pfad() / "Eigene Dateien" / "Klasse 7B";
        std::filesystem::create_directories(ordner);
        const std::string datei = (ordner / "Haus Süd.vel").string();
        SkriptDialogs dialoge;
        programm = programm_starten(&dialoge, *klima, "d");
        programm->p.b = 14.0f;
        dialoge.dateien.push_back(datei);
        programm->io->datei_speichern_unter();
        programm.reset();

        programm = std::make_unique<Testprogramm>(&dialoge, [] { return std::string("d"); });
        programm->klimaordner = klima->pfad().string();
        programm->starten(befehlszeile_aus(exec_argumente(datei)));
        programm->Timer1_Timer();
        QCOMPARE(programm->p.b, 14.0f);
        QCOMPARE(programm->p.Datei, datei);
    }

    void knoepfe_der_meldungen_in_der_sprache_des_laufs() {
        struct Fall {
            const char* sprache;
            QString ja, nein, abbrechen;
        };
        for (const Fall& f : {
                 Fall{"d", QStringLiteral("&Ja"), QStringLiteral("&Nein"),
                      QStringLiteral("Abbrechen")},
                 Fall{"e", QStringLiteral("&Yes"), QStringLiteral("&No"), QStringLiteral("Cancel")},
             }) {
            programm = programm_starten(nullptr, *klima, f.sprache);
            QStringList texte;
            const char* sprache = f.sprache;
            im_dialog([&texte, sprache](QWidget* w) {
                auto* box = qobject_cast<QMessageBox*>(w);
                QVERIFY(box != nullptr);
                for (auto k : {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}) {
                    texte << box->button(k)->text();
                }
                bild_speichern(*box, QStringLiteral("meldung_") + QLatin1String(sprache));
                box->button(QMessageBox::Cancel)->click();
            });
            programm->dialoge().nachricht(
                programm->p.txt_Aenderung, programm->p.txt_Aenderung_Titel,
                Dialogs::Symbol::Ausrufezeichen, Dialogs::Knoepfe::JaNeinAbbrechen);
            QCOMPARE(texte, (QStringList{f.ja, f.nein, f.abbrechen}));
            programm.reset();
        }
    }

    void speicherdialog_deutsch_im_ordner_mit_endung() {
        programm = programm_starten(nullptr, *klima, "d");
        TempOrdner projekte;
        const QString ordner = QString::fromStdString(projekte.pfad().string());
        QString abbrechen, ort;
        im_dialog([&](QWidget* w) {
            auto* d = qobject_cast<QFileDialog*>(w);
            QVERIFY(d != nullptr);
            abbrechen = d->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->text();
            ort = d->directory().absolutePath();
            bild_speichern(*d, QStringLiteral("speicherdialog_d"));
            d->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
                ->setText(QStringLiteral("Haus Süd"));
            QMetaObject::invokeMethod(d, "accept");
        });
        const auto pfad = programm->dialoge().speichern_dialog(FILEIO::FILTER_SPEICHERN, 1,
                                                               projekte.pfad().string());
        QCOMPARE(abbrechen, QStringLiteral("Abbrechen"));
        QCOMPARE(ort, ordner);
        QVERIFY(pfad.has_value());
        QCOMPARE(QString::fromStdString(*pfad), ordner + QStringLiteral("/Haus Süd.vel"));
    }

    void tastatur_durch_die_sechs_eingabeebenen() {
        SkriptDialogs dialoge;
        programm = programm_starten(&dialoge, *klima, "d");
        Hauptfenster& h = *programm->haupt;
        h.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&h));
        for (int e = 0; e < 6; ++e) {
            h.eingabe_zeigen(e);
            // Every visible, enabled control of the plane; of a group of options one is enough.
            QSet<QWidget*> erwartet;
            QSet<QObject*> optionsgruppen;
            for (QWidget* w : h.eingabe[static_cast<std::size_t>(e)]->findChildren<QWidget*>()) {
                const bool bedienbar = w->isVisibleTo(&h) && w->isEnabled() &&
                                       (w->focusPolicy() & Qt::TabFocus) != 0 &&
                                       w->focusProxy() == nullptr;
                if (!bedienbar || qobject_cast<QComboBox*>(w->parent()) != nullptr) {
                    continue;
                }
                if (qobject_cast<QRadioButton*>(w) != nullptr) {
                    optionsgruppen.insert(w->parent());
                } else {
                    erwartet.insert(w);
                }
            }
            QVERIFY(!erwartet.isEmpty());
            h.eingabe_knopf[static_cast<std::size_t>(e)]->setFocus();
            QSet<QWidget*> erreicht;
            QSet<QObject*> gruppen_erreicht;
            QList<QScrollBar*> balken;
            for (int i = 0; i < 300; ++i) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                QWidget* f = QApplication::focusWidget();
                if (erreicht.contains(f)) {
                    break;
                }
                erreicht.insert(f);
                if (qobject_cast<QRadioButton*>(f) != nullptr) {
                    gruppen_erreicht.insert(f->parent());
                }
                if (auto* b = qobject_cast<QScrollBar*>(f); b != nullptr && erwartet.contains(b)) {
                    balken << b;
                }
            }
            for (QWidget* w : erwartet) {
                QVERIFY2(erreicht.contains(w),
                         qPrintable(QStringLiteral("plane %1: Tab never reaches %2 %3")
                                        .arg(e)
                                        .arg(QString::fromUtf8(w->metaObject()->className()),
                                             w->objectName())));
            }
            QCOMPARE(gruppen_erreicht, optionsgruppen);

            // The scroll fields: the small step on the arrow keys, the large one on the page
            // keys, each undone by the opposite key; the focus frame stands around the field.
            for (QScrollBar* b : balken) {
                b->setFocus();
                auto* rahmen = h.findChild<QFocusFrame*>(QStringLiteral("Fokusrahmen"));
                QVERIFY(rahmen != nullptr && rahmen->isVisible());
                QVERIFY(rahmen->geometry().contains(b->geometry()));
                if (b == balken.first()) {
                    bild_speichern(h, QStringLiteral("fokus_ebene%1").arg(e));
                }
                const bool waagrecht = b->orientation() == Qt::Horizontal;
                // The arrow keys move by the field's small step, the page keys by its large one
                // (less where the field stops or holds its value to a bound), the opposite key
                // back.
                const struct {
                    Qt::Key hin, zurueck;
                    int schritt;
                } tasten[] = {
                    {waagrecht ? Qt::Key_Right : Qt::Key_Down,
                     waagrecht ? Qt::Key_Left : Qt::Key_Up, b->singleStep()},
                    {Qt::Key_PageDown, Qt::Key_PageUp, b->pageStep()},
                };
                for (const auto& t : tasten) {
                    const int vorher = b->value();
                    auto hin = t.hin;
                    auto zurueck = t.zurueck;
                    QTest::keyClick(b, hin);
                    if (b->value() == vorher) {
                        // At its end the field moves the other way.
                        std::swap(hin, zurueck);
                        QTest::keyClick(b, hin);
                    }
                    const int weg = std::abs(b->value() - vorher);
                    QVERIFY2(weg > 0 && weg <= t.schritt,
                             qPrintable(QStringLiteral("plane %1: moved %2, step %3")
                                            .arg(e)
                                            .arg(weg)
                                            .arg(t.schritt)));
                    const int nach = b->value();
                    QTest::keyClick(b, zurueck);
                    QVERIFY((b->value() - nach) * (nach - vorher) < 0);
                }
            }
        }
    }

    void menues_mit_zugriffstasten_in_beiden_sprachen() {
        for (const char* sprache : {"d", "e"}) {
            SkriptDialogs dialoge;
            programm = programm_starten(&dialoge, *klima, sprache);
            std::function<void(const QList<QAction*>&)> pruefen =
                [&pruefen, sprache](const QList<QAction*>& eintraege) {
                    QSet<int> tasten;
                    for (const QAction* a : eintraege) {
                        if (a->isSeparator()) {
                            continue;
                        }
                        const QKeySequence taste = QKeySequence::mnemonic(a->text());
                        QVERIFY2(!taste.isEmpty(),
                                 qPrintable(a->text() + QLatin1Char(' ') + QLatin1String(sprache)));
                        const int t = taste[0].key();
                        QVERIFY2(!tasten.contains(t), qPrintable(a->text()));
                        tasten.insert(t);
                        if (a->menu() != nullptr) {
                            pruefen(a->menu()->actions());
                        }
                    }
                };
            pruefen(programm->haupt->menuBar()->actions());
            programm.reset();
        }
        // Alt and the file menu's letter open it.
        SkriptDialogs dialoge;
        programm = programm_starten(&dialoge, *klima, "e");
        Hauptfenster& h = *programm->haupt;
        h.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&h));
        QAction* datei = h.menuBar()->actions().first();
        const QKeySequence taste = QKeySequence::mnemonic(datei->text());
        QTest::keyClick(&h, static_cast<Qt::Key>(taste[0].key() & ~Qt::AltModifier),
                        Qt::AltModifier);
        QTRY_VERIFY(datei->menu()->isVisible());
        datei->menu()->close();
    }
};

QTEST_MAIN(TestPlattform)
#include "test_plattform.moc"
