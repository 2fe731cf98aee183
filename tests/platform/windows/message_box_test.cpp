#include "platform/windows/message_box.h"

#include <gtest/gtest.h>

#include <array>

namespace {

struct MessageBox : testing::Test {
    ~MessageBox() override { SetMessageBoxHost({}); }
};

/// Windows are told apart by their handles; nothing looks behind them.
HWND Window(std::size_t nNumber) {
    static std::array<char, 64> s_arPlaces{};
    return static_cast<HWND>(static_cast<void*>(&s_arPlaces.at(nNumber)));
}

} // namespace

TEST_F(MessageBox, HandsEverythingToTheHostAndItsAnswerBack) {
    HWND hSeen = nullptr;
    std::wstring strSeen;
    UINT uSeen = 0;
    CMessageBoxHost host;
    host.m_show = [&](HWND hOwner, const std::wstring& strText, const std::wstring& strCaption, UINT uStyle) {
        hSeen = hOwner;
        strSeen = strCaption + L"|" + strText;
        uSeen = uStyle;
        return IDYES;
    };
    SetMessageBoxHost(host);
    EXPECT_EQ(MessageBoxW(Window(16), L"入库?", L"Tervo", MB_YESNO | MB_ICONQUESTION), IDYES);
    EXPECT_EQ(hSeen, Window(16));
    EXPECT_EQ(strSeen, L"Tervo|入库?");
    EXPECT_EQ(uSeen, 0x24U);
    MessageBoxA(nullptr, "入库", nullptr, MB_OK);
    EXPECT_EQ(strSeen, L"|入库");
}

TEST_F(MessageBox, AnswersNothingWithoutAHost) {
    EXPECT_EQ(MessageBoxW(nullptr, L"a", L"b", MB_OK), 0);
    EXPECT_EQ(GetParent(Window(16)), nullptr);
    EXPECT_EQ(GetLastActivePopup(Window(16)), Window(16));
}

TEST_F(MessageBox, AsksTheHostForParentAndPopup) {
    CMessageBoxHost host;
    host.m_parent = [](HWND hWindow) { return hWindow == Window(16) ? Window(32) : nullptr; };
    host.m_lastActivePopup = [](HWND) { return Window(48); };
    SetMessageBoxHost(host);
    EXPECT_EQ(GetParent(Window(16)), Window(32));
    EXPECT_EQ(GetParent(Window(32)), nullptr);
    EXPECT_EQ(GetLastActivePopup(Window(32)), Window(48));
}

TEST_F(MessageBox, HasTheButtonsOfItsStyleWithTheOneForGivingUpLast) {
    using CButtons = std::vector<int>;
    EXPECT_EQ(MessageBoxButtons(MB_OK | MB_ICONERROR), CButtons{IDOK});
    EXPECT_EQ(MessageBoxButtons(MB_OKCANCEL), (CButtons{IDOK, IDCANCEL}));
    EXPECT_EQ(MessageBoxButtons(MB_YESNO | MB_ICONQUESTION), (CButtons{IDYES, IDNO}));
    EXPECT_EQ(MessageBoxButtons(MB_YESNOCANCEL), (CButtons{IDYES, IDNO, IDCANCEL}));
}
