#include "ui/resources.h"

#include <gtest/gtest.h>

TEST(ModuleResources, HoldTheModulesDialogsByTheirNumbers) {
    const auto caption = [](UINT nId) {
        const CDialogTemplate* pDialog = ModuleResources()->FindDialog(nId);
        return pDialog ? pDialog->m_strCaption : "";
    };
    EXPECT_EQ(caption(11), "选择取样");
    EXPECT_EQ(caption(12), "选项");
    EXPECT_EQ(caption(13), "标注");
    EXPECT_EQ(caption(14), "选择采用值入库");
    EXPECT_EQ(caption(1005), "查看三轴剪切试验成果图");
}
