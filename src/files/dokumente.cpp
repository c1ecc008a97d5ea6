// The two file helpers. They use the POSIX calls directly: the atomic replacement needs a file
// descriptor to flush and a rename, and the failure message needs errno.

#include "files/dokumente.h"
#include "textmatrix/zahltext.h"

#include <algorithm>
#include <cerrno>
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
// like any file the user creates.
int temporaerAnlegen(const std::filesystem::path& ordner, const std::string& name,
                     std::filesystem::path& temp) {
    static unsigned zaehler = 0;
    for (int versuch = 0; versuch < 100; ++versuch) {
        temp = ordner / ("." + dateiName(name) + "." + ganzText(::getpid()) + "-" +
                         ganzText(zaehler++) + ".tmp");
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
    std::filesystem::path temp;
    const int fd = temporaerAnlegen(*ordner, name, temp);
    if (fd < 0) {
        return fehlschlag(ziel, errno);
    }
    int nummer = 0;
    if (!allesSchreiben(fd, s) || ::fsync(fd) != 0) {
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
    return {true, ""};
}

std::pair<bool, std::string> lesen(const std::optional<std::filesystem::path>& ordner,
                                   const std::string& fileName) {
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
    std::string text;
    char puffer[65536];
    for (;;) {
        const ssize_t n = ::read(fd, puffer, sizeof puffer);
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
