#include "platform/mfc/window.h"

#include <gtest/gtest.h>

namespace {

class CTestWindow : public CWnd {
public:
    CTestWindow() { Attach(std::make_shared<CControl>()); }
};

} // namespace

TEST(Window, EnablingTellsWhetherItWasDisabled) {
    CTestWindow window;
    EXPECT_EQ(window.EnableWindow(FALSE), FALSE);
    EXPECT_EQ(window.IsWindowEnabled(), FALSE);
    EXPECT_EQ(window.EnableWindow(TRUE), TRUE);
    EXPECT_EQ(window.IsWindowEnabled(), TRUE);
}

TEST(Window, ShowingTellsWhetherItWasVisible) {
    CTestWindow window;
    EXPECT_EQ(window.ShowWindow(0), TRUE);
    EXPECT_EQ(window.IsWindowVisible(), FALSE);
    EXPECT_EQ(window.ShowWindow(5), FALSE);
    EXPECT_EQ(window.IsWindowVisible(), TRUE);
}

TEST(Window, AnswersNothingBeforeItExists) {
    CWnd window;
    CString text = "former";
    EXPECT_EQ(window.EnableWindow(FALSE), FALSE);
    EXPECT_EQ(window.IsWindowEnabled(), FALSE);
    EXPECT_EQ(window.IsWindowVisible(), FALSE);
    EXPECT_EQ(window.GetDlgCtrlID(), 0U);
    EXPECT_EQ(window.GetParent(), nullptr);
    window.SetWindowText("text");
    window.GetWindowText(text);
    EXPECT_STREQ(text, "");
    EXPECT_EQ(window.OnCmdMsg(1, 0, nullptr, nullptr), FALSE);
}
