#pragma once
// The module's dialogs in a project of the test's own, played by the lines of a script.

#include "host/console/dialog_lines.h"
#include "tests/platform/mfc/dialog_script.h"
#include "tests/ui/project_fixture.h"
#include "ui/resources.h"

class CDialogTest : public CProjectFixture {
protected:
    /// Runs the lines in the dialog and gives its result; one left open counts as cancelled.
    static int Run(CModalWindow& dialog, const std::vector<std::string>& lines) {
        return Play(dialog, [&] {
            for (const std::string& line : lines)
                RunDialogLine(dialog, ToUtf8(line));
        });
    }
    static int Play(CModalWindow& dialog, const std::function<void()>& user) {
        const CDialogScript script([&](CModalWindow&) { user(); });
        return dialog.DoModal();
    }
    static std::string TextOf(const CModalWindow& dialog, UINT nId) {
        CString strText;
        dialog.GetDlgItem(nId)->GetWindowText(strText);
        return strText.GetString();
    }
    /// The numbers of the edit fields in which nothing can be typed now, in ascending order.
    static std::string Greyed(const CModalWindow& dialog) {
        std::string greyed;
        for (UINT nId = 1000; nId < 1100; ++nId) {
            const CWnd* const pItem = dialog.GetDlgItem(nId);
            if (!pItem || pItem->GetControl()->m_kind != CControlKind::Edit || pItem->IsWindowEnabled())
                continue;
            greyed += (greyed.empty() ? "" : " ") + std::to_string(nId);
        }
        return greyed;
    }
    /// The entries of a list, `>` before a selected one, a blank before any other.
    static std::string Entries(const CModalWindow& dialog, UINT nId) {
        std::string entries;
        for (const CListEntry& entry : dialog.GetDlgItem(nId)->GetControl()->m_arEntries)
            entries += (entry.m_bSelected ? ">" : " ") + std::string(entry.m_strText);
        return entries;
    }

    CTemporaryResourceOverride m_resources{ModuleResources()};
};
