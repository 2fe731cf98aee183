#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/windows/types.h"

/// A window without a picture that answers messages of this user's processes for one window class of this
/// installation (see window_message.h). One thread serves it; the handler does not destroy it.
class CMessageWindow {
public:
    using CHandler = std::function<LRESULT(UINT message, WPARAM wParam, LPARAM lParam)>;

    CMessageWindow();
    /// Takes the window away, as the end of the process does.
    ~CMessageWindow();
    CMessageWindow(const CMessageWindow&) = delete;
    CMessageWindow& operator=(const CMessageWindow&) = delete;

    /// Begins to answer for the class; from here on FindWindowA finds it, and messages wait until they are
    /// served. False when another living process answers for it, or there is no folder for the socket. A
    /// process that goes to the background creates its window after its last fork.
    bool Create(const std::string& className, CHandler handler);
    void Destroy();

    /// Readable while there is something to serve; for the caller's own poll loop. -1 before Create.
    int Descriptor() const;
    /// Serves what waits, waiting for the first up to timeoutMs (-1: without end, 0: not at all).
    void Serve(int timeoutMs);
    /// Serves until Quit. What the last message asks is answered before it returns.
    void Run();
    /// Ends Run; may be called by the handler, another thread or a signal handler.
    void Quit();

private:
    class CServer;
    std::unique_ptr<CServer> m_pServer;
};
