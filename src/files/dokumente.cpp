// The two file helpers. They use the POSIX calls directly: the atomic replacement needs a file
// descriptor to flush and a rename, and the failure message needs errno.

#include "files/dokumente.h"
#include "files/ordner.h"
#include "textmatrix/zahltext.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <locale.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tabulon {

namespace {

// The error text as the C locale words it, whatever locale the desktop set for messages.
std::string fehlerText(int nummer) {
    static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
    if (cLocale != static_cast<locale_t>(nullptr)) {
        return strerror_l(nummer, cLocale);
    }
    return "Error " + ganzText(nummer);
}

std::string dateiName(const std::string& name) {
    return "Matrix_" + name + ".txt";
}

// Temporary files are named ".Matrix_<name>.txt.<pid>-<n>.tmp".
std::string temporaerPraefix(const std::string& name) {
    return "." + dateiName(name) + ".";
}

bool nurZiffern(std::string_view s) {
    return !s.empty() &&
           std::all_of(s.begin(), s.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// The process id of a temporary file name of ours for `name`, or -1 for any other file name.
long temporaerProzess(std::string_view datei, const std::string& name) {
    const std::string praefix = temporaerPraefix(name);
    if (!datei.starts_with(praefix) || !datei.ends_with(".tmp")) {
        return -1;
    }
    datei.remove_prefix(praefix.size());
    datei.remove_suffix(4);
    const auto strich = datei.find('-');
    if (strich == std::string_view::npos || !nurZiffern(datei.substr(0, strich)) ||
        !nurZiffern(datei.substr(strich + 1)) || strich > 9) {
        return -1;
    }
    return std::stol(std::string(datei.substr(0, strich)));
}

// Removes what an interrupted save to `name` left behind: temporary files of our naming whose
// process is gone, or which are this process's own (it writes one file at a time, so any other
// temporary of its own is a leftover). A temporary of another running Tabulon is left alone; it
// is that program's save in progress.
void resteEntfernen(const std::filesystem::path& ordner, const std::string& name) {
    std::error_code fehler;
    std::filesystem::directory_iterator eintraege(ordner, fehler);
    if (fehler) {
        return;
    }
    const long selbst = ::getpid();
    for (const auto& eintrag : eintraege) {
        const long prozess = temporaerProzess(eintrag.path().filename().string(), name);
        if (prozess < 0) {
            continue;
        }
        const bool verwaist = prozess == selbst || prozess == 0 ||
                              (::kill(static_cast<pid_t>(prozess), 0) != 0 && errno == ESRCH);
        if (verwaist) {
            // unlink removes a link itself, never what it points to, and fails on a folder.
            ::unlink(eintrag.path().c_str());
        }
    }
}

std::pair<bool, std::string> fehlschlag(const std::filesystem::path& ziel, int nummer) {
    return {false, "Failed writing to URL: " + dateiUrl(ziel) + ", Error: " + fehlerText(nummer)};
}

bool allesSchreiben(int fd, const std::string& s) {
    std::size_t geschrieben = 0;
    while (geschrieben < s.size()) {
        const ssize_t n = ::write(fd, s.data() + geschrieben, s.size() - geschrieben);
        if (n < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        geschrieben += static_cast<std::size_t>(n);
    }
    return true;
}

// A fresh temporary file beside the target. O_EXCL makes sure we never write into a file that
// already exists (a leftover, or a link someone placed there); the mode goes through the umask
// like any file the user creates. The process id keeps other processes out of our names, and a
// name still taken within the process (a leftover of an earlier failure) only costs a retry, so
// the numbers start at 0 every time and no counter outlives the call.
int temporaerAnlegen(const std::filesystem::path& ordner, const std::string& name,
                     std::filesystem::path& temp) {
    for (int versuch = 0; versuch < 100; ++versuch) {
        temp = ordner /
               (temporaerPraefix(name) + ganzText(::getpid()) + "-" + ganzText(versuch) + ".tmp");
        const int fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd >= 0 || errno != EEXIST) {
            return fd;
        }
    }
    return -1;
}

} // namespace

bool sichererDateiname(std::string_view name) {
    if (name.empty() || name.find("..") != std::string_view::npos) {
        return false;
    }
    return std::none_of(name.begin(), name.end(), [](char zeichen) {
        const auto c = static_cast<unsigned char>(zeichen);
        return c == '/' || c == '\\' || c < 0x20 || c == 0x7F;
    });
}

std::string dateiUrl(const std::filesystem::path& pfad) {
    static const char* const hex = "0123456789ABCDEF";
    std::error_code fehler;
    std::filesystem::path absolut = std::filesystem::absolute(pfad, fehler);
    if (fehler) {
        absolut = pfad;
    }
    std::string url = "file://";
    for (const char zeichen : absolut.string()) {
        const auto c = static_cast<unsigned char>(zeichen);
        const bool frei = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
                          (c >= '0' && c <= '9') || c == '-' || c == '.' || c == '_' || c == '~' ||
                          c == '/';
        if (frei) {
            url.push_back(zeichen);
        } else {
            url.push_back('%');
            url.push_back(hex[c >> 4]);
            url.push_back(hex[c & 0x0F]);
        }
    }
    return url;
}

std::pair<bool, std::string> schreiben(const std::optional<std::filesystem::path>& ordner,
                                       const std::string& name, const std::string& s) {
    if (!ordner) {
        return {true, ""};
    }
    const std::filesystem::path ziel = *ordner / dateiName(name);
    if (!sichererDateiname(name)) {
        return fehlschlag(ziel, EINVAL);
    }
    // A folder that is known but cannot be made is a failed write like any other.
    if (const int nummer = ordnerAnlegen(*ordner); nummer != 0) {
        return fehlschlag(ziel, nummer);
    }
    std::filesystem::path temp;
    const int fd = temporaerAnlegen(*ordner, name, temp);
    if (fd < 0) {
        return fehlschlag(ziel, errno);
    }
    int nummer = 0;
    // The new file keeps the permissions of the one it replaces, so that a private list stays
    // private; a new file has the umask's, from the open above.
    struct stat alt {};
    if (::stat(ziel.c_str(), &alt) == 0 && S_ISREG(alt.st_mode) &&
        ::fchmod(fd, alt.st_mode & 07777) != 0) {
        nummer = errno;
    }
    if (nummer == 0 && (!allesSchreiben(fd, s) || ::fsync(fd) != 0)) {
        nummer = errno;
    }
    if (::close(fd) != 0 && nummer == 0) {
        nummer = errno;
    }
    if (nummer == 0 && ::rename(temp.c_str(), ziel.c_str()) != 0) {
        nummer = errno;
    }
    if (nummer != 0) {
        ::unlink(temp.c_str());
        return fehlschlag(ziel, nummer);
    }
    // The rename itself reaches the disk with the folder; a failure here loses nothing, since
    // either the old or the new file is in place.
    const int ordnerFd = ::open(ordner->c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (ordnerFd >= 0) {
        ::fsync(ordnerFd);
        ::close(ordnerFd);
    }
    resteEntfernen(*ordner, name);
    return {true, ""};
}

std::pair<bool, std::string> lesen(const std::optional<std::filesystem::path>& ordner,
                                   const std::string& fileName, std::size_t grenze) {
    if (!ordner) {
        return {false, ""};
    }
    if (!sichererDateiname(fileName)) {
        return {false, keineDateiMeldung};
    }
    const std::filesystem::path pfad = *ordner / (fileName + ".txt");
    // O_NONBLOCK so that a named pipe under the file's name cannot make us wait forever; it is
    // refused right after as no regular file.
    const int fd = ::open(pfad.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        return {false, keineDateiMeldung};
    }
    struct stat info {};
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        ::close(fd);
        return {false, keineDateiMeldung};
    }
    // At most grenze + 1 bytes: enough for the caller to see that a file is too big, without
    // the cost of a huge file, or of an endless one under /proc.
    const std::size_t hoechstens = grenze == SIZE_MAX ? grenze : grenze + 1;
    std::string text;
    char puffer[65536];
    while (text.size() < hoechstens) {
        const ssize_t n = ::read(fd, puffer, std::min(sizeof puffer, hoechstens - text.size()));
        if (n < 0) {
            if (errno == EINTR) {
                continue;
            }
            ::close(fd);
            return {false, keineDateiMeldung};
        }
        if (n == 0) {
            break;
        }
        text.append(puffer, static_cast<std::size_t>(n));
    }
    ::close(fd);
    return {true, text};
}

} // namespace tabulon
