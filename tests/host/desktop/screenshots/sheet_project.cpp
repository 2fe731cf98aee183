#include "tests/host/desktop/screenshots/sheet_project.h"

#include "tests/host/desktop/dialogs/user_hand.h"

#include <gtest/gtest.h>

CSheetProject::CSheetProject() {
    OpenDemoProject(m_program);
}

CDesktopStart CSheetProject::Start() const {
    return {m_program.Root(), TERVO_BIN "/tervo-bren.so"};
}

void InDialog(const CDesktopUser& user, const std::function<void()>& fn) {
    user.Act([&] {
        try {
            fn();
        } catch (const std::exception& fault) { // it may not pass through Qt
            ADD_FAILURE() << fault.what();
        }
    });
}

void DrawSheet(const CDesktopUser& user) {
    user.Say("BREN");
    InDialog(user, [] {
        CUserHand::ClickEntry(1010, 0);
        CUserHand::ClickEntry(1011, 1);
        CUserHand::Key(Qt::Key_Return);
    });
    user.Click({0.0, 0.0});
    user.Say("ZOOM e");
}

QPointF EnvelopeEnd(const CDesktopUser& user) {
    QPointF at;
    user.Do([&] {
        for (const CGrip& grip : user.Desktop().Window().View().Document()->Grips().All())
            if (grip.m_nIndex == 5) at = grip.m_pt;
    });
    return at;
}
