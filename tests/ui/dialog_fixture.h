#pragma once
// The module's dialogs in a project of the test's own, played by the lines of a script.

#include "tests/ui/dialog_user.h"
#include "tests/ui/project_fixture.h"
#include "ui/resources.h"

class CDialogTest : public CProjectFixture {
protected:
    static int Run(CModalWindow& dialog, const std::vector<std::string>& lines) {
        return RunDialogLines(dialog, lines);
    }
    static int Play(CModalWindow& dialog, const std::function<void()>& user) {
        return PlayDialog(dialog, user);
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
    static std::string Entries(const CModalWindow& dialog, UINT nId) {
        return ShownEntries(*dialog.GetDlgItem(nId));
    }

    CTemporaryResourceOverride m_resources{ModuleResources()};
};
