#include "platform/acad/host_application.h"

#include <gtest/gtest.h>

TEST(HostApplicationServices, KnowTheWorkingDrawingWhileItLives) {
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
    {
        AcDbDatabase first, second;
        acdbHostApplicationServices()->setWorkingDatabase(&first);
        EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), &first);
    }
    EXPECT_EQ(acdbHostApplicationServices()->workingDatabase(), nullptr);
}

TEST(EditorHost, IsNoneUnlessRegistered) {
    EXPECT_EQ(EditorHost(), nullptr);
}
