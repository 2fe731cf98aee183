#pragma once
// The selection sheet over samples in a project of the test's own.

#include "tests/ui/dialog_user.h"
#include "tests/ui/project_fixture.h"
#include "ui/bren_dlg.h"

/// The texts of a list, each in brackets.
inline std::string Joined(const CStringArray& texts) {
    std::string joined;
    for (const CString& text : texts)
        joined += "[" + std::string(text) + "]";
    return joined;
}

class CSelectionSheetTest : public CProjectFixture {
protected:
    /// What is printed when register and layers were read without a fault.
    static constexpr const char* ALL_READ = "\n读取z_c_QuYang表数据成功!\n读取z_g_TuCengSet表数据成功!\n";

    CSelectionSheetTest() { m_dialog.m_nGCSY = GCSY; }

    int Run(const std::vector<std::string>& lines) { return RunDialogLines(m_dialog, lines); }
    int Play(const std::function<void()>& user) { return PlayDialog(m_dialog, user); }
    static std::string Entries(const CListBox& list) { return ShownEntries(list); }

    CBRENDlg m_dialog{"生成三轴剪切试验成果图"};
};
