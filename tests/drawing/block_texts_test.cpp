#include "tests/drawing/insert_block_fixture.h"

#include "platform/acad/db_line.h"

namespace {
class BlockTexts : public CInsertBlockTest {
protected:
    /// Answer, place and mode of a placeholder that is cleared.
    int Find(const char* pPlaceholder) { return m_block.FindBlockText(pPlaceholder, "", m_points, m_modes); }

    AcGePoint3dArray m_points;
    AcDbIntArray m_modes;
};
} // namespace

TEST_F(BlockTexts, TakeTheValuesOfTheirKeys) {
    m_template.AddText("[GCMC]", {1, 2, 0});
    m_template.AddText("工程名称", {1, 2, 0});
    m_template.AddText("[没有]", {1, 2, 0});
    m_template.AddText("GCMC]", {1, 2, 0});
    m_template.AddText("[ZKBH]", {1, 2, 0});
    m_template.Add(new AcDbLine({0, 0, 0}, {1, 1, 0}));
    Load();
    m_block.ReplaceBlockTexts(List({"[ZKBH]", "工程名称", "GCMC]", "[GCMC]"}),
                              List({"ZK1", "x", "y", "一号工程"}));
    EXPECT_EQ(Texts(), (CTexts{"一号工程", "工程名称", "[没有]", "GCMC]", "ZK1"}));
}

TEST_F(BlockTexts, OfOneNameTakeOneEntryEach) {
    for (int i = 0; i < 3; ++i)
        m_template.AddText("[A]", {1, 2, 0});
    Load();
    m_block.ReplaceBlockTexts(List({"[A]"}), List({"first"}));
    EXPECT_EQ(Texts(), (CTexts{"first", "[A]", "[A]"}));
    m_block.ReplaceBlockTexts(List({"[A]", "[B]", "[A]"}), List({"second", "", "third"}));
    EXPECT_EQ(Texts(), (CTexts{"first", "second", "third"}));
}

TEST_F(BlockTexts, StayWhereTheListsDifferInLength) {
    m_template.AddText("[A]", {1, 2, 0});
    Load();
    m_block.ReplaceBlockTexts(List({"[A]", "[B]"}), List({"x"}));
    m_block.ReplaceBlockTexts(List({"[A]"}), List({}));
    m_block.ReplaceBlockTexts(List({}), List({}));
    EXPECT_EQ(Texts(), CTexts{"[A]"});
}

TEST_F(BlockTexts, MayBecomePlaceholdersOfALaterKeyOnlyInALaterCall) {
    m_template.AddText("[A]", {1, 2, 0});
    Load();
    m_block.ReplaceBlockTexts(List({"[A]", "[B]"}), List({"[B]", "x"}));
    EXPECT_EQ(Texts(), CTexts{"[B]"});
}

TEST_F(BlockTexts, StayAtTheirAlignmentPointWithAnotherLength) {
    m_template.AddText("[A]", {0, 0, 0}, AcDb::kTextRight);
    m_template.AddText("[B]", {0, 0, 0}, AcDb::kTextCenter);
    m_template.AddText("[C]", {3, 0, 0});
    Load();
    m_block.ReplaceBlockTexts(List({"[A]", "[B]", "[C]"}), List({"1234", "1234", "1234"}));
    EXPECT_EQ(Position(0), AcGePoint3d(10.0 - 4 * 0.8 * 2.5, 0, 0));
    EXPECT_EQ(Position(1), AcGePoint3d(10.0 - 2 * 0.8 * 2.5, 0, 0));
    EXPECT_EQ(Position(2), AcGePoint3d(3, 0, 0));
}

TEST_F(BlockTexts, AreFoundAsTemplatesMeanThem) {
    m_template.AddText("[SP]", {40, 30, 5});
    m_template.AddText("[EP]", {40, 30, 5}, AcDb::kTextCenter);
    m_template.AddText("[DIST]", {40, 30, 5}, AcDb::kTextRight);
    m_template.AddText("[SP1]", {40, 30, 5}, AcDb::kTextAlign);
    m_template.AddText("[TH]", {40, 30, 5}, AcDb::kTextMid);
    m_template.AddText("[RQ]", {40, 30, 5}, AcDb::kTextFit);
    Load();
    const std::vector<std::pair<const char*, AcGePoint3d>> expected{
        {"[SP]", {40, 30, 5}},  {"[EP]", {20, 30, 5}},    {"[DIST]", {0.2, 30, 5}},
        {"[SP1]", {40, 30, 5}}, {"[TH]", {20, 31.25, 5}}, {"[RQ]", {40, 30, 5}}};
    for (const auto& [pPlaceholder, ptMeant] : expected) {
        ASSERT_EQ(Find(pPlaceholder), 1) << pPlaceholder;
        ASSERT_EQ(m_points.length(), 1);
        EXPECT_EQ(m_points[0], ptMeant) << pPlaceholder;
    }
    // The modes of all finds are kept.
    ASSERT_EQ(m_modes.length(), 6);
    constexpr std::array arModes{0, 1, 2, 3, 4, 5};
    EXPECT_TRUE(std::equal(m_modes.begin(), m_modes.end(), arModes.begin(), arModes.end()));
    EXPECT_EQ(Texts(), CTexts(6));
}

TEST_F(BlockTexts, AreFoundOnceAndThenAreNot) {
    m_template.AddText("[TH]", {1, 1, 0});
    m_template.AddText("[TH]", {2, 2, 0});
    Load();
    EXPECT_EQ(m_block.FindBlockText("[TH]", "2", m_points, m_modes), 1);
    EXPECT_EQ(m_points[0], AcGePoint3d(1, 1, 0));
    EXPECT_EQ(Texts(), (CTexts{"2", "[TH]"}));
    EXPECT_EQ(m_block.FindBlockText("[TH]", "3", m_points, m_modes), 1);
    EXPECT_EQ(m_block.FindBlockText("[TH]", "4", m_points, m_modes), 0);
    EXPECT_TRUE(m_points.isEmpty());
    EXPECT_EQ(m_modes.length(), 2);
    EXPECT_EQ(Texts(), (CTexts{"2", "3"}));
}

TEST_F(BlockTexts, WithoutABracketAreNotFound) {
    m_template.AddText("TH", {1, 1, 0});
    m_template.AddText(" [TH]", {1, 1, 0});
    Load();
    EXPECT_EQ(Find("TH"), 0);
    EXPECT_EQ(Find("[TH]"), 0);
    EXPECT_EQ(Texts(), (CTexts{"TH", " [TH]"}));
}

TEST_F(BlockTexts, OfNoDefinitionAreNone) {
    m_block.ReplaceBlockTexts(List({"[A]"}), List({"x"}));
    EXPECT_EQ(Find("[A]"), 0);
}

TEST_F(BlockTexts, OfModelSpaceInBracketsAreTakenAwayAsMarkers) {
    const auto add = [this](const char* pText, const AcGePoint3d& pt) {
        const CDbOpen<AcDbBlockTableRecord> space(m_drawing.Database().ModelSpaceId(), AcDb::kForWrite);
        AcDbText* const pNew = new AcDbText(pt, WideFromGbk(pText).c_str());
        space->appendAcDbEntity(pNew);
        pNew->close();
    };
    add("[左下]", {1, 2, 3});
    add("[open", {4, 5, 6});
    add("closed]", {4, 5, 6});
    add("[B]", {7, 8, 9});
    m_block.CollectMarkers();
    EXPECT_EQ(m_block.m_mapMarkers.GetCount(), 2);
    EXPECT_EQ(m_block.m_mapMarkers["[左下]"], AcGePoint3d(1, 2, 3));
    EXPECT_EQ(m_block.m_mapMarkers["[B]"], AcGePoint3d(7, 8, 9));
    EXPECT_EQ(Entities(m_drawing.Database().ModelSpaceId()).size(), 2U);
}
