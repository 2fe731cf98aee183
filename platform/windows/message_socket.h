#pragma once

#include <sys/un.h>

#include <cstdint>
#include <string>

#include "platform/windows/descriptor.h"

// What both sides of a window message agree on. Requests and replies are of fixed size, in the machine's
// order, since both processes are of one user on one machine.

struct CMessageRequest {
    std::uint32_t m_nMark;
    std::uint32_t m_nMessage;
    std::uint64_t m_nWParam;
    std::int64_t m_nLParam;
};

struct CMessageReply {
    std::int64_t m_nResult;
};

constexpr std::uint32_t MESSAGE_MARK = 0x54564D31;

/// Where the window class of this installation is served. The name depends on the installation's real folder
/// and on the class, in any case, and is short whatever their lengths are.
class CMessageAddress {
public:
    explicit CMessageAddress(const std::string& className);

    bool IsUsable() const { return static_cast<bool>(m_folder); }
    /// Name below the runtime folder, without ending.
    const std::string& Name() const { return m_strName; }
    int Folder() const { return m_folder.Get(); }
    /// The address of the socket; through the open folder, so that a long folder name fits as well.
    sockaddr_un Socket() const;

private:
    std::string m_strName;
    CDescriptor m_folder;
};

/// True when the process at the other end runs as this user.
bool IsOwnPeer(int socket);
