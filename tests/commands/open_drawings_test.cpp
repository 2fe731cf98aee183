#include "commands/open_drawings.h"

#include "commands/document_session.h"
#include "tests/support/documents.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

namespace {
class OpenDrawings : public testing::Test {
protected:
    CTestDrawing m_drawing;
    CTestDocuments m_documents;
};
} // namespace

TEST_F(OpenDrawings, InSingleDocumentModeOpenTheFirstAfterALine) {
    SetSdi(1);
    EXPECT_EQ(OpenChartDrawing("a.dwg|b.dwg", OpenZoom_Extents, 0), Acad::eOk);
    EXPECT_EQ(m_drawing.m_strPrinted, "当前是单文档状态,只能打开一个文档");
    EXPECT_EQ(m_documents.Shown(), "a.dwg[zoom e]");
}

TEST_F(OpenDrawings, InSingleDocumentModeOpenOneWithoutALine) {
    SetSdi(2);
    EXPECT_EQ(OpenChartDrawing("a.dwg", OpenZoom_All, 1), Acad::eOk);
    EXPECT_EQ(m_drawing.m_strPrinted, "");
    EXPECT_EQ(m_documents.Shown(), "a.dwg[zoom a]");
    EXPECT_EQ(m_documents.Current()->lockMode(), AcAp::kNotLocked);
}

TEST_F(OpenDrawings, InSingleDocumentModeGiveTheStatusOfAFailedOne) {
    SetSdi(1);
    m_documents.Add(L"before");
    m_documents.m_strMissing = "a.dwg";
    EXPECT_EQ(OpenChartDrawing("a.dwg|b.dwg", OpenZoom_Extents, 0), Acad::eFileNotFound);
    EXPECT_EQ(OpenChartDrawing("", OpenZoom_Extents, 0), Acad::eInvalidInput);
    EXPECT_EQ(m_documents.Shown(), "before");
}

TEST_F(OpenDrawings, WithoutAZoomTypeNothing) {
    EXPECT_EQ(OpenChartDrawing("a.dwg", OpenZoom_None, 0), Acad::eOk);
    SetSdi(1);
    EXPECT_EQ(OpenChartDrawing("b.dwg", OpenZoom_None, 0), Acad::eOk);
    EXPECT_EQ(m_documents.Shown(), "a.dwg b.dwg");
}

TEST_F(OpenDrawings, InApplicationContextOpenAllAtOnceEachWithItsZoom) {
    m_documents.m_strMissing = "b.dwg";
    EXPECT_EQ(OpenChartDrawing("a.dwg| b.dwg |图.dwg", OpenZoom_Extents, 0), Acad::eOk);
    EXPECT_EQ(m_documents.Shown(), "a.dwg[zoom e] 图.dwg[zoom e]");
    EXPECT_EQ(m_drawing.m_strPrinted, "");
    EXPECT_EQ(m_documents.Current()->lockMode(), AcAp::kNotLocked);
}

TEST_F(OpenDrawings, InApplicationContextLockTheLastOneWhenAsked) {
    EXPECT_EQ(OpenChartDrawing("a.dwg|b.dwg", OpenZoom_All, 1), Acad::eOk);
    EXPECT_EQ(m_documents.Current()->lockMode(), AcAp::kWrite);
    EXPECT_EQ(m_documents.Documents().front()->lockMode(), AcAp::kNotLocked);
    EXPECT_EQ(m_documents.Shown(), "a.dwg[zoom a] b.dwg[zoom a]");
}

TEST_F(OpenDrawings, GiveTheStatusOfALockThatCannotBeHad) {
    m_documents.m_strMissing = "a.dwg";
    EXPECT_EQ(OpenChartDrawing("a.dwg", OpenZoom_All, 1), Acad::eNoDocument);
}

TEST_F(OpenDrawings, FromACommandOpenWhenItHasEnded) {
    m_documents.Add(L"current");
    {
        const CDocumentContext command;
        EXPECT_EQ(OpenChartDrawing("a.dwg|b.dwg|c.dwg", OpenZoom_Extents, 1), Acad::eOk);
        EXPECT_EQ(m_documents.Documents().size(), 1U);
    }
    EXPECT_TRUE(acDocManager->RunDeferredWork());
    EXPECT_EQ(m_documents.Shown(), "current a.dwg[zoom e] b.dwg[zoom e] c.dwg[zoom e]");
    for (const AcApDocument* const pDocument : m_documents.Documents())
        EXPECT_EQ(pDocument->lockMode(), AcAp::kNotLocked);
}

TEST_F(OpenDrawings, ASecondRequestFromACommandTakesTheFirstOnesPlace) {
    m_documents.Add(L"current");
    {
        const CDocumentContext command;
        OpenChartDrawing("a.dwg", OpenZoom_None, 0);
        OpenChartDrawing("a longer path than the first one/b.dwg", OpenZoom_None, 0);
    }
    acDocManager->RunDeferredWork();
    EXPECT_EQ(m_documents.Shown(),
              "current a longer path than the first one/b.dwg a longer path than the first one/b.dwg");
}

TEST_F(OpenDrawings, FromACommandWithoutADocumentOpenNothing) {
    {
        const CDocumentContext command;
        EXPECT_EQ(OpenChartDrawing("a.dwg", OpenZoom_None, 0), Acad::eOk);
    }
    EXPECT_FALSE(acDocManager->RunDeferredWork());
}

TEST_F(OpenDrawings, AreRefusedInADocumentsContextByALine) {
    m_documents.Add(L"图1");
    const CDocumentContext command;
    OpenDocumentsInApp("1|a.dwg");
    EXPECT_EQ(m_drawing.m_strPrinted, "\nERROR: in Document context : 图1\n");
    EXPECT_EQ(m_documents.Shown(), "图1");
}

TEST_F(OpenDrawings, KnowNoOtherZoom) {
    OpenDocumentsInApp("3|a.dwg");
    OpenDocumentsInApp("x|b.dwg");
    OpenDocumentsInApp("2");
    EXPECT_EQ(m_documents.Shown(), "a.dwg b.dwg");
}
