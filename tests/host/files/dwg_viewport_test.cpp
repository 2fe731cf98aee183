#include "host/files/dwg_viewport.h"

#include "tests/host/files/dwg_round_trip.h"

TEST(DwgViewport, KeepsWhatItShows) {
    CDwgViewportRecord view;
    view.m_strName = "*Active";
    view.m_dHeight = 100.0;
    view.m_dWidth = 200.0;
    view.m_ptCenter = {5.0, 6.0};
    view.m_nViewMode = 9;
    view.m_nUcsIcon = 2;
    const CDwgViewportRecord back = ThroughRecord(view, DWG_FILED(FileViewport));
    EXPECT_EQ(back.m_strName, "*Active");
    EXPECT_EQ(back.m_dHeight, 100.0);
    EXPECT_EQ(back.m_dWidth, 200.0);
    EXPECT_EQ(back.m_ptCenter.y, 6.0);
    EXPECT_EQ(back.m_nViewMode, 9);
    EXPECT_EQ(back.m_nUcsIcon, 2);
}
