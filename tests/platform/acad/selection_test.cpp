#include "platform/acad/selection.h"

#include "platform/acad/db_line.h"
#include "platform/acad/db_text.h"
#include "platform/acad/display_recorder.h"
#include "tests/platform/acad/fake_editor_host.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

namespace {

class Selection : public testing::Test {
protected:
    Selection() { acdbHostApplicationServices()->setWorkingDatabase(&m_drawing); }

    AcDbObjectId AddLine(const AcGePoint3d& from, const AcGePoint3d& to) {
        auto* const pLine = new AcDbLine(from, to);
        const AcDbObjectId id = Append(m_drawing, pLine);
        const CDbOpen<AcDbEntity> line(id);
        DrawEntity(*line.Get());
        return id;
    }

    /// The members of a set, in order; the set is released.
    static std::vector<AcDbObjectId> Members(const ads_name ss) {
        std::vector<AcDbObjectId> ids;
        Adesk::Int32 nLength = 0;
        EXPECT_EQ(acedSSLength(ss, &nLength), RTNORM);
        for (Adesk::Int32 i = 0; i < nLength; ++i) {
            ads_name name;
            AcDbObjectId id;
            EXPECT_EQ(acedSSName(ss, i, name), RTNORM);
            EXPECT_EQ(acdbGetObjectId(id, name), Acad::eOk);
            ids.push_back(id);
        }
        EXPECT_EQ(acedSSFree(ss), RTNORM);
        return ids;
    }

    /// What a mode selects; nothing when it answers RTERROR.
    static std::vector<AcDbObjectId> Get(const ACHAR* mode, const resbuf* pFilter = nullptr,
                                         const ads_real* pt1 = nullptr, const ads_real* pt2 = nullptr) {
        ads_name ss;
        const int nStatus = acedSSGet(mode, pt1, pt2, pFilter, ss);
        if (nStatus == RTNORM) return Members(ss);
        EXPECT_EQ(nStatus, RTERROR);
        return {};
    }

    using CIds = std::vector<AcDbObjectId>;
    AcDbDatabase m_drawing;
};

} // namespace

TEST_F(Selection, XTakesModelAndPaperSpaceInDatabaseOrderAndLeavesErasedOnesOut) {
    EXPECT_EQ(Get(L"X"), CIds{});
    const AcDbObjectId first = AddLine({0, 0, 0}, {1, 0, 0}), second = AddLine({0, 0, 0}, {2, 0, 0});
    auto* const pText = new AcDbText;
    AcDbObjectId idPaper, third;
    {
        const CDbOpen<AcDbBlockTable> blocks(m_drawing.blockTableId());
        ASSERT_EQ(blocks->getAt(ACDB_PAPER_SPACE, idPaper), Acad::eOk);
        const CDbOpen<AcDbBlockTableRecord> paper(idPaper, AcDb::kForWrite);
        paper->appendAcDbEntity(third, pText);
        pText->close();
    }
    EXPECT_EQ(Get(L"X"), (CIds{first, second, third}));
    CDbOpen<AcDbEntity>(first, AcDb::kForWrite)->erase();
    EXPECT_EQ(Get(L"X"), (CIds{second, third}));
}

TEST_F(Selection, OfADrawingWithoutTablesIsEmpty) {
    AcDbDatabase empty(false);
    acdbHostApplicationServices()->setWorkingDatabase(&empty);
    EXPECT_EQ(Get(L"X"), CIds{});
    EXPECT_EQ(Get(L"L"), CIds{});
    ads_name name = {};
    EXPECT_EQ(acdbEntLast(name), RTERROR);
}

TEST_F(Selection, AnEntityThatIsOpenForWritingIsSelectedTooAndSoIsOneOfAnOpenBlock) {
    const AcDbObjectId id = AddLine({0, 0, 0}, {1, 0, 0});
    const CDbOpen<AcDbEntity> line(id, AcDb::kForWrite);
    const CDbOpen<AcDbBlockTableRecord> space(m_drawing.ModelSpaceId(), AcDb::kForWrite);
    EXPECT_EQ(Get(L"X"), CIds{id});
}

TEST_F(Selection, LTakesTheLastOfModelSpaceIfItPassesTheFilter) {
    EXPECT_EQ(Get(L"L"), CIds{});
    AddLine({0, 0, 0}, {1, 0, 0});
    const AcDbObjectId last = AddLine({0, 0, 0}, {2, 0, 0});
    EXPECT_EQ(Get(L"L"), CIds{last});
    const CResbufChain texts(acutBuildList(RTDXF0, L"TEXT", RTNONE));
    EXPECT_EQ(Get(L"L", texts.Get()), CIds{});
}

TEST_F(Selection, TheLastEntityIsThatOfModelSpace) {
    ads_name name{};
    EXPECT_EQ(acdbEntLast(name), RTERROR);
    AddLine({0, 0, 0}, {1, 0, 0});
    const AcDbObjectId idSecond = AddLine({0, 0, 0}, {2, 0, 0}), idErased = AddLine({0, 0, 0}, {3, 0, 0});
    CDbOpen<AcDbEntity>(idErased, AcDb::kForWrite)->erase();
    ASSERT_EQ(acdbEntLast(name), RTNORM);
    AcDbObjectId id;
    EXPECT_EQ(acdbGetObjectId(id, name), Acad::eOk);
    EXPECT_EQ(id, idSecond);
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_EQ(acdbEntLast(name), RTERROR);
}

TEST_F(Selection, PTakesWhatWasSelectedBeforeOtherThanByXAsFarAsItLives) {
    const AcDbObjectId first = AddLine({0, 0, 0}, {1, 0, 0});
    EXPECT_EQ(Get(L"P"), CIds{});
    EXPECT_EQ(Get(L"L"), CIds{first});
    AddLine({0, 0, 0}, {2, 0, 0});
    EXPECT_EQ(Get(L"X").size(), 2u);
    EXPECT_EQ(Get(L"P"), CIds{first});
    CDbOpen<AcDbEntity>(first, AcDb::kForWrite)->erase();
    EXPECT_EQ(Get(L"P"), CIds{});
}

TEST_F(Selection, CTakesWhatPassesThroughTheBoxAndWWhatLiesWhollyInIt) {
    const AcDbObjectId inside = AddLine({1, 1, 0}, {2, 2, 0}), across = AddLine({-5, 5, 0}, {15, 5, 0});
    AddLine({-5, 11, 0}, {15, 11, 0});
    const ads_point low = {0, 0, 0}, high = {10, 10, 0};
    EXPECT_EQ(Get(L"C", nullptr, low, high), (CIds{inside, across}));
    EXPECT_EQ(Get(L"C", nullptr, high, low), (CIds{inside, across}));
    EXPECT_EQ(Get(L"W", nullptr, low, high), CIds{inside});
    EXPECT_EQ(Get(L"W"), CIds{}); // no corners
}

TEST_F(Selection, WhatWasNeverDrawnLiesInNoBox) {
    Append(m_drawing, new AcDbLine({1, 1, 0}, {2, 2, 0}));
    const ads_point low = {0, 0, 0}, high = {10, 10, 0};
    EXPECT_EQ(Get(L"C", nullptr, low, high), CIds{});
}

TEST_F(Selection, AnUnknownModeOrFilterSelectsNothing) {
    AddLine({0, 0, 0}, {1, 0, 0});
    EXPECT_EQ(Get(L"Q"), CIds{});
    const CResbufChain filter(acutBuildList(40, 2.5, RTNONE));
    EXPECT_EQ(Get(L"X", filter.Get()), CIds{});
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_EQ(Get(L"X"), CIds{});
}

TEST_F(Selection, AFreeSelectionIsTheUsersPicksThatPassTheFilter) {
    EXPECT_EQ(Get(nullptr), CIds{}); // nobody to ask
    CFakeEditorHost user;
    const AcDbObjectId line = AddLine({0, 0, 0}, {1, 0, 0});
    const AcDbObjectId text = Append(m_drawing, new AcDbText);
    user.m_arPicked = {text, line};
    EXPECT_EQ(Get(nullptr), (CIds{text, line}));
    EXPECT_EQ(user.m_strPrompt, "Select objects: ");
    const CResbufChain lines(acutBuildList(RTDXF0, L"LINE", RTNONE));
    EXPECT_EQ(Get(nullptr, lines.Get()), CIds{line});
    EXPECT_EQ(Get(L"P"), CIds{line});
    user.m_arPicked.clear();
    EXPECT_EQ(Get(nullptr), CIds{});
    user.m_answer = CPromptResult::Cancel;
    ads_name ss = {7, 7};
    EXPECT_EQ(acedSSGet(nullptr, nullptr, nullptr, nullptr, ss), RTCAN);
    EXPECT_EQ(ss[0], 7);
}

TEST_F(Selection, MembersAreAddedOnceFoundAndTakenAway) {
    ads_name first, second, ss, same;
    acdbGetAdsName(first, AddLine({0, 0, 0}, {1, 0, 0}));
    acdbGetAdsName(second, AddLine({0, 0, 0}, {2, 0, 0}));
    ASSERT_EQ(acedSSAdd(nullptr, nullptr, ss), RTNORM);
    EXPECT_EQ(acedSSMemb(first, ss), RTERROR);
    EXPECT_EQ(acedSSAdd(first, ss, same), RTNORM);
    EXPECT_EQ(acedSSAdd(first, ss, same), RTNORM);
    EXPECT_EQ(acedSSAdd(second, same, same), RTNORM);
    Adesk::Int32 nLength = 0;
    acedSSLength(ss, &nLength);
    EXPECT_EQ(nLength, 2);
    EXPECT_EQ(acedSSMemb(first, ss), RTNORM);
    EXPECT_EQ(acedSSDel(first, ss), RTNORM);
    EXPECT_EQ(acedSSDel(first, ss), RTERROR);
    EXPECT_EQ(acedSSMemb(first, ss), RTERROR);
    EXPECT_EQ(Members(ss).size(), 1u);
}

TEST_F(Selection, ASetOfWhatIsThereTakesMembersOnceAndGivesThemUp) {
    const AcDbObjectId first = AddLine({0, 0, 0}, {1, 0, 0}), second = AddLine({0, 0, 0}, {2, 0, 0});
    ads_name name, ss, same;
    ASSERT_EQ(acedSSGet(L"X", nullptr, nullptr, nullptr, ss), RTNORM);
    acdbGetAdsName(name, first);
    EXPECT_EQ(acedSSMemb(name, ss), RTNORM);
    EXPECT_EQ(acedSSAdd(name, ss, same), RTNORM);
    EXPECT_EQ(acedSSDel(name, ss), RTNORM);
    EXPECT_EQ(acedSSMemb(name, ss), RTERROR);
    EXPECT_EQ(acedSSAdd(name, ss, same), RTNORM);
    EXPECT_EQ(Members(ss), (CIds{second, first}));
}

TEST_F(Selection, AReleasedSetAnEntityAndAnIndexOutsideAreRefused) {
    ads_name entity, ss, name;
    acdbGetAdsName(entity, AddLine({0, 0, 0}, {1, 0, 0}));
    ASSERT_EQ(acedSSGet(L"X", nullptr, nullptr, nullptr, ss), RTNORM);
    AcDbObjectId id;
    EXPECT_EQ(acdbGetObjectId(id, ss), Acad::eInvalidAdsName);
    EXPECT_EQ(acedSSName(ss, -1, name), RTERROR);
    EXPECT_EQ(acedSSName(ss, 1, name), RTERROR);
    EXPECT_EQ(acedSSAdd(ss, nullptr, name), RTERROR);
    EXPECT_EQ(acedSSFree(entity), RTERROR);
    EXPECT_EQ(acedSSFree(ss), RTNORM);
    EXPECT_EQ(acedSSFree(ss), RTERROR);
    Adesk::Int32 nLength = 0;
    EXPECT_EQ(acedSSLength(ss, &nLength), RTERROR);
}

TEST_F(Selection, ADrawingTakesItsSetsWithIt) {
    AddLine({0, 0, 0}, {1, 0, 0});
    ads_name ss;
    ASSERT_EQ(acedSSGet(L"L", nullptr, nullptr, nullptr, ss), RTNORM);
    ForgetSelections(m_drawing);
    Adesk::Int32 nLength = 0;
    EXPECT_EQ(acedSSLength(ss, &nLength), RTERROR);
    EXPECT_EQ(Get(L"P"), CIds{});
}

TEST_F(Selection, ADrawingThatIsNoDocumentTakesItsSetsWithItToo) {
    ads_name ss;
    {
        AcDbDatabase beside;
        acdbHostApplicationServices()->setWorkingDatabase(&beside);
        Append(beside, new AcDbLine({0, 0, 0}, {1, 0, 0}));
        ASSERT_EQ(acedSSGet(L"L", nullptr, nullptr, nullptr, ss), RTNORM);
    }
    Adesk::Int32 nLength = 0;
    EXPECT_EQ(acedSSLength(ss, &nLength), RTERROR);
}

TEST_F(Selection, EntSelGivesNameAndPointOfThePick) {
    ads_name name = {7, 7};
    ads_point point = {};
    EXPECT_EQ(acedEntSel(L"x", name, point), RTERROR); // nobody to ask
    CFakeEditorHost user;
    user.m_arPicked = {AddLine({0, 0, 0}, {1, 0, 0})};
    user.m_ptAnswer = {1, 2, 3};
    EXPECT_EQ(acedEntSel(L"\n请选择一个实体: ", name, point), RTNORM);
    EXPECT_EQ(user.m_strPrompt, "\n请选择一个实体: ");
    AcDbObjectId id;
    EXPECT_EQ(acdbGetObjectId(id, name), Acad::eOk);
    EXPECT_EQ(id, user.m_arPicked[0]);
    EXPECT_EQ(point[1], 2.0);
    user.m_answer = CPromptResult::None;
    EXPECT_EQ(acedEntSel(L"x", name, point), RTERROR);
    user.m_answer = CPromptResult::Cancel;
    EXPECT_EQ(acedEntSel(L"x", name, point), RTCAN);
}
