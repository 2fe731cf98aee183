#include "ui/resources.h"

#include <gtest/gtest.h>

#include <set>

TEST(ModuleResources, SelectionPageHasItsControls) {
    const CDialogTemplate* pPage = ModuleResources()->FindDialog(IDD_GEN_PAGE);
    ASSERT_NE(pPage, nullptr);
    std::string shown;
    for (const CControlTemplate& control : pPage->m_arControls)
        if (control.m_kind != CControlKind::Label)
            shown += std::to_string(control.m_nId) + " " + control.m_strCaption + "\n";
    EXPECT_EQ(shown, "1010 \n1011 \n1062 删除*号(&D)\n1063 生成所有图\n1556 编 辑 模 板\n");
}

TEST(ModuleResources, ControlsOfADialogHaveNumbersOfTheirOwnAndLieInside) {
    for (const CDialogTemplate& dialog : ModuleResources()->m_arDialogs) {
        std::set<UINT> numbers;
        for (const CControlTemplate& control : dialog.m_arControls) {
            const bool bNew = control.m_kind == CControlKind::Label || numbers.insert(control.m_nId).second;
            EXPECT_TRUE(bNew) << control.m_nId;
            EXPECT_GT(control.m_place.cx, 0) << control.m_nId;
            EXPECT_LE(control.m_place.x + control.m_place.cx, dialog.m_cx) << control.m_nId;
            EXPECT_LE(control.m_place.y + control.m_place.cy, dialog.m_cy) << control.m_nId;
        }
    }
}
