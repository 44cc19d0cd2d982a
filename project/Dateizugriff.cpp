// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/Dateizugriff.h"

#include "project/Laufzeitfehler.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// Temporary files carry this mark between a dot and the target's name, so that no folder
// listing takes them for a project or a station, and the cleanup finds its own.
const std::string ZWISCHEN = ".velmaris-";

// Messages name the file the user chose, never the temporary one.
[[noreturn]] void fehler(const fs::path& pfad, int nummer) {
    throw Laufzeitfehler(Laufzeitfehler::DateiZugriff,
                         "Cannot write " + pfad.string() + ": " + std::strerror(nummer));
}

// The file a chain of symbolic links ends at; a dangling link names the file to create.
fs::path link_ziel(fs::path pfad) {
    for (int schritt = 0; schritt < 40; ++schritt) {
        std::error_code f;
        if (!fs::is_symlink(pfad, f)) {
            return pfad;
        }
        const fs::path weiter = fs::read_symlink(pfad, f);
        if (f) {
            fehler(pfad, f.value());
        }
        pfad = weiter.is_absolute() ? weiter : pfad.parent_path() / weiter;
    }
    fehler(pfad, ELOOP);
}

// Owns a descriptor; the lock a writer holds on its temporary file goes with it.
struct Deskriptor {
    int fd = -1;
    Deskriptor() = default;
    Deskriptor(Deskriptor&& anderer) noexcept : fd(std::exchange(anderer.fd, -1)) {}
    Deskriptor(const Deskriptor&) = delete;
    Deskriptor& operator=(const Deskriptor&) = delete;
    Deskriptor& operator=(Deskriptor&&) = delete;
    ~Deskriptor() {
        if (fd >= 0) {
            ::close(fd);
        }
    }
};

// Ten random letters and digits; a forked child draws its own, not its parent's.
std::string zufallsteil() {
    static const char ZEICHEN[] = "abcdefghijklmnopqrstuvwxyz0123456789";
    thread_local pid_t gezogen_von = 0;
    thread_local std::mt19937_64 zufall;
    if (gezogen_von != ::getpid()) {
        gezogen_von = ::getpid();
        zufall.seed(std::random_device{}() ^ static_cast<std::uint64_t>(gezogen_von) << 32);
    }
    std::string teil;
    for (int i = 0; i < 10; ++i) {
        teil += ZEICHEN[zufall() % (sizeof ZEICHEN - 1)];
    }
    return teil;
}

// A new, empty, locked file of a unique name beside `ziel`. The lock tells a cleanup in another
// writer that this file is alive; one that the cleanup unlinked before the lock is left.
std::pair<fs::path, Deskriptor> temporaer_anlegen(const fs::path& ziel) {
    for (int versuch = 0; versuch < 100; ++versuch) {
        fs::path neu =
            ziel.parent_path() / ("." + ziel.filename().string() + ZWISCHEN + zufallsteil());
        Deskriptor d;
        d.fd = ::open(neu.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (d.fd < 0) {
            if (errno == EEXIST) {
                continue;
            }
            fehler(ziel, errno);
        }
        if (::flock(d.fd, LOCK_EX) != 0) {
            const int nummer = errno;
            ::unlink(neu.c_str());
            fehler(ziel, nummer);
        }
        struct stat st {};
        if (::fstat(d.fd, &st) == 0 && st.st_nlink > 0) {
            return {neu, std::move(d)};
        }
    }
    fehler(ziel, EEXIST);
}

void alles_schreiben(int fd, const std::string& inhalt, const fs::path& ziel) {
    std::size_t geschrieben = 0;
    while (geschrieben < inhalt.size()) {
        const ssize_t n = ::write(fd, inhalt.data() + geschrieben, inhalt.size() - geschrieben);
        if (n < 0 && errno == EINTR) {
            continue;
        }
        if (n <= 0) {
            fehler(ziel, n < 0 ? errno : ENOSPC);
        }
        geschrieben += static_cast<std::size_t>(n);
    }
}

// The temporary files of `ziel` whose writers are gone: nobody holds their lock.
void verwaiste_entfernen(const fs::path& ziel) {
    const std::string anfang = "." + ziel.filename().string() + ZWISCHEN;
    const fs::path ordner = ziel.parent_path().empty() ? fs::path(".") : ziel.parent_path();
    std::error_code f;
    for (fs::directory_iterator it(ordner, f), ende; !f && it != ende; it.increment(f)) {
        const fs::path pfad = it->path();
        if (pfad.filename().string().rfind(anfang, 0) != 0) {
            continue;
        }
        Deskriptor d;
        d.fd = ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
        struct stat offen {};
        struct stat jetzt {};
        // Unlinked only while locked and still the file of that name.
        if (d.fd >= 0 && ::flock(d.fd, LOCK_EX | LOCK_NB) == 0 && ::fstat(d.fd, &offen) == 0 &&
            ::lstat(pfad.c_str(), &jetzt) == 0 && offen.st_ino == jetzt.st_ino &&
            offen.st_dev == jetzt.st_dev) {
            ::unlink(pfad.c_str());
        }
    }
}

} // namespace

std::string datei_text(const std::string& pfad, std::size_t grenze) {
    std::error_code fehler;
    std::ifstream ein;
    if (!fs::is_directory(pfad, fehler)) {
        ein.open(pfad, std::ios::binary);
    }
    if (!ein) {
        throw Laufzeitfehler(Laufzeitfehler::DateiNichtGefunden, "File not found: " + pfad);
    }
    // Read in pieces into a string as long as the file: a string of the full limit would be
    // zeroed first, which costs a short command more than the reading.
    std::string text;
    const std::uintmax_t groesse = fs::file_size(pfad, fehler);
    text.reserve(fehler ? 0 : static_cast<std::size_t>(std::min<std::uintmax_t>(groesse, grenze)));
    std::array<char, 1 << 16> stueck;
    while (text.size() < grenze) {
        ein.read(stueck.data(),
                 static_cast<std::streamsize>(std::min(stueck.size(), grenze - text.size())));
        text.append(stueck.data(), static_cast<std::size_t>(ein.gcount()));
        if (!ein) {
            break;
        }
    }
    if (ein.bad()) {
        throw Laufzeitfehler(Laufzeitfehler::DateiZugriff, "Read fault: " + pfad);
    }
    return text;
}

bool datei_vorhanden(const std::string& pfad) {
    std::error_code fehler;
    return !fs::is_directory(pfad, fehler) && std::ifstream(pfad, std::ios::binary).good();
}

void datei_ersetzen(const std::string& pfad, const std::string& inhalt) {
    const fs::path ziel = link_ziel(pfad);
    struct stat alt {};
    const bool vorhanden = ::stat(ziel.c_str(), &alt) == 0;
    if (vorhanden && !S_ISREG(alt.st_mode)) {
        fehler(ziel, S_ISDIR(alt.st_mode) ? EISDIR : EINVAL);
    }
    auto [neu, d] = temporaer_anlegen(ziel);
    try {
        if (vorhanden) {
            if (::fchmod(d.fd, alt.st_mode & 07777) != 0) {
                fehler(ziel, errno);
            }
            // Only the owner may give a file away; another user's save keeps its own.
            [[maybe_unused]] const int egal = ::fchown(d.fd, alt.st_uid, alt.st_gid);
        }
        alles_schreiben(d.fd, inhalt, ziel);
        if (::fsync(d.fd) != 0) {
            fehler(ziel, errno);
        }
        if (::rename(neu.c_str(), ziel.c_str()) != 0) {
            fehler(ziel, errno);
        }
    } catch (const Laufzeitfehler&) {
        ::unlink(neu.c_str());
        throw;
    }
    // The rename itself reaches the disk with the folder.
    Deskriptor ordner;
    ordner.fd = ::open(ziel.parent_path().empty() ? "." : ziel.parent_path().c_str(),
                       O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (ordner.fd >= 0) {
        ::fsync(ordner.fd);
    }
    verwaiste_entfernen(ziel);
}
