#pragma once
// The selection sheet over samples in a project of the test's own.

#include "host/console/dialog_lines.h"
#include "tests/platform/mfc/dialog_script.h"
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

    /// Runs the sheet with the lines of a script and gives its result; one left open counts as cancelled.
    int Run(const std::vector<std::string>& lines) {
        return Play([&] {
            for (const std::string& line : lines)
                RunDialogLine(m_dialog, ToUtf8(line));
        });
    }
    int Play(std::function<void()> user) {
        const CDialogScript script([&](CModalWindow&) { user(); });
        return m_dialog.DoModal();
    }
    /// The entries of a list, `>` before a selected one, a blank before any other.
    static std::string Entries(const CListBox& list) {
        std::string entries;
        for (const CListEntry& entry : list.GetControl()->m_arEntries)
            entries += (entry.m_bSelected ? ">" : " ") + std::string(entry.m_strText);
        return entries;
    }

    CBRENDlg m_dialog{"生成三轴剪切试验成果图"};
};
