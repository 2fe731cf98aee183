#include "platform/acad/db_id_mapping.h"

#include "platform/acad/db_database.h"

#include <gtest/gtest.h>

TEST(AcDbIdMapping, FindsThePairOfAKey) {
    const AcDbDatabase database;
    AcDbIdMapping mapping;
    AcDbIdPair pair(database.clayer());
    EXPECT_FALSE(mapping.compute(pair));
    EXPECT_TRUE(pair.value().isNull());
    mapping.assign(AcDbIdPair(database.clayer(), database.textstyle(), true, true));
    mapping.assign(AcDbIdPair(database.textstyle(), database.clayer()));
    ASSERT_TRUE(mapping.compute(pair));
    EXPECT_EQ(pair.value(), database.textstyle());
    EXPECT_TRUE(pair.isCloned() && pair.isPrimary());
    pair.setKey(database.textstyle());
    ASSERT_TRUE(mapping.compute(pair));
    EXPECT_FALSE(pair.isCloned() || pair.isPrimary());
    EXPECT_EQ(mapping.Pairs().size(), 2U);
}

TEST(AcDbIdMapping, HoldsOnePairOfAKey) {
    const AcDbDatabase database;
    AcDbIdMapping mapping;
    mapping.assign(AcDbIdPair(database.clayer(), database.clayer()));
    mapping.assign(AcDbIdPair(database.clayer(), database.textstyle()));
    ASSERT_EQ(mapping.Pairs().size(), 1U);
    EXPECT_EQ(mapping.Pairs()[0].value(), database.textstyle());
}
