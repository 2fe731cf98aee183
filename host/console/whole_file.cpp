#include "host/console/whole_file.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace {

bool WriteAll(int file, const std::string& strContent) {
    size_t done = 0;
    while (done < strContent.size()) {
        const ssize_t written = ::write(file, strContent.data() + done, strContent.size() - done);
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        done += static_cast<size_t>(written);
    }
    return ::fsync(file) == 0;
}

// The rights a newly made file gets; mkstemp gives the owner's alone.
mode_t RightsOfNewFile() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

} // namespace

bool WriteWholeFile(const std::filesystem::path& path, const std::string& strContent, std::string* pReason) {
    std::string temporary = path.string() + ".XXXXXX";
    const int file = ::mkstemp(temporary.data());
    if (file < 0) {
        *pReason = std::strerror(errno);
        return false;
    }
    bool bDone = WriteAll(file, strContent) && ::fchmod(file, RightsOfNewFile()) == 0;
    int nError = bDone ? 0 : errno;
    if (::close(file) != 0 && bDone) {
        bDone = false;
        nError = errno;
    }
    if (bDone && ::rename(temporary.c_str(), path.c_str()) != 0) {
        bDone = false;
        nError = errno;
    }
    if (bDone) return true;
    ::unlink(temporary.c_str());
    *pReason = std::strerror(nError);
    return false;
}
