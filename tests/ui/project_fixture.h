#pragma once
// Samples in a project of the test's own, and what commands print.

#include "platform/acad/host_application.h"
#include "tests/support/suite_fixture.h"

/// Statements and texts are GBK.
class CProjectFixture : public CSuiteTest, protected CEditorHost {
protected:
    static constexpr int GCSY = 1;

    CProjectFixture() {
        SetProject("GCBH", "G1");
        SetProject("GCMC", "工程一");
        SetEditorHost(this);
    }
    ~CProjectFixture() override { SetEditorHost(nullptr); }

    /// One reading of a sample; quotes in the numbers are doubled by the caller.
    void AddReading(const std::string& zk, const std::string& qy) {
        Execute("INSERT INTO z_c_SanZhouCSXM VALUES (1,'" + zk + "','" + qy +
                "',1,1,100,80,39.1,1,0,0,0,0,0,0,0)");
    }
    /// A sample that has all it needs: readings, method, a place in the register within the layer of the
    /// borehole.
    void AddSample(const std::string& zk, const std::string& qy, const std::string& method = "'固结不排水剪'",
                   const std::string& values = "2.5,0.5,25.5,0,20.5,40.5") {
        AddReading(zk, qy);
        AddReading(zk, qy);
        Execute("INSERT INTO z_c_SanZhou (GCSY,ZKBH,QYBH,SYFF) VALUES (1,'" + zk + "','" + qy + "'," +
                method + ")");
        Execute("INSERT INTO z_c_QuYang VALUES (1,'" + zk + "','" + qy + "'," + values + ")");
    }
    void AddLayer(const std::string& zk, const char* name = "粉质黏土") {
        Execute("INSERT INTO z_g_TuCeng VALUES (1,'" + zk + "',10,9,'" + name + "')");
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

    /// The texts of the message boxes, each in brackets.
    std::string Boxes() const {
        std::string boxes;
        for (const std::string& text : m_arBoxes)
            boxes += "[" + text + "]";
        return boxes;
    }

    void Print(const std::string& strText) override { m_strPrinted += strText; }
    CPromptResult AskPoint(const std::string& /*strPrompt*/, const AcGePoint3d* /*pBase*/,
                           AcGePoint3d* /*pPoint*/) override {
        return CPromptResult::Cancel;
    }
    std::string FindFile(const std::string& /*strName*/) override { return ""; }

    std::string m_strPrinted; ///< in the text window
};
