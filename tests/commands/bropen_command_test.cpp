#include "commands/bropen_command.h"

#include "commands/document_session.h"
#include "host/console/dialog_lines.h"
#include "platform/windows/code_page.h"
#include "tests/platform/mfc/dialog_script.h"
#include "tests/support/documents.h"
#include "tests/ui/project_fixture.h"

#include <filesystem>

namespace {
class BropenCommandTest : public CProjectFixture {
protected:
    BropenCommandTest() {
        AddReading("1", "1-1");
        const std::string strFolder = "Output/G1/" + ToUtf8("室内曲线") + "/";
        std::filesystem::create_directories(m_root.Path(strFolder));
        for (const char* pTitle : {"BR1-1", "BR1-2"})
            m_root.Write(strFolder + pTitle + ".dwg", "");
    }
    /// Runs the command and what it hands over; the lines play the dialog.
    void Run(const std::vector<std::string>& lines) {
        const CDialogScript script([&](CModalWindow& window) {
            EXPECT_TRUE(acDocManager->isApplicationContext());
            m_nDialogs++;
            for (const std::string& line : lines)
                RunDialogLine(window, ToUtf8(line));
        });
        {
            const CDocumentContext context;
            BropenCommand();
        }
        acDocManager->RunDeferredWork();
    }
    std::string File(const char* pTitle) const {
        return Root() + "\\Output\\G1\\室内曲线\\" + pTitle + ".dwg";
    }

    CTestDocuments m_documents;
    int m_nDialogs = 0;
};
} // namespace

TEST_F(BropenCommandTest, OpensTheChosenDrawingZoomedToItsExtents) {
    m_documents.Add(L"current");
    Run({"select 1056 试样1-2", "ok"});
    EXPECT_EQ(m_documents.Shown(), "current " + File("BR1-2") + "[zoom e]");
    EXPECT_EQ(m_documents.Current()->lockMode(), AcAp::kNotLocked);
    EXPECT_EQ(m_strPrinted, "");
}

TEST_F(BropenCommandTest, OpensItInSingleDocumentMode) {
    m_documents.Add(L"current");
    SetSdi(1);
    Run({"dblclick 1056 试样1-1"});
    EXPECT_EQ(m_documents.Shown(), "current " + File("BR1-1") + "[zoom e]");
}

TEST_F(BropenCommandTest, OpensNothingWhenSeveralAreChosen) {
    m_documents.Add(L"current");
    Run({"select 1056 all", "ok"});
    EXPECT_EQ(m_nDialogs, 1);
    EXPECT_EQ(m_documents.Shown(), "current");
    EXPECT_EQ(Boxes() + m_strPrinted, "");
}

TEST_F(BropenCommandTest, OpensNothingWhenNoneIsChosenOrItIsCancelled) {
    m_documents.Add(L"current");
    Run({"ok"});
    Run({"select 1056 试样1-1", "cancel"});
    EXPECT_EQ(m_nDialogs, 2);
    EXPECT_EQ(m_documents.Shown(), "current");
}

TEST_F(BropenCommandTest, OpensNothingWhenTheFileIsGone) {
    m_documents.Add(L"current");
    const CDialogScript script([&](CModalWindow& window) {
        std::filesystem::remove_all(m_root.Path("Output"));
        for (const char* pLine : {"select 1056 试样1-1", "ok"})
            RunDialogLine(window, ToUtf8(pLine));
    });
    BropenCommand();
    EXPECT_EQ(m_documents.Shown(), "current");
    EXPECT_EQ(Boxes() + m_strPrinted, "");
}

TEST_F(BropenCommandTest, EndsWithoutADocument) {
    Run({"ok"});
    EXPECT_EQ(m_nDialogs, 0);
}
