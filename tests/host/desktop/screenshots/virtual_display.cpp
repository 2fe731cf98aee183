#include "tests/host/desktop/screenshots/virtual_display.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>

namespace {

/// Becomes the server, which writes the number of the free display it found.
[[noreturn]] void BecomeServer(const std::string& strPixels, int nNumberTo) {
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    const int nNowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nNowhere, STDERR_FILENO);
    const std::string strNumberTo = std::to_string(nNumberTo), strScreen = strPixels + "x24";
    execlp("Xvfb", "Xvfb", "-displayfd", strNumberTo.c_str(), "-screen", "0", strScreen.c_str(), "-nolisten",
           "tcp", static_cast<char*>(nullptr));
    _exit(1);
}

} // namespace

CVirtualDisplay::CVirtualDisplay(const std::string& strPixels) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe to the X server");
    m_nProcess = fork();
    if (m_nProcess == 0) BecomeServer(strPixels, ends[1]);
    close(ends[1]);
    for (char c = 0; read(ends[0], &c, 1) == 1 && c != '\n';)
        m_strName += c;
    close(ends[0]);
    if (m_strName == ":") throw std::runtime_error("Xvfb does not start; is it installed?");
}

CVirtualDisplay::~CVirtualDisplay() {
    if (m_nProcess <= 0) return;
    kill(m_nProcess, SIGTERM);
    waitpid(m_nProcess, nullptr, 0);
}
