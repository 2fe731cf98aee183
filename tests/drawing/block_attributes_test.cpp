#include "drawing/block_attributes.h"

#include "tests/drawing/insert_block_fixture.h"

namespace {
class BlockAttributes : public CInsertBlockTest {
protected:
    /// Inserts a reference with the attributes of the template.
    void Insert(const AcGePoint3d& pt = {100, 200, 0}) {
        Load();
        m_idReference = m_block.InsertReference(pt, 0.0, 1.0, 1.0, &m_drawing.Database());
        ASSERT_FALSE(m_idReference.isNull());
    }
    std::vector<AcDbObjectId> Attributes() const {
        return CDbOpen<AcDbBlockReference>(m_idReference)->AttributeIds();
    }
    /// An attribute as "text x y".
    std::string Shown(std::size_t nAttribute) const {
        const CDbOpen<AcDbAttribute> attribute(Attributes().at(nAttribute));
        CString strShown;
        strShown.Format("%ls %g %g", attribute->textString(), attribute->position().x,
                        attribute->position().y);
        return strShown.GetString();
    }

    AcDbObjectId m_idReference;
};
} // namespace

TEST_F(BlockAttributes, AreMadeOfTheirDefinitionsButTheConstantOnes) {
    AcDbAttributeDefinition* const pFirst = m_template.AddAttribute("[GCMC]", {5, 6, 0});
    pFirst->setFieldLength(40);
    pFirst->setColorIndex(4);
    pFirst->setRotation(0.5);
    m_template.AddAttribute("[C]", {7, 8, 0}, AcDb::kTextLeft, "constant")->setConstant(true);
    m_template.AddAttribute("[ZKBH]", {9, 10, 0}, AcDb::kTextLeft, "preset text");
    m_template.AddText("[TEXT]", {0, 0, 0});
    Insert();
    ASSERT_EQ(Attributes().size(), 2U);
    const CDbOpen<AcDbAttribute> first(Attributes()[0]);
    EXPECT_STREQ(first->tag(), L"[GCMC]");
    EXPECT_EQ(first->fieldLength(), 40);
    EXPECT_EQ(first->colorIndex(), 4);
    EXPECT_EQ(first->rotation(), 0.5);
    EXPECT_EQ(first->height(), 2.5);
    EXPECT_EQ(first->position(), AcGePoint3d(105, 206, 0));
    EXPECT_EQ(Shown(1), "preset text 109 210");
}

TEST_F(BlockAttributes, AreFilledByTheirTags) {
    m_template.AddAttribute("[A]", {0, 0, 0}, AcDb::kTextLeft, "as before");
    m_template.AddAttribute("[B]", {5, 0, 0});
    Insert();
    CInsertBlock::FillAttributes(m_idReference, List({"[B]", "[X]", "[B]"}), List({"first", "x", "last"}));
    EXPECT_EQ(Shown(0), "as before 100 200");
    EXPECT_EQ(Shown(1), "last 105 200"); // of a key that stands twice the last value holds
    CInsertBlock::FillAttributes(m_idReference, List({"[A]"}), List({" kept "}));
    EXPECT_EQ(Shown(0), " kept  100 200");
}

TEST_F(BlockAttributes, StayBalancedWhereTheyAreCentred) {
    m_template.AddAttribute("[ZKBH]", {0, 0, 0}, AcDb::kTextCenter);
    m_template.AddAttribute("[M]", {0, 20, 0}, AcDb::kTextMid);
    Insert();
    // As long as the tag: not moved.
    CInsertBlock::FillAttributes(m_idReference, List({"[ZKBH]", "[M]"}), List({"  123456 ", "abc"}));
    EXPECT_EQ(Shown(0), "123456 100 200");
    EXPECT_EQ(Shown(1), "abc 100 220");
    // Half a tag longer: half the way from position to alignment point to the left; counted in bytes.
    CInsertBlock::FillAttributes(m_idReference, List({"[ZKBH]"}), List({"一二三 xy"}));
    EXPECT_EQ(Shown(0), "一二三 xy 95 200");
}

TEST_F(BlockAttributes, MoveByARatioInSinglePrecision) {
    m_template.AddAttribute("abc", {0, 0, 0}, AcDb::kTextCenter);
    Insert({0, 0, 0});
    CInsertBlock::FillAttributes(m_idReference, List({"abc"}), List({"abcd"}));
    const CDbOpen<AcDbAttribute> attribute(Attributes()[0]);
    EXPECT_EQ(attribute->position().x, -(4.0F / 3.0F - 1.0F) * 10.0);
}

TEST_F(BlockAttributes, WithoutATagStayWhereTheyAre) {
    m_template.AddAttribute("", {0, 0, 0}, AcDb::kTextCenter);
    Insert();
    CInsertBlock::FillAttributes(m_idReference, List({""}), List({"text"}));
    EXPECT_EQ(Shown(0), "text 100 200");
}

TEST_F(BlockAttributes, ToTheLeftOfTheirPointStayThere) {
    m_template.AddAttribute("[A]", {0, 0, 0}, AcDb::kTextRight);
    Insert();
    CInsertBlock::FillAttributes(m_idReference, List({"[A]"}), List({"1234"}));
    EXPECT_EQ(Shown(0), "1234 102 200");
}

TEST_F(BlockAttributes, OfNoReferenceAreNone) {
    CInsertBlock::FillAttributes(AcDbObjectId::kNull, List({"[A]"}), List({"1"}));
    CTextsByTag texts;
    texts.SetAt("[A]", "1");
    AcDbAttribute constant({0, 0, 0}, L"before", L"[A]");
    constant.setConstant(true);
    FillAttribute(constant, texts);
    EXPECT_STREQ(constant.textString(), L"before");
}
