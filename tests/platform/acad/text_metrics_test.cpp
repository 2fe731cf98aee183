#include "platform/acad/text_metrics.h"

#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

TEST(TextMetrics, AreThoseRegisteredLastUntilTakenAway) {
    EXPECT_EQ(TextMetrics(), nullptr);
    {
        CFixedMetrics metrics;
        ASSERT_EQ(TextMetrics(), &metrics);
        EXPECT_EQ(TextMetrics()->AdvanceWidth({"font", ""}, "abc"), 1.5);
        EXPECT_EQ(metrics.m_font.m_strFont, "font");
    }
    EXPECT_EQ(TextMetrics(), nullptr);
}
