#include "platform/mfc/radio_group.h"

#include <gtest/gtest.h>

#include "platform/mfc/dialog.h"
#include "tests/platform/mfc/dialog_script.h"

namespace {

const CDialogTemplate& Template() {
    static const CDialogTemplate dialog{9,
                                        "",
                                        "",
                                        10,
                                        10,
                                        {{1, CControlKind::Radio, "", {}, 0},
                                         {2, CControlKind::Label, "", {}, CONTROL_GROUP},
                                         {3, CControlKind::Radio, "", {}, 0},
                                         {4, CControlKind::Edit, "", {}, 0},
                                         {5, CControlKind::Radio, "", {}, 0},
                                         {6, CControlKind::Radio, "", {}, CONTROL_GROUP}}};
    return dialog;
}

// The numbers of the buttons of the group of a control.
std::string Group(UINT nId) {
    CDialog dialog;
    dialog.InitModalIndirect(&Template());
    std::string numbers;
    const CDialogScript script([&](CModalWindow& window) {
        for (const CWnd* pButton : RadioGroup(*window.GetDlgItem(nId)))
            numbers += std::to_string(pButton->GetDlgCtrlID());
    });
    dialog.DoModal();
    return numbers;
}

} // namespace

TEST(RadioGroup, ReachesFromOneGroupMarkToTheNext) {
    EXPECT_EQ(Group(3), "35");
    EXPECT_EQ(Group(5), "35");
    EXPECT_EQ(Group(6), "6");
}

TEST(RadioGroup, BeginsAtTheFirstControlWithoutAMark) {
    EXPECT_EQ(Group(1), "1");
}

TEST(RadioGroup, IsThatOfAnyControlInIt) {
    EXPECT_EQ(Group(2), "35");
    EXPECT_EQ(Group(4), "35");
}

TEST(RadioGroup, IsEmptyForAControlOfNoDialog) {
    EXPECT_TRUE(RadioGroup(CWnd()).empty());
}
