#pragma once
// A user at the real window, on the offscreen platform: what a test does with mouse and keyboard.

#include "host/desktop/desktop.h"

#include <gtest/gtest.h>

#include <functional>

/// Acts from a thread of its own; each act waits until the window waits for the user, and returns when it
/// does again.
class CDesktopUser {
public:
    explicit CDesktopUser(CDesktop& desktop)
        : m_desktop(desktop) {}

    /// Runs a function in the window's thread, and waits for what it leads to.
    void Act(const std::function<void()>& fn) const;
    /// Runs a function in the window's thread that leads to nothing.
    void Do(const std::function<void()>& fn) const;

    void Keys(const std::string& strText) const; ///< typed where the focus is
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;
    /// Types a line and Enter.
    void Say(const std::string& strLine) const;
    void Menu(const std::string& strCaption) const; ///< chooses the entry of this caption, without mnemonics
    void ChooseFile(const std::string& strPath) const; ///< in the file dialog that is open

    // The mouse; points are the drawing's.
    void Move(const QPointF& at) const;
    void Click(const QPointF& at, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = {}) const;
    void Drag(const QPointF& from, const QPointF& to, Qt::MouseButton button = Qt::LeftButton) const;
    void Wheel(const QPointF& at, int nNotches) const;

    std::string Said() const;   ///< all that the text window shows
    std::string Prompt() const; ///< of the status bar
    int Selected() const;       ///< entities
    std::size_t Shown() const;  ///< entities
    /// A picture of the window, to be looked at.
    void Picture(const std::string& strPath) const;

    CDesktop& Desktop() const { return m_desktop; }

private:
    bool IsAwaited() const;

    CDesktop& m_desktop;
};

/// What a session begins with. Paths are UTF-8.
struct CDesktopStart {
    std::string m_strRoot;
    std::string m_strModule = "none";
    std::string m_strDrawing = {};
    std::string m_strKept = {}; ///< folder of copies; empty for one of its own
};

inline CDesktopStart NoInstallation() {
    return {"/nowhere"};
}

/// Runs the program's window while the user does something, and quits; nothing is saved that the user did not
/// save.
void AtDesktop(const CDesktopStart& start, const std::function<void(const CDesktopUser&)>& does);

/// The one application of the test program.
void StartTestQt();

/// A test whose members need the application.
class CWindowedTest : public testing::Test {
protected:
    CWindowedTest() { StartTestQt(); }
};
