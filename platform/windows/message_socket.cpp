#include "platform/windows/message_socket.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <string_view>

#include "platform/windows/installation_root.h"
#include "platform/windows/runtime_dir.h"

namespace {

/// FNV-1a: spreads well, and the same in every build.
std::uint64_t HashOf(std::string_view text) {
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (const char byte : text)
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
    return hash;
}

std::string LowerAscii(std::string text) {
    for (char& letter : text)
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    return text;
}

} // namespace

CMessageAddress::CMessageAddress(const std::string& className) {
    const std::string key = RealInstallationRoot() + '\n' + LowerAscii(className);
    std::array<char, 32> name = {};
    std::snprintf(name.data(), name.size(), "tervo-%016llx", static_cast<unsigned long long>(HashOf(key)));
    m_strName = name.data();
    const std::string folder = RuntimeDir();
    if (!folder.empty()) m_folder = CDescriptor(open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

sockaddr_un CMessageAddress::Socket() const {
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::snprintf(address.sun_path, sizeof address.sun_path, "/proc/self/fd/%d/%s.socket", Folder(),
                  m_strName.c_str());
    return address;
}

bool IsOwnPeer(int socket) {
    ucred peer = {};
    socklen_t size = sizeof peer;
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}
