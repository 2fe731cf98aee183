// The engineer's session at the window, with mouse and keyboard, against the same session as a script.

#include "tests/host/desktop/desktop_user.h"
#include "tests/host/desktop/dialogs/user_hand.h"
#include "tests/support/demo.h"

#include <gtest/gtest.h>

namespace {

const std::string g_strChartModule = TERVO_BIN "/tervo-bren.so";
const std::string g_strStored = Utf8(u8"三轴剪切数据存储成功!");
constexpr QPointF g_ptCirclesOrigin(45.5, 57.8); // from the sheet's lower left corner

/// What a session leaves: the results that are stored, the drawing opened last, and its picture.
struct COutcome {
    std::string m_strResults, m_strDump, m_strPicture;
};

/// The demo project, running in an installation of its own; one at a time.
class CDemoProject {
public:
    CDemoProject() { OpenDemoProject(m_program); }
    /// The commands that write what Outcome reads.
    std::vector<std::string> LastCommands() const {
        return {"DUMP " + m_program.Folder().Path("dump.json"),
                "PLOT " + m_program.Folder().Path("sheet.png")};
    }
    COutcome Outcome() const {
        return {m_program.Do("results --root \"$ROOT\" --number DEMO-01 --csv"),
                WithoutFolder(m_program.Folder().Read("dump.json")), m_program.Folder().Read("sheet.png")};
    }

    const CProgram m_program;

private:
    std::string WithoutFolder(std::string strText) const {
        const std::string strFolder = m_program.Folder().Path();
        for (std::size_t nAt = 0; (nAt = strText.find(strFolder)) != std::string::npos;)
            strText.erase(nAt, strFolder.size());
        return strText;
    }
};

/// Where a grip of the selected entity is.
QPointF GripAt(const CDesktopUser& user, int nGrip) {
    QPointF at;
    user.Do([&] {
        for (const CGrip& grip : user.Desktop().Window().View().Document()->Grips().All())
            if (grip.m_nIndex == nGrip) at = grip.m_pt;
    });
    return at;
}

/// The rest of the line that stands behind a text of the window's transcript, at its first place.
std::string Behind(const std::string& strSaid, const std::string& strText) {
    const std::size_t nAt = strSaid.find(strText);
    if (nAt == std::string::npos) return {};
    const std::size_t nFrom = nAt + strText.size();
    return strSaid.substr(nFrom, strSaid.find('\n', nFrom) - nFrom);
}

/// What the user does in the dialog or box that is open.
void InDialog(const CDesktopUser& user, const std::function<void()>& fn) {
    user.Act([&] {
        try {
            fn();
        } catch (const std::exception& fault) { // it may not pass through Qt
            ADD_FAILURE() << fault.what();
        }
    });
}

/// Draws the sheet of a sample; the points are where the mouse can point at.
void Generate(const CDesktopUser& user) {
    user.Say("BREN");
    InDialog(user, [] {
        CUserHand::ClickEntry(1010, 0);
        CUserHand::ClickEntry(1011, 1);
        CUserHand::Key(Qt::Key_Return);
    });
    user.Click({0.0, 0.0});
    user.Say("ZOOM e");
}

/// Drags the far end of the envelope line up, is asked for it at NEW, and adopts what the line says.
void DragAndAdopt(const CDesktopUser& user) {
    user.Click(g_ptCirclesOrigin);
    ASSERT_EQ(user.Selected(), 1);
    const QPointF end = GripAt(user, 5);
    user.Click(end);
    user.Move(end + QPointF(0.0, 9.0));
    user.Do([&] { EXPECT_TRUE(user.Desktop().Window().View().Mouse().Dragged()); });
    user.Key(Qt::Key_Escape);
    user.Drag(end, end + QPointF(0.0, 3.0));
    user.Key(Qt::Key_Escape);
    user.Say("NEW");
    InDialog(user, [] { CUserHand::Key(Qt::Key_Return); }); // yes
    user.Click(g_ptCirclesOrigin);
    InDialog(user, [] {
        CUserHand::Click(1060);
        CUserHand::Key(Qt::Key_Return);
    });
}

void StoreAndReopen(const CDesktopUser& user) {
    user.Say("CLOSE");
    user.Say("SAVECHARTS");
    user.Say("BROPEN");
    InDialog(user, [] {
        CUserHand::ClickEntry(1056, 0);
        CUserHand::Key(Qt::Key_Return);
    });
}

COutcome ByHand(std::string* pSaid) {
    const CDemoProject project;
    AtDesktop({project.m_program.Root(), g_strChartModule}, [&](const CDesktopUser& user) {
        Generate(user);
        DragAndAdopt(user);
        StoreAndReopen(user);
        for (const std::string& strCommand : project.LastCommands())
            user.Say(strCommand);
        *pSaid = user.Said();
    });
    return project.Outcome();
}

/// The same with the points at which the mouse pointed.
COutcome ByScript(const std::string& strSaid) {
    const CDemoProject project;
    std::string strScript =
        "BREN\nselect 1010 ZK1\nselect 1011 1-2\nok\n" + Behind(strSaid, Utf8(u8"左下插入点:")) + "\nGRIP" +
        Behind(strSaid, "Command: GRIP") + "\nNEW\nyes\n" + Behind(strSaid, Utf8(u8"剪切试样曲线:")) +
        "\ncheck 1060\nok\nCLOSE\nSAVECHARTS\nBROPEN\nselect 1056 " + Utf8(u8"试样ZK1-1-2") + "\nok\n";
    for (const std::string& strCommand : project.LastCommands())
        strScript += strCommand + "\n";
    const CRun run = project.m_program.Tvcad(strScript);
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    return project.Outcome();
}

} // namespace

TEST(Story, AtTheWindowIsThatOfTheScript) {
    std::string strSaid;
    const COutcome byHand = ByHand(&strSaid);
    EXPECT_NE(strSaid.find(g_strStored), std::string::npos) << strSaid;
    const COutcome byScript = ByScript(strSaid);
    EXPECT_EQ(byHand.m_strResults, byScript.m_strResults);
    EXPECT_NE(byHand.m_strDump.find("CBRENChart"), std::string::npos);
    EXPECT_TRUE(byHand.m_strDump == byScript.m_strDump);
    EXPECT_TRUE(byHand.m_strPicture == byScript.m_strPicture);
}
