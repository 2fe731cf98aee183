#include "platform/windows/message_window.h"

#include <fcntl.h>
#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <map>
#include <optional>
#include <string_view>

#include "platform/windows/host_assert.h"
#include "platform/windows/message_socket.h"

/// The socket and its connections. The lock file beside the socket is held for the server's life: the kernel
/// frees it with the process, so what a dead one left is told from what a living one serves. It stays behind,
/// empty.
class CMessageWindow::CServer {
public:
    CServer(const std::string& className, CHandler handler)
        : m_handler(std::move(handler))
        , m_address(className) {}
    ~CServer();
    CServer(const CServer&) = delete;
    CServer& operator=(const CServer&) = delete;

    bool Start();
    int Descriptor() const { return m_poll.Get(); }
    void Serve(int timeoutMs);
    void Quit();
    bool HasToQuit() const { return m_bQuit; }

private:
    struct CConnection {
        CDescriptor m_socket;
        std::size_t m_nReceived = 0;
        CMessageRequest m_request = {};
    };

    bool Lock();
    bool Listen();
    bool Watch(int descriptor);
    void Accept();
    void Receive(int descriptor);
    void Answer(const CConnection& connection);

    CHandler m_handler;
    CMessageAddress m_address;
    CDescriptor m_lock;
    CDescriptor m_listener;
    CDescriptor m_wake;
    CDescriptor m_poll;
    pid_t m_nProcess = 0;
    std::map<int, CConnection> m_mapConnections;
    std::atomic<bool> m_bQuit = false;
};

CMessageWindow::CServer::~CServer() {
    // A forked child has a copy of this object, but the window is its parent's.
    if (m_listener && m_nProcess == getpid())
        unlinkat(m_address.Folder(), (m_address.Name() + ".socket").c_str(), 0);
}

bool CMessageWindow::CServer::Start() {
    m_nProcess = getpid();
    m_poll = CDescriptor(epoll_create1(EPOLL_CLOEXEC));
    m_wake = CDescriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    return m_address.IsUsable() && m_poll && m_wake && Lock() && Listen() && Watch(m_listener.Get()) &&
           Watch(m_wake.Get());
}

bool CMessageWindow::CServer::Lock() {
    const std::string name = m_address.Name() + ".lock";
    m_lock = CDescriptor(
        openat(m_address.Folder(), name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    return m_lock && flock(m_lock.Get(), LOCK_EX | LOCK_NB) == 0;
}

bool CMessageWindow::CServer::Listen() {
    const std::string name = m_address.Name() + ".socket";
    unlinkat(m_address.Folder(), name.c_str(), 0); // a dead process's
    CDescriptor listener(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const sockaddr_un address = m_address.Socket();
    // The socket is closed to others before it listens; until then a connection is refused.
    if (!listener || bind(listener.Get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        fchmodat(m_address.Folder(), name.c_str(), 0600, 0) != 0 || listen(listener.Get(), SOMAXCONN) != 0)
        return false;
    m_listener = std::move(listener);
    return true;
}

bool CMessageWindow::CServer::Watch(int descriptor) {
    epoll_event event = {};
    event.events = EPOLLIN;
    event.data.fd = descriptor;
    return epoll_ctl(m_poll.Get(), EPOLL_CTL_ADD, descriptor, &event) == 0;
}

void CMessageWindow::CServer::Serve(int timeoutMs) {
    std::array<epoll_event, 16> events = {};
    const int count = epoll_wait(m_poll.Get(), events.data(), static_cast<int>(events.size()), timeoutMs);
    for (int i = 0; i < count; ++i) {
        const int descriptor = events[static_cast<std::size_t>(i)].data.fd;
        if (descriptor == m_listener.Get()) {
            Accept();
        } else if (descriptor == m_wake.Get()) {
            std::uint64_t calls = 0;
            if (read(descriptor, &calls, sizeof calls) == sizeof calls) m_bQuit = true;
        } else {
            Receive(descriptor);
        }
    }
}

void CMessageWindow::CServer::Quit() {
    const std::uint64_t call = 1;
    const ssize_t written = write(m_wake.Get(), &call, sizeof call);
    static_cast<void>(written); // it fails only while an earlier call waits still
}

void CMessageWindow::CServer::Accept() {
    CDescriptor socket(accept4(m_listener.Get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!socket || !IsOwnPeer(socket.Get()) || !Watch(socket.Get())) return;
    const int descriptor = socket.Get();
    m_mapConnections[descriptor].m_socket = std::move(socket);
}

void CMessageWindow::CServer::Receive(int descriptor) {
    const auto found = m_mapConnections.find(descriptor);
    if (found == m_mapConnections.end()) return;
    CConnection& connection = found->second;
    char* at = reinterpret_cast<char*>(&connection.m_request) + connection.m_nReceived;
    const ssize_t got = recv(descriptor, at, sizeof connection.m_request - connection.m_nReceived, 0);
    if (got < 0 && (errno == EAGAIN || errno == EINTR)) return;
    if (got > 0) connection.m_nReceived += static_cast<std::size_t>(got);
    if (got > 0 && connection.m_nReceived < sizeof connection.m_request) return;
    const CConnection finished = std::move(connection); // one message a connection
    m_mapConnections.erase(found);
    if (got > 0 && finished.m_request.m_nMark == MESSAGE_MARK) Answer(finished);
}

void CMessageWindow::CServer::Answer(const CConnection& connection) {
    const CMessageRequest& request = connection.m_request;
    const CMessageReply reply = {m_handler(request.m_nMessage, request.m_nWParam, request.m_nLParam)};
    send(connection.m_socket.Get(), &reply, sizeof reply, MSG_NOSIGNAL); // a caller may have given up
}

CMessageWindow::CMessageWindow() = default;
CMessageWindow::~CMessageWindow() = default;

bool CMessageWindow::Create(const std::string& className, CHandler handler) {
    HOST_ASSERT(!className.empty() && handler, "a window has a class and a handler");
    Destroy();
    auto server = std::make_unique<CServer>(className, std::move(handler));
    if (!server->Start()) return false;
    m_pServer = std::move(server);
    return true;
}

void CMessageWindow::Destroy() {
    m_pServer.reset();
}

int CMessageWindow::Descriptor() const {
    return m_pServer ? m_pServer->Descriptor() : -1;
}

void CMessageWindow::Serve(int timeoutMs) {
    HOST_ASSERT(m_pServer != nullptr, "the window was created");
    m_pServer->Serve(timeoutMs);
}

void CMessageWindow::Run() {
    HOST_ASSERT(m_pServer != nullptr, "the window was created");
    while (!m_pServer->HasToQuit())
        m_pServer->Serve(-1);
}

void CMessageWindow::Quit() {
    if (m_pServer) m_pServer->Quit();
}
