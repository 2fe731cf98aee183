#include "platform/acad/ads_name.h"

#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

TEST(AdsName, NamesAnEntityAndBack) {
    AcDbDatabase drawing;
    const AcDbObjectId id = Append(drawing, new CSampleEntity);
    ads_name name;
    ASSERT_EQ(acdbGetAdsName(name, id), Acad::eOk);
    AcDbObjectId back;
    EXPECT_EQ(acdbGetObjectId(back, name), Acad::eOk);
    EXPECT_EQ(back, id);
}

TEST(AdsName, NothingHasNoName) {
    ads_name name = {7, 7};
    EXPECT_EQ(acdbGetAdsName(name, AcDbObjectId::kNull), Acad::eNullObjectId);
    EXPECT_EQ(name[0], 7);
    AcDbObjectId id;
    const ads_name nothing = {0, 0};
    EXPECT_EQ(acdbGetObjectId(id, nothing), Acad::eInvalidAdsName);
    EXPECT_TRUE(id.isNull());
}
