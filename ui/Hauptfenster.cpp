// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Hauptfenster.h"

#include "ui/Bau.h"
#include "ui/Massstab.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGroupBox>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>

#include <algorithm>

using bau::TWIPS_JE_PIXEL;

namespace {

// The fixed places, twips of the client area: the input planes under E_Menue (375 high), the
// output planes from x 5280 over A_Menue at y 7530, the whole 12000 wide and 8190 high.
constexpr int EINGABE_TOP = 375 / TWIPS_JE_PIXEL;
constexpr int AUSGABE_LEFT = 5280 / TWIPS_JE_PIXEL;
constexpr int A_MENUE_TOP = 7530 / TWIPS_JE_PIXEL;
constexpr int CLIENT_BREITE = 12000 / TWIPS_JE_PIXEL;
constexpr int CLIENT_HOEHE = 8190 / TWIPS_JE_PIXEL;

struct Knopf {
    const char* name;
    const char* ebene;
    const char* text;
};
constexpr std::array<Knopf, 6> EINGABEN{{{"Geometrie", "E_Geometrie", "Geometrie"},
                                         {"Fenster", "E_Fenster", "Fenster"},
                                         {"Daemmung", "E_Daemmung", "Dämmung"},
                                         {"Gebaeude", "E_Gebaeude", "Gebäude"},
                                         {"Klima", "E_Klima", "Klima"},
                                         {"Energie", "E_Energie", "Energie"}}};
constexpr std::array<Knopf, 5> AUSGABEN{{{"Uebersicht", "A_Uebersicht", "Übersicht"},
                                         {"Klima", "A_Klima", "Klima / Gebäude"},
                                         {"Heizen", "A_Heizen", "Heizen"},
                                         {"Kuehlen", "A_Kuehlen", "Kühlen"},
                                         {"Sankey", "A_Sankey", "Energieflüsse"}}};

QString qs(const char* t) {
    return QString::fromUtf8(t);
}

} // namespace

Hauptfenster::Hauptfenster() {
    setObjectName(QStringLiteral("Haupt"));
    auto* mitte = new QWidget(this);
    mitte->setMinimumSize(CLIENT_BREITE, CLIENT_HOEHE);
    setCentralWidget(mitte);

    E_Menue = new QWidget(mitte);
    E_Menue->setObjectName(QStringLiteral("E_Menue"));
    E_Menue->setGeometry(0, 0, AUSGABE_LEFT, EINGABE_TOP);
    const int eb = AUSGABE_LEFT / static_cast<int>(EINGABEN.size());
    for (std::size_t i = 0; i < EINGABEN.size(); ++i) {
        eingabe_knopf[i] = bau::knopf(E_Menue, EINGABEN[i].name, EINGABEN[i].text,
                                      static_cast<int>(i) * eb, 0, eb, EINGABE_TOP);
        auto* ebene = new QGroupBox(mitte);
        ebene->setObjectName(qs(EINGABEN[i].ebene));
        ebene->setGeometry(0, EINGABE_TOP, AUSGABE_LEFT, CLIENT_HOEHE - EINGABE_TOP);
        ebene->hide();
        eingabe[i] = ebene;
        connect(eingabe_knopf[i], &QPushButton::clicked, this,
                [this, i] { eingabe_zeigen(static_cast<int>(i)); });
    }
    A_Menue = new QWidget(mitte);
    A_Menue->setObjectName(QStringLiteral("A_Menue"));
    A_Menue->setGeometry(AUSGABE_LEFT, A_MENUE_TOP, CLIENT_BREITE - AUSGABE_LEFT,
                         CLIENT_HOEHE - A_MENUE_TOP);
    const int ab = (CLIENT_BREITE - AUSGABE_LEFT) / static_cast<int>(AUSGABEN.size());
    for (std::size_t i = 0; i < AUSGABEN.size(); ++i) {
        ausgabe_knopf[i] = bau::knopf(A_Menue, AUSGABEN[i].name, AUSGABEN[i].text,
                                      static_cast<int>(i) * ab, 4, ab, 30);
        auto* ebene = new QGroupBox(mitte);
        ebene->setObjectName(qs(AUSGABEN[i].ebene));
        ebene->setGeometry(AUSGABE_LEFT, 0, CLIENT_BREITE - AUSGABE_LEFT, A_MENUE_TOP);
        ebene->hide();
        ausgabe[i] = ebene;
        connect(ausgabe_knopf[i], &QPushButton::clicked, this,
                [this, i] { ausgabe_zeigen(static_cast<int>(i)); });
    }
    menue_bauen();
    massstab_ = new Massstab(*mitte, QSize(CLIENT_BREITE, CLIENT_HOEHE));
    eingabe_zeigen(Geometrie);
    ausgabe_zeigen(Uebersicht);
    ausgabe_aktiv_ = false;
    // A click or the focus in a plane makes it the one F1 explains.
    qApp->installEventFilter(this);
    // The least size: the whole client area (8595 twips of the window are its 8190 with the
    // frame of the platform) under the menu.
    setMinimumSize(CLIENT_BREITE, CLIENT_HOEHE + menuBar()->sizeHint().height());
    resize(minimumSize());
}

void Hauptfenster::menue_bauen() {
    QMenuBar* leiste = menuBar();
    auto menue = [&](QMenu* oben, const char* name, const char* text) {
        QMenu* m = oben != nullptr ? oben->addMenu(qs(text)) : leiste->addMenu(qs(text));
        m->menuAction()->setObjectName(qs(name));
        return m;
    };
    auto eintrag = [&](QMenu* m, const char* name, const char* text, std::function<void()>* ziel) {
        QAction* a = m->addAction(qs(text));
        a->setObjectName(qs(name));
        if (ziel != nullptr) {
            connect(a, &QAction::triggered, this, [ziel] {
                if (*ziel) {
                    (*ziel)();
                }
            });
        }
        return a;
    };
    QMenu* datei = menue(nullptr, "mnuFile", "&Datei");
    eintrag(datei, "mnuFileNeu", "&Neu", &neu);
    eintrag(datei, "mnuFileOeffnen", "Ö&ffnen", &oeffnen);
    eintrag(datei, "mnuFileSpeichern", "&Speichern", &speichern);
    eintrag(datei, "mnuFileunter", "Speichern &unter...", &speichern_unter);
    datei->addSeparator()->setObjectName(QStringLiteral("mnuFileSep"));
    eintrag(datei, "mnuFileDrucken", "&Drucken...", &drucken);
    datei->addSeparator()->setObjectName(QStringLiteral("mnuFileSep2"));
    eintrag(datei, "mnuFileExit", "&Beenden", &beenden);

    QMenu* report = menue(nullptr, "mnuAusgaben", "&Report");
    eintrag(report, "mnuBerechnungsergebnisseExportieren", "&Report anzeigen", &report_anzeigen);
    eintrag(report, "mnuTemperaturExport", "&Temperaturwerte anzeigen", &temperaturen_anzeigen);

    QMenu* win = menue(nullptr, "mnuWin", "&Arbeitsebene");
    const std::array<std::pair<const char*, const char*>, 6> ebenen{{{"mnuWinGeo", "&Geometrie"},
                                                                     {"mnuWinFens", "&Fenster"},
                                                                     {"mnuWinDaem", "&Dämmung"},
                                                                     {"mnuWinGeb", "Ge&bäude"},
                                                                     {"mnuWinKlima", "&Klima"},
                                                                     {"mnuWinEnerg", "&Energie"}}};
    for (std::size_t i = 0; i < ebenen.size(); ++i) {
        QAction* a = eintrag(win, ebenen[i].first, ebenen[i].second, nullptr);
        connect(a, &QAction::triggered, this, [this, i] { eingabe_zeigen(static_cast<int>(i)); });
    }

    // The zoom, with the keys of the usual programs.
    win->addSeparator();
    mnuZoomGroesser = eintrag(win, "mnuZoomGroesser", "Vergrößern", nullptr);
    mnuZoomGroesser->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    mnuZoomKleiner = eintrag(win, "mnuZoomKleiner", "Verkleinern", nullptr);
    mnuZoomKleiner->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Minus));
    mnuZoomOriginal = eintrag(win, "mnuZoomOriginal", "Originalgröße", nullptr);
    mnuZoomOriginal->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_0));
    connect(mnuZoomGroesser, &QAction::triggered, this, [this] { zoom_setzen(zoomstufe_ + 1); });
    connect(mnuZoomKleiner, &QAction::triggered, this, [this] { zoom_setzen(zoomstufe_ - 1); });
    connect(mnuZoomOriginal, &QAction::triggered, this, [this] { zoom_setzen(0); });
    mnuZoomKleiner->setEnabled(false);

    QMenu* extras = menue(nullptr, "mnuExtras", "&Extras");
    eintrag(extras, "mnuKlimaImportieren", "&Klimadaten importieren", &klimaimport);
    QMenu* sprachen = menue(extras, "mnuSprache", "&Sprache");
    mnuSpracheDeutsch = eintrag(sprachen, "mnuSpracheDeutsch", "&Deutsch", nullptr);
    mnuSpracheEnglisch = eintrag(sprachen, "mnuSpracheEnglisch", "&English", nullptr);
    mnuSpracheDeutsch->setCheckable(true);
    mnuSpracheEnglisch->setCheckable(true);
    mnuSpracheDeutsch->setChecked(true);
    connect(mnuSpracheDeutsch, &QAction::triggered, this, [this] {
        if (sprache) {
            sprache("d");
        }
    });
    connect(mnuSpracheEnglisch, &QAction::triggered, this, [this] {
        if (sprache) {
            sprache("e");
        }
    });

    QMenu* frage = menue(nullptr, "mnuQuest", "&?");
    // The menu entry opens the start page, F1 the section of the plane last worked on.
    eintrag(frage, "mnuQuestHilfe", "&Hilfe", &hilfe);
    auto* f1 = new QShortcut(QKeySequence(Qt::Key_F1), this);
    f1->setObjectName(QStringLiteral("F1"));
    f1->setContext(Qt::ApplicationShortcut);
    connect(f1, &QShortcut::activated, this, [this] {
        if (hilfe_zur_ebene) {
            hilfe_zur_ebene();
        }
    });
    eintrag(frage, "mnuQuestInfo", "&Info...", &info);
}

void Hauptfenster::zoom_beschriften(bool englisch) {
    mnuZoomGroesser->setText(englisch ? QStringLiteral("Zoom in") : QStringLiteral("Vergrößern"));
    mnuZoomKleiner->setText(englisch ? QStringLiteral("Zoom out") : QStringLiteral("Verkleinern"));
    mnuZoomOriginal->setText(englisch ? QStringLiteral("Actual size")
                                      : QStringLiteral("Originalgröße"));
}

void Hauptfenster::zoom_setzen(int stufe) {
    zoomstufe_ = std::clamp(stufe, 0, static_cast<int>(ZOOMSTUFEN.size()) - 1);
    const double z = ZOOMSTUFEN[static_cast<std::size_t>(zoomstufe_)];
    QSize client(static_cast<int>(std::lround(CLIENT_BREITE * z)),
                 static_cast<int>(std::lround(CLIENT_HOEHE * z)));
    if (isMaximized() || isFullScreen()) {
        showNormal();
    }
    // The window's own parts around the client area: the menu bar and the platform's frame.
    const QSize client_jetzt = centralWidget()->isVisible()
                                   ? centralWidget()->size()
                                   : QSize(width(), height() - menuBar()->sizeHint().height());
    const QSize drumherum = size() - client_jetzt;
    if (const QScreen* schirm = screen()) {
        const QSize rahmen = frameGeometry().size() - geometry().size();
        const QSize frei = schirm->availableGeometry().size() - rahmen - drumherum;
        client = client.boundedTo(frei).expandedTo(QSize(CLIENT_BREITE, CLIENT_HOEHE));
    }
    setMinimumSize(client + drumherum);
    resize(client + drumherum);
    mnuZoomGroesser->setEnabled(zoomstufe_ + 1 < static_cast<int>(ZOOMSTUFEN.size()));
    mnuZoomKleiner->setEnabled(zoomstufe_ > 0);
}

void Hauptfenster::eingabe_zeigen(int ebene) {
    // Hidden in the order Daemmung, Energie, Fenster, Gebaeude, Geometrie, Klima.
    for (int i : {Daemmung, Energie, Fenster, Gebaeude, Geometrie, Klima}) {
        eingabe[static_cast<std::size_t>(i)]->hide();
    }
    for (int i : {Daemmung, Energie, Fenster, Gebaeude, Geometrie, Klima}) {
        eingabe_knopf[static_cast<std::size_t>(i)]->setEnabled(true);
    }
    eingabe_gezeigt_ = ebene;
    ausgabe_aktiv_ = false;
    eingabe[static_cast<std::size_t>(ebene)]->show();
    eingabe_knopf[static_cast<std::size_t>(ebene)]->setEnabled(false);
    if (ebene_gezeigt) {
        ebene_gezeigt();
    }
}

void Hauptfenster::ausgabe_zeigen(int ebene) {
    for (QWidget* w : ausgabe) {
        w->hide();
    }
    for (QPushButton* k : ausgabe_knopf) {
        k->setEnabled(true);
    }
    ausgabe_gezeigt_ = ebene;
    ausgabe_aktiv_ = true;
    ausgabe[static_cast<std::size_t>(ebene)]->show();
    ausgabe_knopf[static_cast<std::size_t>(ebene)]->setEnabled(false);
    if (ebene_gezeigt) {
        ebene_gezeigt();
    }
}

void Hauptfenster::closeEvent(QCloseEvent* e) {
    if (schliessen_erlaubt && !schliessen_erlaubt()) {
        e->ignore();
        return;
    }
    e->accept();
}

bool Hauptfenster::eventFilter(QObject* ziel, QEvent* e) {
    if (e->type() == QEvent::MouseButtonPress || e->type() == QEvent::FocusIn) {
        if (auto* w = qobject_cast<QWidget*>(ziel)) {
            QWidget* links = eingabe[static_cast<std::size_t>(eingabe_gezeigt_)];
            QWidget* rechts = ausgabe[static_cast<std::size_t>(ausgabe_gezeigt_)];
            if (w == rechts || rechts->isAncestorOf(w)) {
                ausgabe_aktiv_ = true;
            } else if (w == links || links->isAncestorOf(w)) {
                ausgabe_aktiv_ = false;
            }
        }
    }
    return QMainWindow::eventFilter(ziel, e);
}
