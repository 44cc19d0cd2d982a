// SPDX-License-Identifier: GPL-3.0-or-later
// The command drucken: the printed pages need Qt's PDF writer, which no other command needs. The
// printing program velmaris-drucken takes this process's place with the same arguments, so that
// its messages and its exit status are the command's own.
#include "app/cli/befehle.h"
#include "project/pfade.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iostream>

namespace {

// Beside velmaris-cli in a build, in libexec/velmaris beside bin/ when installed; empty when
// neither holds it.
std::string druckprogramm() {
    const std::filesystem::path ordner = programmordner();
    for (const std::filesystem::path& k :
         {ordner / "velmaris-drucken",
          ordner.parent_path() / "libexec" / "velmaris" / "velmaris-drucken"}) {
        if (access(k.c_str(), X_OK) == 0) {
            return k.string();
        }
    }
    return {};
}

} // namespace

int befehl_drucken(const std::vector<std::string>& args, std::ostream& aus, std::ostream& fehler) {
    const std::string programm = druckprogramm();
    if (programm.empty()) {
        fehler << "velmaris-cli: drucken needs the desktop build (velmaris-drucken is missing)\n";
        return 1;
    }
    std::vector<char*> argv{const_cast<char*>("velmaris-drucken")};
    for (const std::string& a : args) {
        argv.push_back(const_cast<char*>(a.c_str()));
    }
    argv.push_back(nullptr);
    aus.flush();
    fehler.flush();
    execv(programm.c_str(), argv.data());
    fehler << "velmaris-cli: cannot start " << programm << ": " << std::strerror(errno) << "\n";
    return 1;
}
