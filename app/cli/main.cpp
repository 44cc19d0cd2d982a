// SPDX-License-Identifier: GPL-3.0-or-later
// velmaris-cli: the program's calculations without a display.
#include "app/cli/befehle.h"
#include "project/FatalError.h"
#include "project/c_glob.h"

#include <cstring>
#include <iostream>
#include <vector>

namespace {

void hilfe(std::ostream& aus) {
    aus << "usage: velmaris-cli COMMAND ...\n"
           "  calc --new [--klima DIR] [--hourly]   recalculate the new project, print JSON\n"
           "  calc PROJECT.vel [--klima DIR] [--sprache d|e] [--hourly]\n"
           "                                        open a project, recalculate, print JSON\n"
           "  save OUT.vel [--from PROJECT.vel] [--klima DIR]\n"
           "                                        write the new or the opened project\n"
           "  import SOURCE --name NAME ...          convert climate data into a station file\n"
           "  klima stationen | plz CODE | region X Y\n"
           "                                        station lists, post code and map region\n"
           "  report PROJECT.vel OUT.rtf [--sprache d|e] [--seite 0..7]\n"
           "                                        the report as Rich Text\n"
           "  temperaturen PROJECT.vel OUT.txt [--sprache d|e]\n"
           "                                        the year's hourly temperatures\n"
           "  drucken PROJECT.vel OUT.pdf [--seiten 1,3,5] [--sprache d|e]\n"
           "                                        the printed pages as a PDF file\n";
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    if (args.empty() || args[0] == "--help" || args[0] == "-h") {
        hilfe(args.empty() ? std::cerr : std::cout);
        return args.empty() ? 1 : 0;
    }
    const std::vector<std::string> rest(args.begin() + 1, args.end());
    try {
        if (args[0] == "calc") {
            return befehl_calc(rest, std::cout, std::cerr);
        }
        if (args[0] == "save") {
            return befehl_save(rest, std::cout, std::cerr);
        }
        if (args[0] == "import") {
            return befehl_import(rest, std::cout, std::cerr);
        }
        if (args[0] == "klima") {
            return befehl_klima(rest, std::cout, std::cerr);
        }
        if (args[0] == "report") {
            return befehl_report(rest, std::cout, std::cerr);
        }
        if (args[0] == "temperaturen") {
            return befehl_temperaturen(rest, std::cout, std::cerr);
        }
        if (args[0] == "drucken") {
            return befehl_drucken(rest, std::cout, std::cerr);
        }
        std::cerr << "velmaris-cli: unknown command \"" << args[0] << "\"\n";
        hilfe(std::cerr);
        return 1;
    } catch (const FatalError& fehler) {
        std::cerr << "velmaris-cli: " << fehler.text(projekt().Sprache) << "\n";
        return 2;
    }
}
