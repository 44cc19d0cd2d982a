// SPDX-License-Identifier: GPL-3.0-or-later
// The replacing write behind every save: killed writers, rivals, links, permissions and a full
// disk leave the target either the old or the new file, whole.
#include "project/Dateizugriff.h"
#include "project/Laufzeitfehler.h"
#include "tests/support/Testprojekt.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <random>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// Files of the folder other than `behalten`: leftovers of a writer.
std::vector<std::string> uebrige(const fs::path& ordner, const std::string& behalten) {
    std::vector<std::string> namen;
    for (const auto& e : fs::directory_iterator(ordner)) {
        if (e.path().filename() != behalten) {
            namen.push_back(e.path().filename().string());
        }
    }
    return namen;
}

// A text of `groesse` bytes filled with `zeichen` and ended by a mark, so that a cut shows.
std::string inhalt(char zeichen, std::size_t groesse) {
    return std::string(groesse - 4, zeichen) + "ENDE";
}

// Runs `schreiber` in a child process and returns its exit status (-1 for a signal).
template <typename F> int im_kind(F schreiber) {
    const pid_t kind = fork();
    if (kind == 0) {
        _exit(schreiber());
    }
    int status = 0;
    waitpid(kind, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

mode_t rechte(const fs::path& pfad) {
    struct stat st {};
    stat(pfad.c_str(), &st);
    return st.st_mode & 07777;
}

} // namespace

TEST(Dateiersetzen, KilledWriterLeavesTheOldOrTheNewFileWhole) {
    TempOrdner ordner;
    const fs::path ziel = ordner.pfad() / "p.vel";
    const std::string alt = inhalt('a', 3 << 20);
    const std::string neu1 = inhalt('b', 2 << 20);
    const std::string neu2 = inhalt('c', 4 << 20);
    datei_ersetzen(ziel.string(), alt);
    std::mt19937 zufall(17);
    int mitten = 0;
    for (int runde = 0; runde < 40; ++runde) {
        const pid_t kind = fork();
        if (kind == 0) {
            for (int i = 0;; ++i) {
                datei_ersetzen(ziel.string(), i % 2 ? neu1 : neu2);
            }
        }
        std::this_thread::sleep_for(std::chrono::microseconds(zufall() % 40000));
        kill(kind, SIGKILL);
        waitpid(kind, nullptr, 0);
        const std::string da = datei_lesen(ziel);
        EXPECT_TRUE(da == alt || da == neu1 || da == neu2)
            << "round " << runde << ", " << da.size() << " bytes";
        mitten += uebrige(ordner.pfad(), "p.vel").empty() ? 0 : 1;
    }
    // Most kills hit a write; the next save that succeeds clears what they left.
    EXPECT_GT(mitten, 0);
    datei_ersetzen(ziel.string(), "fertig");
    EXPECT_EQ(datei_lesen(ziel), "fertig");
    EXPECT_TRUE(uebrige(ordner.pfad(), "p.vel").empty());
}

TEST(Dateiersetzen, RivalWritersEndWithOneWholeFile) {
    TempOrdner ordner;
    const fs::path ziel = ordner.pfad() / "s.met";
    const std::string a = inhalt('a', 1 << 20);
    const std::string b = inhalt('b', 3 << 20);
    std::vector<pid_t> kinder;
    for (const std::string* text : {&a, &b}) {
        const pid_t kind = fork();
        if (kind == 0) {
            for (int i = 0; i < 30; ++i) {
                datei_ersetzen(ziel.string(), *text);
            }
            _exit(0);
        }
        kinder.push_back(kind);
    }
    for (const pid_t kind : kinder) {
        int status = 0;
        waitpid(kind, &status, 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    }
    const std::string da = datei_lesen(ziel);
    EXPECT_TRUE(da == a || da == b) << da.size();
    EXPECT_TRUE(uebrige(ordner.pfad(), "s.met").empty());
}

TEST(Dateiersetzen, LinksArePassedThroughAndPermissionsKept) {
    TempOrdner ordner;
    fs::create_directory(ordner.pfad() / "echt");
    const fs::path echt = ordner.pfad() / "echt/haus.vel";
    datei_ersetzen(echt.string(), "alt");
    fs::permissions(echt, fs::perms(0640));
    // A relative link, and a link to that link.
    fs::create_symlink("echt/haus.vel", ordner.pfad() / "link.vel");
    fs::create_symlink(ordner.pfad() / "link.vel", ordner.pfad() / "zweiter.vel");
    datei_ersetzen((ordner.pfad() / "zweiter.vel").string(), "neu");
    EXPECT_TRUE(fs::is_symlink(ordner.pfad() / "zweiter.vel"));
    EXPECT_TRUE(fs::is_symlink(ordner.pfad() / "link.vel"));
    EXPECT_EQ(datei_lesen(echt), "neu");
    EXPECT_EQ(rechte(echt), 0640u);
    EXPECT_EQ(uebrige(ordner.pfad() / "echt", "haus.vel"), std::vector<std::string>{});

    // A link to a file not yet there creates it; a new file follows the umask.
    fs::create_symlink("echt/neu.vel", ordner.pfad() / "offen.vel");
    const mode_t maske = umask(022);
    datei_ersetzen((ordner.pfad() / "offen.vel").string(), "eins");
    umask(maske);
    EXPECT_TRUE(fs::is_symlink(ordner.pfad() / "offen.vel"));
    EXPECT_EQ(datei_lesen(ordner.pfad() / "echt/neu.vel"), "eins");
    EXPECT_EQ(rechte(ordner.pfad() / "echt/neu.vel"), 0644u);
}

TEST(Dateiersetzen, FaultsLeaveTheTargetAndNoTemporaryFile) {
    TempOrdner ordner;
    const fs::path ziel = ordner.pfad() / "bericht.rtf";
    datei_ersetzen(ziel.string(), "alt");
    // A full disk: the file size limit stops the write half way.
    const int status = im_kind([&] {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit grenze{4096, 4096};
        setrlimit(RLIMIT_FSIZE, &grenze);
        try {
            datei_ersetzen(ziel.string(), inhalt('x', 100000));
        } catch (const Laufzeitfehler& f) {
            return f.nummer() == Laufzeitfehler::DateiZugriff &&
                           std::string(f.what()).find("too large") != std::string::npos
                       ? 0
                       : 2;
        }
        return 1;
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(datei_lesen(ziel), "alt");
    EXPECT_TRUE(uebrige(ordner.pfad(), "bericht.rtf").empty());

    // A folder in the target's place, a missing folder and a link cycle are faults of their own.
    fs::create_directory(ordner.pfad() / "ordner.rtf");
    fs::create_symlink("schleife", ordner.pfad() / "schleife");
    for (const fs::path& falsch : {ordner.pfad() / "ordner.rtf", ordner.pfad() / "fehlt/x.rtf",
                                   ordner.pfad() / "schleife"}) {
        EXPECT_THROW(datei_ersetzen(falsch.string(), "x"), Laufzeitfehler) << falsch;
    }
    EXPECT_EQ(uebrige(ordner.pfad(), "bericht.rtf").size(), 2u);
}
