#pragma once
// A project in a folder of its own: ini files and a SQLite database with the suite's tables. What commands
// print and say in boxes is kept.

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>

#include "data/project_context.h"
#include "platform/acad/host_application.h"
#include "platform/windows/code_page.h"
#include "platform/windows/message_box.h"
#include "platform/windows/profile.h"

class CProjectFixture : public testing::Test, protected CEditorHost {
protected:
    static constexpr int GCSY = 7;

    CProjectFixture() {
        std::string pattern = (std::filesystem::temp_directory_path() / "projectXXXXXX").string();
        m_root = mkdtemp(pattern.data());
        g_strProjectIni = (m_root / "Project.ini").string();
        g_strMarksIni = (m_root / "Marks.ini").string();
        SetKey("GCSY", "7");
        SetKey("GCBH", "G1");
        SetKey("GCMC", "工程一");
        SetKey("Database", "project.db");
        setenv("TERVO_ROOT", m_root.c_str(), 1);
        WritePrivateProfileStringA("TVTool", "ProjectIni", "Project.ini", (m_root / "tervo.ini").c_str());
        EXPECT_EQ(sqlite3_open((m_root / "project.db").c_str(), &m_pDb), SQLITE_OK);
        Sql("CREATE TABLE z_c_SanZhouCSXM (GCSY INTEGER, ZKBH TEXT, QYBH TEXT, SJBH INTEGER, SHJHXH INTEGER, "
            "WY REAL,"
            " SYGD REAL, SYZJ REAL, CLHXS REAL, GJKXYL REAL, CLHDS REAL, ZXBX REAL, JQPS REAL, KXYL REAL, "
            "GJPS REAL,"
            " JLLX INTEGER)");
        Sql("CREATE TABLE z_c_SanZhou (GCSY INTEGER, ZKBH TEXT, QYBH TEXT, SYFF TEXT, SYRQ TEXT, UUC REAL, "
            "UUF REAL,"
            " CUC REAL, CUF REAL, CUCE REAL, CUFE REAL, CDC REAL, CDF REAL)");
        Sql("CREATE TABLE z_c_QuYang (GCSY INTEGER, ZKBH TEXT, QYBH TEXT, QYSD REAL, QYHD REAL, QYHSL REAL,"
            " QYLX INTEGER, QYSY REAL, QYYX REAL)");
        Sql("CREATE TABLE z_g_TuCeng (GCSY INTEGER, ZKBH TEXT, TCCDSD REAL, TCHD REAL, TCMC TEXT)");
        SetEditorHost(this);
        SetMessageBoxHost({[this](HWND, const std::wstring& strText, const std::wstring&, UINT) {
                               m_strBoxes += "[" + GbkFromWide(strText) + "]";
                               return IDOK;
                           },
                           {},
                           {}});
    }
    ~CProjectFixture() override {
        SetEditorHost(nullptr);
        SetMessageBoxHost({});
        sqlite3_close(m_pDb);
        unsetenv("TERVO_ROOT");
        std::filesystem::remove_all(m_root);
    }

    void SetKey(const char* key, const char* value) const {
        ASSERT_TRUE(WritePrivateProfileStringA("Project", key, value, g_strProjectIni));
    }
    void Sql(const std::string& statement) const {
        char* pError = nullptr;
        EXPECT_EQ(sqlite3_exec(m_pDb, ToUtf8(statement).c_str(), nullptr, nullptr, &pError), SQLITE_OK)
            << (pError ? pError : "");
        sqlite3_free(pError);
    }
    /// One reading of a sample; quotes in the numbers are doubled by the caller.
    void AddReading(const std::string& zk, const std::string& qy) const {
        Sql("INSERT INTO z_c_SanZhouCSXM VALUES (7,'" + zk + "','" + qy +
            "',1,1,100,80,39.1,1,0,0,0,0,0,0,0)");
    }
    /// A sample that has all it needs: readings, method, a place in the register within the layer of the
    /// borehole.
    void AddSample(const std::string& zk, const std::string& qy, const std::string& method = "'固结不排水剪'",
                   const std::string& values = "2.5,0.5,25.5,0,20.5,40.5") const {
        AddReading(zk, qy);
        AddReading(zk, qy);
        Sql("INSERT INTO z_c_SanZhou (GCSY,ZKBH,QYBH,SYFF) VALUES (7,'" + zk + "','" + qy + "'," + method +
            ")");
        Sql("INSERT INTO z_c_QuYang VALUES (7,'" + zk + "','" + qy + "'," + values + ")");
    }
    void AddLayer(const std::string& zk, const char* name = "粉质黏土") const {
        Sql("INSERT INTO z_g_TuCeng VALUES (7,'" + zk + "',10,9,'" + name + "')");
    }

    void SetMarks(const char* key, const std::string& value) const {
        ASSERT_TRUE(WritePrivateProfileStringA("CBRENDlg", key, value.c_str(), g_strMarksIni));
    }
    std::string Marks(const char* key) const {
        std::vector<char> value(8192);
        GetPrivateProfileStringA("CBRENDlg", key, "(none)", value.data(), static_cast<DWORD>(value.size()),
                                 g_strMarksIni);
        return value.data();
    }

    void Print(const std::string& strText) override { m_strPrinted += strText; }
    CPromptResult AskPoint(const std::string& /*strPrompt*/, AcGePoint3d* /*pPoint*/) override {
        return CPromptResult::Cancel;
    }
    std::string FindFile(const std::string& /*strName*/) override { return ""; }

    std::filesystem::path m_root;
    std::string m_strPrinted; ///< in the text window
    std::string m_strBoxes;   ///< texts of message boxes, each in brackets

private:
    sqlite3* m_pDb = nullptr;
};
