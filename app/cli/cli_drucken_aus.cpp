// SPDX-License-Identifier: GPL-3.0-or-later
// The command drucken of a build without the desktop: printing needs Qt's PDF writer.
#include "app/cli/befehle.h"

int befehl_drucken(const std::vector<std::string>&, std::ostream&, std::ostream& fehler) {
    fehler << "velmaris-cli: drucken needs the desktop build\n";
    return 1;
}
