#include "platform/windows/window_message.h"

#include <poll.h>
#include <sys/socket.h>

#include <cerrno>
#include <chrono>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "platform/windows/message_socket.h"

/// What a handle stands for: the class it was found by.
struct CWindowOfHandle {
    std::string m_strClass;
};

namespace {

using CClock = std::chrono::steady_clock;
constexpr std::chrono::seconds ANSWER_PATIENCE(3);

struct CHandles {
    std::mutex m_mutex;
    std::map<std::string, std::unique_ptr<CWindowOfHandle>> m_mapByClass;
};

CHandles& Handles() {
    static CHandles s_handles;
    return s_handles;
}

HWND HandleOf(const std::string& className) {
    CHandles& handles = Handles();
    const std::lock_guard<std::mutex> lock(handles.m_mutex);
    std::unique_ptr<CWindowOfHandle>& handle = handles.m_mapByClass[className];
    if (!handle) handle = std::make_unique<CWindowOfHandle>(CWindowOfHandle{className});
    return handle.get();
}

/// The class, empty for a handle that was never given out.
std::string ClassOf(HWND window) {
    CHandles& handles = Handles();
    const std::lock_guard<std::mutex> lock(handles.m_mutex);
    for (const auto& [className, handle] : handles.m_mapByClass)
        if (handle.get() == window) return className;
    return {};
}

/// How the attempt to reach a window ended; a busy one lives but has a full queue.
enum class CReach { Gone, Busy, Connected };

CReach Connect(const std::string& className, CDescriptor* connection) {
    const CMessageAddress address(className);
    if (!address.IsUsable()) return CReach::Gone;
    *connection = CDescriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const sockaddr_un name = address.Socket();
    if (connect(connection->Get(), reinterpret_cast<const sockaddr*>(&name), sizeof name) != 0)
        return errno == EAGAIN ? CReach::Busy : CReach::Gone;
    return IsOwnPeer(connection->Get()) ? CReach::Connected : CReach::Gone;
}

/// Waits until the socket is ready for the events; false at the deadline.
bool WaitFor(int socket, short events, CClock::time_point deadline) {
    for (;;) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - CClock::now()).count();
        if (left <= 0) return false;
        pollfd waited = {socket, events, 0};
        const int ready = poll(&waited, 1, static_cast<int>(left));
        if (ready > 0) return true;
        if (ready == 0 || errno != EINTR) return false;
    }
}

bool Receive(int socket, CMessageReply* reply, CClock::time_point deadline) {
    char* at = reinterpret_cast<char*>(reply);
    char* const end = at + sizeof *reply;
    while (at < end) {
        if (!WaitFor(socket, POLLIN, deadline)) return false;
        const ssize_t got = recv(socket, at, static_cast<std::size_t>(end - at), 0);
        if (got == 0 || (got < 0 && errno != EAGAIN && errno != EINTR)) return false;
        if (got > 0) at += got;
    }
    return true;
}

} // namespace

HWND FindWindowA(const char* className, const char* title) {
    if (!className || !*className || title) return nullptr;
    CDescriptor connection;
    return Connect(className, &connection) == CReach::Gone ? nullptr : HandleOf(className);
}

LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const std::string className = window ? ClassOf(window) : std::string();
    CDescriptor connection;
    if (className.empty() || Connect(className, &connection) != CReach::Connected) return 0;
    // The request is far smaller than a new connection's room, so it goes at once or not at all.
    const CMessageRequest request = {MESSAGE_MARK, message, wParam, lParam};
    if (send(connection.Get(), &request, sizeof request, MSG_NOSIGNAL) != sizeof request) return 0;
    CMessageReply reply = {};
    return Receive(connection.Get(), &reply, CClock::now() + ANSWER_PATIENCE) ? reply.m_nResult : 0;
}
