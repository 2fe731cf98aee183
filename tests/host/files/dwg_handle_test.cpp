#include "host/files/dwg_handle.h"

#include <gtest/gtest.h>

TEST(DwgHandle, NamesItsTargetOutrightInTheAbsoluteKinds) {
    for (const CDwgHandle& handle :
         {SoftOwner(0x10), HardOwner(0x10), SoftPointer(0x10), HardPointer(0x10), CDwgHandle{0, 0x10}})
        EXPECT_EQ(handle.Target(0x60), 0x10u) << int{handle.m_nCode};
}

TEST(DwgHandle, CountsFromTheObjectItStandsInInTheRelativeKinds) {
    EXPECT_EQ((CDwgHandle{0x6, 0}).Target(0x60), 0x61u);
    EXPECT_EQ((CDwgHandle{0x8, 0}).Target(0x60), 0x5Fu);
    EXPECT_EQ((CDwgHandle{0xA, 0x10}).Target(0x60), 0x70u);
    EXPECT_EQ((CDwgHandle{0xC, 0x10}).Target(0x60), 0x50u);
}

TEST(DwgHandle, NamesNothingInAnUnknownKind) {
    EXPECT_EQ((CDwgHandle{0xF, 0x10}).Target(0x60), 0u);
}
