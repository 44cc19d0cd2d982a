// SPDX-License-Identifier: GPL-3.0-or-later
// velmaris-cli: the program's calculations without a display.
#include "app/cli/aufrufe.h"
#include "app/cli/befehle.h"
#include "project/FatalError.h"
#include "project/c_glob.h"

#include <cstring>
#include <iostream>
#include <vector>

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    if (args.empty() || args[0] == "--help" || args[0] == "-h") {
        (args.empty() ? std::cerr : std::cout) << gesamtaufruf();
        return args.empty() ? 1 : 0;
    }
    const std::vector<std::string> rest(args.begin() + 1, args.end());
    Projekt& p = projekt();
    // COMMAND --help: that command's usage, whatever else stands beside it.
    for (const std::string& a : rest) {
        if ((a == "--help" || a == "-h") && !aufruf(args[0]).empty()) {
            std::cout << aufruf(args[0]);
            return 0;
        }
    }
    try {
        if (args[0] == "calc") {
            return befehl_calc(p, rest, std::cout, std::cerr);
        }
        if (args[0] == "save") {
            return befehl_save(p, rest, std::cout, std::cerr);
        }
        if (args[0] == "import") {
            return befehl_import(rest, std::cout, std::cerr);
        }
        if (args[0] == "klima") {
            return befehl_klima(p, rest, std::cout, std::cerr);
        }
        if (args[0] == "report") {
            return befehl_report(p, rest, std::cout, std::cerr);
        }
        if (args[0] == "temperaturen") {
            return befehl_temperaturen(p, rest, std::cout, std::cerr);
        }
        if (args[0] == "drucken") {
            return befehl_drucken(rest, std::cout, std::cerr);
        }
        std::cerr << "velmaris-cli: unknown command \"" << args[0] << "\"\n" << gesamtaufruf();
        return 1;
    } catch (const FatalError& fehler) {
        std::cerr << "velmaris-cli: " << fehler.text(p.Sprache) << "\n";
        return 2;
    }
}
