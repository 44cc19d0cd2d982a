// SPDX-License-Identifier: GPL-3.0-or-later
// The picture sheet of a project: every input and output plane (the climate plane in each of its
// three scopes), the report window, the enlarged temperature course and the printed pages, in
// German and in English, as PNG files in one folder, with index.html showing them side by side.
// The printed pages are written through the print dialog's own code as one PDF per language,
// LANGUAGE_seiten.pdf; tools/bildbogen.sh turns each page into the PNG that the index names.
//
//   velmaris-bildbogen FOLDER [PROJECT.vel]
//
// Without a project the new project is shown. Status 1 for wrong arguments, 2 when a picture or
// the index cannot be written.
#include "print/Ausdrucken.h"
#include "print/qt/QtDrucker.h"
#include "project/c_glob.h"
#include "tools/bildbogen/Bildablage.h"
#include "tools/bildbogen/StillesProgramm.h"
#include "ui/ChartWidget.h"
#include "ui/Desktopprogramm.h"
#include "ui/ZoomFenster.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <iostream>
#include <string>
#include <utility>
#include <vector>

namespace {

struct Bild {
    QString datei, titel;
};

class Bildbogen {
public:
    explicit Bildbogen(QString ordner) : ordner_(std::move(ordner)) {}

    // The pictures of one language, in the same order for both.
    std::vector<Bild> sprache(const std::string& sprache, const std::string& projekt);
    bool index(const std::vector<Bild>& deutsch, const std::vector<Bild>& englisch) const;
    bool fehlerfrei() const { return fehlerfrei_; }

private:
    void ablegen(QWidget& w, const QString& name, const QString& titel, std::vector<Bild>& bilder);

    QString ordner_;
    bool fehlerfrei_ = true;
};

void Bildbogen::ablegen(QWidget& w, const QString& name, const QString& titel,
                        std::vector<Bild>& bilder) {
    QApplication::processEvents();
    if (!bild_ablegen(w, ordner_, name)) {
        std::cerr << "cannot write " << (ordner_ + QLatin1Char('/') + name).toStdString()
                  << ".png\n";
        fehlerfrei_ = false;
    }
    bilder.push_back({name + QStringLiteral(".png"), titel});
}

std::vector<Bild> Bildbogen::sprache(const std::string& sprache, const std::string& projekt) {
    std::vector<Bild> bilder;
    // Each language starts on a record of its own.
    StillesProgramm lauf;
    Desktopprogramm& programm = lauf.programm;
    Stilledialoge& dialoge = lauf.dialoge;
    programm.starten(sprache);
    Hauptfenster& haupt = *programm.haupt;
    if (!projekt.empty()) {
        dialoge.datei = projekt;
        haupt.oeffnen();
    }
    const QString s = QString::fromStdString(sprache);
    const QString sprachname =
        sprache == "e" ? QStringLiteral("English") : QStringLiteral("Deutsch");
    auto titel = [&sprachname](const QString& t) {
        return QString(t).remove(QLatin1Char('&')) + QStringLiteral(" · ") + sprachname;
    };

    for (std::size_t i = 0; i < haupt.eingabe.size(); ++i) {
        if (static_cast<int>(i) == Hauptfenster::Klima) {
            continue;
        }
        haupt.eingabe_knopf[i]->click();
        ablegen(*haupt.eingabe[i], s + QLatin1Char('_') + haupt.eingabe[i]->objectName(),
                titel(haupt.eingabe_knopf[i]->text()), bilder);
    }
    for (std::size_t i = 0; i < haupt.ausgabe.size(); ++i) {
        haupt.ausgabe_knopf[i]->click();
        ablegen(*haupt.ausgabe[i], s + QLatin1Char('_') + haupt.ausgabe[i]->objectName(),
                titel(haupt.ausgabe_knopf[i]->text()), bilder);
    }

    // The report window is modal: its picture is taken once it stands, then it is closed.
    QTimer::singleShot(200, [&] {
        if (QWidget* fenster = QApplication::activeModalWidget()) {
            ablegen(*fenster, s + QStringLiteral("_Report"), titel(fenster->windowTitle()), bilder);
            fenster->close();
        }
    });
    haupt.report_anzeigen();

    // The enlarged temperature course, opened by a click on the overview's chart.
    haupt.ausgabe_knopf[Hauptfenster::Uebersicht]->click();
    programm.uebersicht_diagramme.Temperaturen->klick();
    if (programm.zoom) {
        ablegen(*programm.zoom, s + QStringLiteral("_A_Zoom"),
                titel(sprache == "e" ? QStringLiteral("Temperature course")
                                     : QStringLiteral("Temperaturverlauf")),
                bilder);
        programm.zoom->close();
    }

    // The climate plane in its three scopes, after the other planes, and then the project's own
    // scope again, so that the printed pages show the project as it was opened.
    const KlimawahlFelder& k = programm.klimawahl_felder;
    const int eigener = programm.p.Klimaauswahl >= 1 && programm.p.Klimaauswahl <= 3
                            ? programm.p.Klimaauswahl - 1
                            : 0;
    haupt.eingabe_knopf[Hauptfenster::Klima]->click();
    for (int i = 0; i < 3; ++i) {
        k.Option[static_cast<std::size_t>(i)]->click();
        ablegen(*haupt.eingabe[Hauptfenster::Klima], s + QStringLiteral("_E_Klima_%1").arg(i + 1),
                titel(haupt.eingabe_knopf[Hauptfenster::Klima]->text() + QStringLiteral(": ") +
                      k.Option[static_cast<std::size_t>(i)]->text()),
                bilder);
    }
    k.Option[static_cast<std::size_t>(eigener)]->click();

    // Every printed page, as the print dialog prints them with all options ticked.
    Druckauswahl alle;
    alle.fill(true);
    std::string fehler;
    const QString pdf = ordner_ + QLatin1Char('/') + s + QStringLiteral("_seiten.pdf");
    if (!pdf_ausdrucken(pdf.toStdString(), programm.p, *programm.ebenen, alle,
                        sprache == "e" ? '.' : ',', fehler)) {
        std::cerr << fehler << '\n';
        fehlerfrei_ = false;
    }
    int seite = 0;
    for (const Druckoption& o : druckoptionen()) {
        for (int j = 0; j < o.seiten; ++j) {
            ++seite;
            const char* t = sprache == "e" ? o.titel_englisch[j] : o.titel_deutsch[j];
            bilder.push_back(
                {s + QStringLiteral("_seite%1.png").arg(seite),
                 titel(QStringLiteral("%1 %2: %3")
                           .arg(sprache == "e" ? QStringLiteral("Page") : QStringLiteral("Seite"))
                           .arg(seite)
                           .arg(QString::fromUtf8(t)))});
        }
    }
    return bilder;
}

bool Bildbogen::index(const std::vector<Bild>& deutsch, const std::vector<Bild>& englisch) const {
    QString html = QStringLiteral(
        "<!DOCTYPE html>\n<html lang=\"de\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<title>Velmaris: Bildbogen</title>\n<style>\n"
        "body { font-family: sans-serif; margin: 1em; }\n"
        ".bogen { display: grid; grid-template-columns: repeat(2, minmax(0, 1fr)); gap: 1em; }\n"
        "figure { margin: 0; border: 1px solid #ccc; padding: 0.5em; }\n"
        "img { max-width: 100%; height: auto; display: block; }\n"
        "figcaption { font-size: 0.9em; margin-top: 0.3em; }\n"
        "</style>\n</head>\n<body>\n<h1>Velmaris: Bildbogen</h1>\n<div class=\"bogen\">\n");
    for (std::size_t i = 0; i < deutsch.size() || i < englisch.size(); ++i) {
        for (const std::vector<Bild>* bilder : {&deutsch, &englisch}) {
            if (i >= bilder->size()) {
                html += QStringLiteral("<div></div>\n");
                continue;
            }
            const Bild& b = (*bilder)[i];
            html += QStringLiteral("<figure><a href=\"%1\"><img src=\"%1\" alt=\"%2\"></a>"
                                   "<figcaption>%2</figcaption></figure>\n")
                        .arg(b.datei.toHtmlEscaped(), b.titel.toHtmlEscaped());
        }
    }
    html += QStringLiteral("</div>\n</body>\n</html>\n");
    QFile datei(ordner_ + QStringLiteral("/index.html"));
    return datei.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           datei.write(html.toUtf8()) == html.toUtf8().size();
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const QStringList argumente = QApplication::arguments().mid(1);
    if (argumente.size() < 1 || argumente.size() > 2) {
        std::cerr << "usage: velmaris-bildbogen FOLDER [PROJECT.vel]\n";
        return 1;
    }
    const QString ordner = QDir(argumente[0]).absolutePath();
    if (!QDir().mkpath(ordner)) {
        std::cerr << "cannot make the folder " << ordner.toStdString() << '\n';
        return 2;
    }
    const std::string projekt =
        argumente.size() == 2 ? QDir(argumente[1]).absolutePath().toStdString() : std::string();
    if (!projekt.empty() && !QFile::exists(QString::fromStdString(projekt))) {
        std::cerr << "no project file " << projekt << '\n';
        return 1;
    }
    Bildbogen bogen(ordner);
    const std::vector<Bild> deutsch = bogen.sprache("d", projekt);
    const std::vector<Bild> englisch = bogen.sprache("e", projekt);
    if (!bogen.index(deutsch, englisch)) {
        std::cerr << "cannot write " << ordner.toStdString() << "/index.html\n";
        return 2;
    }
    return bogen.fehlerfrei() ? 0 : 2;
}
