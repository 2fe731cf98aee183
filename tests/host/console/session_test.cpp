#include "host/console/session.h"

#include "host/console/progress.h"
#include "host/console/script_answers.h"
#include "host/files/drawing_storage.h"
#include "host/plot/headless.h"
#include "platform/acad/db_line.h"
#include "tests/temp_folder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

class SessionTest : public testing::Test {
protected:
    SessionTest() {
        AcDbDatabase drawing;
        auto* const pLine = new AcDbLine({0.0, 0.0, 0.0}, {5.0, 0.0, 0.0});
        CDbOpen<AcDbBlockTableRecord>(drawing.ModelSpaceId(), AcDb::kForWrite)->appendAcDbEntity(pLine);
        pLine->close();
        StoreDrawing(m_strFile, WriteDrawing(drawing, CDrawingFormat::Dxf).m_strBytes);
        StartHeadlessQt();
        m_session.emplace(m_answers, "/nowhere");
    }
    /// The names of the drawings, each with a blank.
    std::string Drawings() {
        std::string strNames;
        for (const AcApDocument* const pDocument : m_session->Host().m_drawings.Documents())
            strNames += CDrawings::NameOf(*pDocument) + " ";
        return strNames;
    }

    const CTempFolder m_folder;
    const std::string m_strFile = m_folder.Path("a.dxf");
    std::istringstream m_lines;
    CTextOutput m_output;
    CScriptAnswers m_answers{"test", m_lines, m_output, false, true};
    std::optional<CSession> m_session;
};

} // namespace

TEST_F(SessionTest, TheDrawingItIsCalledWithStandsInPlaceOfTheFirstOne) {
    EXPECT_EQ(m_session->OpenDrawing(""), std::nullopt);
    EXPECT_EQ(Drawings(), "Drawing1 ");
    EXPECT_EQ(m_session->OpenDrawing(m_strFile), std::nullopt);
    EXPECT_EQ(Drawings(), m_strFile + " ");
    EXPECT_FALSE(m_session->Host().Drawing().IsModified());
}

TEST_F(SessionTest, ADrawingThatCannotBeOpenedIsNamedWithTheReasonAndTheFirstOneStays) {
    EXPECT_EQ(m_session->OpenDrawing("/nowhere/a.dwg"),
              "/nowhere/a.dwg cannot be opened: there is no such file");
    EXPECT_EQ(Drawings(), "Drawing1 ");
}

TEST_F(SessionTest, OpeningIsGivenUpWithoutATrace) {
    SetProgressSink([](const std::string&, std::size_t nDone, std::size_t) { return nDone == 0; });
    EXPECT_EQ(m_session->OpenDrawing(m_strFile), m_strFile + " cannot be opened: it was given up");
    SetProgressSink({});
    EXPECT_EQ(Drawings(), "Drawing1 ");
    EXPECT_EQ(m_session->OpenDrawing(m_strFile), std::nullopt);
}

TEST_F(SessionTest, AModuleThatDoesNotLoadIsNamedAndFailsTheRun) {
    EXPECT_EQ(m_session->LoadModule("none"), std::nullopt);
    EXPECT_FALSE(m_session->Host().m_bModuleFailed);
    const std::optional<std::string> reason = m_session->LoadModule("/nowhere/module.so");
    ASSERT_TRUE(reason);
    EXPECT_TRUE(reason->starts_with("module /nowhere/module.so did not load: ")) << *reason;
    EXPECT_TRUE(m_session->Host().m_bModuleFailed);
}
