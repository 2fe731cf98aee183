#include "data/project_context.h"

#include <filesystem>
#include <thread>
#include <tuple>
#include <utility>
#include <vector>

#include "platform/windows/installation_root.h"
#include "platform/windows/message_window.h"
#include "tests/support/suite_fixture.h"

namespace {

class ProjectContext : public CSuiteTest {
protected:
    static void SetEdition(const char* pszValue) {
        WritePrivateProfileStringA("GLOBAL", "LOCALVER", pszValue, g_strProjectIni);
    }
};

} // namespace

TEST_F(ProjectContext, TakesIndexZeroAsAProject) {
    SetProject("GCSY", "0");
    EXPECT_EQ(GetProjectIndex(), 0);
    SetProject("GCSY", "12");
    EXPECT_EQ(GetProjectIndex(), 12);
    EXPECT_TRUE(m_arBoxes.empty());
}

TEST_F(ProjectContext, AsksForAProjectWhenTheIndexIsNegativeOrMissing) {
    for (const char* pszValue : {"-1", "-7", static_cast<const char*>(nullptr)}) {
        SetProject("GCSY", pszValue);
        EXPECT_EQ(GetProjectIndex(), -1);
    }
    const std::string strAsked = "请首先启动【数据管理】并打开工程，再重试此功能！";
    EXPECT_EQ(m_arBoxes, (CTexts{strAsked, strAsked, strAsked}));
}

TEST_F(ProjectContext, ReadsATextUpTo1023Bytes) {
    EXPECT_EQ(ReadProjectText("GCBH"), CString());
    SetProject("GCBH", "岩土-7");
    EXPECT_EQ(ReadProjectText("GCBH"), CString("岩土-7"));
    SetProject("GCBH", std::string(1100, 'x').c_str());
    EXPECT_EQ(ReadProjectText("GCBH"), CString(std::string(1023, 'x')));
}

TEST_F(ProjectContext, ReadsANumberOrMinusOne) {
    SetProject("GCBZ", nullptr);
    EXPECT_EQ(ReadProjectNumber("GCBZ"), -1);
    SetProject("GCBZ", "2");
    EXPECT_EQ(ReadProjectNumber("GCBZ"), 2);
}

TEST_F(ProjectContext, NamesTheDataManagersWindowByTheEdition) {
    EXPECT_EQ(GetDataManagerClass(), CString("QMDBMANAGERE4"));
    for (const char* pszEdition : {"0", "1", "2", "3", "4"}) {
        SetEdition(pszEdition);
        EXPECT_EQ(GetDataManagerClass(), CString(std::string("QMDBMANAGERE") + pszEdition));
    }
    for (const char* pszEdition : {"5", "-1"}) {
        SetEdition(pszEdition);
        EXPECT_TRUE(GetDataManagerClass().IsEmpty()) << pszEdition;
    }
}

TEST_F(ProjectContext, TellsARunningDataManagerThatItsProjectIsUsed) {
    std::vector<std::tuple<UINT, WPARAM, LPARAM>> arMessages;
    CMessageWindow window;
    ASSERT_TRUE(window.Create("QMDBMANAGERE2", [&](UINT message, WPARAM wParam, LPARAM lParam) {
        arMessages.emplace_back(message, wParam, lParam);
        window.Quit();
        return LRESULT{0}; // whatever it answers
    }));
    std::thread server([&] { window.Run(); });
    SetEdition("2");
    EXPECT_EQ(CheckDataManager(), 1);
    server.join();
    EXPECT_EQ(arMessages, (std::vector<std::tuple<UINT, WPARAM, LPARAM>>{{2534, 1, 0}}));
    EXPECT_TRUE(m_arBoxes.empty());
}

TEST_F(ProjectContext, AsksForTheDataManagerWhenItDoesNotRun) {
    EXPECT_EQ(CheckDataManager(), 0);
    SetEdition("9");
    EXPECT_EQ(CheckDataManager(), 0);
    const std::string strAsked = "请首先启动【数据管理】并打开工程，再重试此功能!";
    EXPECT_EQ(m_arBoxes, (CTexts{strAsked, strAsked}));
}

TEST_F(ProjectContext, FindsNoDataManagerOfAnotherEdition) {
    CMessageWindow window;
    ASSERT_TRUE(window.Create("QMDBMANAGERE3", [](UINT, WPARAM, LPARAM) { return LRESULT{0}; }));
    EXPECT_EQ(CheckDataManager(), 0);
    for (const char* pszEdition : {"5", "-1"}) {
        SetEdition(pszEdition);
        EXPECT_EQ(CheckDataManager(), 0) << pszEdition;
    }
    EXPECT_EQ(m_arBoxes.size(), 3U);
}

TEST_F(ProjectContext, TakesADataManagerThatDoesNotAnswerForARunningOne) {
    CMessageWindow window;
    ASSERT_TRUE(window.Create("QMDBMANAGERE4", [](UINT, WPARAM, LPARAM) { return LRESULT{1}; }));
    EXPECT_EQ(CheckDataManager(), 1); // nobody serves it here, and the call comes back
    EXPECT_TRUE(m_arBoxes.empty());
}

TEST_F(ProjectContext, ReadsTheIndexLikeAnyNumberOfAnIniFile) {
    for (const auto& [pszValue, nIndex] :
         std::vector<std::pair<const char*, int>>{{"x", 0}, {"3 x", 3}, {"+4", 4}, {"\"5\"", 5}}) {
        SetProject("GCSY", pszValue);
        EXPECT_EQ(GetProjectIndex(), nIndex) << pszValue;
    }
    SetProject("GCSY", "");
    EXPECT_EQ(GetProjectIndex(), -1);
}

TEST_F(ProjectContext, GivesTheRootOnlyWhereItExists) {
    CString strRoot = "before";
    SetInstallationRoot(m_root.Path("missing"));
    EXPECT_EQ(GetRootPath(&strRoot), 0);
    EXPECT_EQ(strRoot, CString("before"));
    std::filesystem::create_directory(m_root.Path("missing"));
    EXPECT_EQ(GetRootPath(&strRoot), 1);
    EXPECT_EQ(strRoot, CString(m_root.Path("missing")));
}

TEST_F(ProjectContext, FindsEachDatabase) {
    CString strText;
    ASSERT_EQ(GetConnectionText(SuiteDb_Project, &strText), 1);
    EXPECT_EQ(strText, CString("Provider=SQLite;Data Source=" + m_strDatabase));
    ASSERT_EQ(GetConnectionText(SuiteDb_Common, &strText), 1);
    EXPECT_EQ(strText, CString("Provider=SQLite;Data Source=" + m_root.Path("Data/common.db")));
    ASSERT_EQ(GetConnectionText(SuiteDb_Config, &strText), 1);
    EXPECT_EQ(strText, CString("Provider=SQLite;Data Source=" + m_root.Path("Data/config.db")));
    SetProject("GCSY", "-1");
    EXPECT_EQ(GetConnectionText(SuiteDb_Project, &strText), 0);
}

TEST_F(ProjectContext, NoticesAnotherProject) {
    CString strRemembered;
    EXPECT_EQ(ConnectionChanged(strRemembered), 1);
    GetConnectionText(SuiteDb_Project, &strRemembered);
    EXPECT_EQ(ConnectionChanged(strRemembered), 0);
    SetProject("Database", "other.db");
    EXPECT_EQ(ConnectionChanged(strRemembered), 1);
    SetProject("GCSY", "-1");
    EXPECT_EQ(ConnectionChanged(""), 0);
}
