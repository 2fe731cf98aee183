#include "commands/bren_command.h"

#include <thread>

#include "platform/mfc/user_actions.h"
#include "platform/windows/message_window.h"
#include "tests/platform/mfc/dialog_script.h"
#include "tests/ui/project_fixture.h"
#include "ui/bren_dlg.h"
#include "ui/resources.h"

namespace {

/// A project of two samples, with the data manager running.
class BrenCommandTest : public CProjectFixture {
protected:
    BrenCommandTest() {
        AddSample("1", "1-1");
        AddSample("1", "1-2");
        AddLayer("1");
        m_manager.Create("QMDBMANAGERE4", [](UINT, WPARAM, LPARAM) { return LRESULT{0}; });
        m_server = std::thread([this] { m_manager.Run(); });
    }
    ~BrenCommandTest() override {
        m_manager.Quit();
        m_server.join();
    }

    /// Gives the command; the user selects the first sample and presses a button.
    void Command(UINT nButton) {
        const CDialogScript script([&](CModalWindow& window) {
            for (CWnd* pItem : window.GetItems())
                if (pItem->GetDlgCtrlID() == IDC_QY_LIST) UserSelect(*pItem, 0);
            for (CWnd* pItem : window.GetItems())
                if (pItem->GetDlgCtrlID() == nButton) return UserClick(*pItem);
            ADD_FAILURE() << "no button " << nButton;
        });
        BrenCommand();
    }
    CPromptResult AskPoint(const std::string& strPrompt, const AcGePoint3d*, AcGePoint3d*) override {
        m_arPrompts.push_back(strPrompt);
        return CPromptResult::Cancel;
    }

    CMessageWindow m_manager;
    std::thread m_server;
    CTexts m_arPrompts;
};

} // namespace

TEST_F(BrenCommandTest, GoesOnToTheInsertionPointAfterAnOk) {
    Command(ID_OK);
    EXPECT_EQ(m_arPrompts, CTexts{"\r\n请指定三轴剪切曲线BREN_的左下插入点:"});
    EXPECT_EQ(Marks("SYQXG11"), "1-1"); // though no chart came of it
}

TEST_F(BrenCommandTest, EndsWithoutAnOk) {
    for (const UINT nButton : {ID_CANCEL, IDC_EDIT_TEMPLATE})
        Command(nButton);
    EXPECT_EQ(m_arPrompts, CTexts());
    EXPECT_EQ(m_strPrinted, "");
    EXPECT_EQ(Boxes(), "");
    EXPECT_EQ(Marks("SYQXG11"), "(none)");
}
