#include "data/show_message.h"

#include <gtest/gtest.h>

#include <array>

#include "platform/acad/editor.h"
#include "tests/support/suite_fixture.h"

namespace {

class ShowMessageBox : public CSuiteTest {
protected:
    UINT StyleShownFor(UINT uStyle) {
        ShowMessage("a", uStyle);
        return m_uStyle;
    }
};

/// Windows are told apart by their handles; nothing looks behind them.
HWND Window(std::size_t nNumber) {
    static std::array<char, 64> s_arPlaces{};
    return static_cast<HWND>(static_cast<void*>(&s_arPlaces.at(nNumber)));
}

} // namespace

TEST_F(ShowMessageBox, ShowsTheTextUnderTheModulesCaptionAndGivesTheButton) {
    m_nAnswer = IDNO;
    EXPECT_EQ(ShowMessage("三轴剪切图中有关数据已改变,是否入库?", MB_YESNO), IDNO);
    EXPECT_EQ(m_arBoxes, CTexts{"三轴剪切图中有关数据已改变,是否入库?"});
    EXPECT_EQ(m_strCaption, "Tervo");
}

TEST_F(ShowMessageBox, AddsAnIconOnlyWhereTheStyleHasNone) {
    EXPECT_EQ(StyleShownFor(MB_OK), 0x30U);
    EXPECT_EQ(StyleShownFor(MB_OKCANCEL), 0x31U);
    EXPECT_EQ(StyleShownFor(MB_YESNOCANCEL), 0x23U);
    EXPECT_EQ(StyleShownFor(MB_YESNO), 0x24U);
    EXPECT_EQ(StyleShownFor(2), 2U);
    EXPECT_EQ(StyleShownFor(5), 5U);
    EXPECT_EQ(StyleShownFor(MB_YESNO | MB_ICONINFORMATION), 0x44U);
}

TEST_F(ShowMessageBox, BelongsToTheActivePopupOfTheFirstWindowThatIsNoChild) {
    CMessageBoxHost host;
    host.m_parent = [](HWND hWindow) -> HWND {
        if (hWindow == Window(1)) return Window(2);
        return hWindow == Window(2) ? Window(3) : nullptr;
    };
    host.m_lastActivePopup = [](HWND hWindow) { return hWindow == Window(3) ? Window(9) : hWindow; };
    SetMessageBoxHost(host);
    EXPECT_EQ(FindBoxOwner(Window(1)), Window(9));
    EXPECT_EQ(FindBoxOwner(Window(4)), Window(4));
}

TEST_F(ShowMessageBox, IsOwnedByTheMainWindow) {
    HWND hOwner = Window(1);
    CMessageBoxHost host;
    host.m_show = [&](HWND hShownFor, const std::wstring&, const std::wstring&, UINT) {
        hOwner = hShownFor;
        return IDOK;
    };
    SetMessageBoxHost(host);
    ShowMessage("a");
    EXPECT_EQ(hOwner, static_cast<HWND>(adsw_acadMainWnd()));
}
