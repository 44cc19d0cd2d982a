// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/pfade.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

std::string programmordner() {
    std::error_code fehler;
    const fs::path exe = fs::read_symlink("/proc/self/exe", fehler);
    if (fehler) {
        return fs::current_path(fehler).string();
    }
    return exe.parent_path().string();
}

namespace {

// An XDG base folder: the variable if it holds an absolute path, else HOME and the default.
fs::path xdg_ordner(const char* variable, const char* standard) {
    const char* wert = std::getenv(variable);
    if (wert != nullptr && fs::path(wert).is_absolute()) {
        return wert;
    }
    const char* heim = std::getenv("HOME");
    return fs::path(heim != nullptr ? heim : "/") / standard;
}

// Installed: the data lie in ../share/velmaris beside bin/, not beside the program.
bool installiert() {
    const fs::path programm = programmordner();
    std::error_code fehler;
    return !fs::is_directory(programm / "klima", fehler) &&
           fs::is_directory(programm.parent_path() / "share" / "velmaris" / "klima", fehler);
}

} // namespace

Benutzerordner benutzerordner() {
    if (!installiert()) {
        return {};
    }
    return {(xdg_ordner("XDG_CONFIG_HOME", ".config") / "velmaris").string(),
            (xdg_ordner("XDG_DATA_HOME", ".local/share") / "velmaris" / "klima").string()};
}

std::string datenordner(const std::string& name) {
    const fs::path programm = programmordner();
    const fs::path kandidaten[] = {
        programm / name,
        programm.parent_path() / "share" / "velmaris" / name,
        fs::path(VELMARIS_SOURCE_DIR) / name,
    };
    std::error_code fehler;
    for (const fs::path& k : kandidaten) {
        if (fs::is_directory(k, fehler)) {
            return k.string();
        }
    }
    return (programm / name).string();
}
