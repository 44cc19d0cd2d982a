// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/cli/pfade.h"

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
