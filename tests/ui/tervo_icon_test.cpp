#include "ui/tervo_icon.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "ui/resources.h"

TEST(TervoIcon, IsTheModulesIcon1006) {
    const CIconTemplate* pIcon = ModuleResources()->FindIcon(1006);
    ASSERT_NE(pIcon, nullptr);
    EXPECT_EQ(pIcon->m_strPixels, TervoIcon().m_strPixels);
}

TEST(TervoIcon, HasAsManyPixelsAsItsSizeAndAColorForEach) {
    const CIconTemplate icon = TervoIcon();
    EXPECT_EQ(icon.m_strPixels.size(), static_cast<size_t>(CIconTemplate::SIZE * CIconTemplate::SIZE));
    std::set<char> letters, used(icon.m_strPixels.begin(), icon.m_strPixels.end());
    for (const CIconColor& color : icon.m_arColors)
        EXPECT_TRUE(letters.insert(color.m_cLetter).second) << color.m_cLetter;
    EXPECT_EQ(used, letters); // none without a color, no color without use
}

TEST(TervoIcon, ShowsThroughAroundWhatIsDrawn) {
    const CIconTemplate icon = TervoIcon();
    const auto alpha = [&](char letter) {
        const auto color = std::find_if(icon.m_arColors.begin(), icon.m_arColors.end(),
                                        [&](const CIconColor& one) { return one.m_cLetter == letter; });
        return color->m_nArgb >> 24U;
    };
    EXPECT_EQ(alpha(icon.m_strPixels.front()), 0U);
    EXPECT_EQ(alpha(icon.m_strPixels.back()), 0U);
    EXPECT_EQ(alpha('r'), 0xFFU);
}
