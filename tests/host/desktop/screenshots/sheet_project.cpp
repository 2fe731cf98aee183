#include "tests/host/desktop/screenshots/sheet_project.h"

#include "tests/host/desktop/dialogs/user_hand.h"

#include <gtest/gtest.h>

CSheetProject::CSheetProject() {
    m_program.Do("init \"$ROOT\"");
    m_program.Do("new --root \"$ROOT\" --number DEMO-01 --name " + Utf8(u8"三轴试验示例工程"));
    m_program.Do("import --root \"$ROOT\" --number DEMO-01 " TERVO_DEMO "/samples.csv " TERVO_DEMO
                 "/layers.csv " TERVO_DEMO "/readings.csv");
    m_program.Do("open --root \"$ROOT\" --number DEMO-01");
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
