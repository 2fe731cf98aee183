#pragma once
// A user of dialogs: what he does in them, and what he sees.

#include "host/console/dialog_lines.h"
#include "platform/windows/code_page.h"
#include "tests/platform/mfc/dialog_script.h"

#include <functional>
#include <string>
#include <vector>

/// Opens the dialog for a user and gives its result; one that he leaves open counts as cancelled.
inline int PlayDialog(CModalWindow& dialog, const std::function<void()>& user) {
    const CDialogScript script([&](CModalWindow&) { user(); });
    return dialog.DoModal();
}

/// The same for the lines of a script, GBK.
inline int RunDialogLines(CModalWindow& dialog, const std::vector<std::string>& lines) {
    return PlayDialog(dialog, [&] {
        for (const std::string& line : lines)
            RunDialogLine(dialog, ToUtf8(line));
    });
}

/// The entries of a list, `>` before a selected one, a blank before any other.
inline std::string ShownEntries(const CWnd& list) {
    std::string entries;
    for (const CListEntry& entry : list.GetControl()->m_arEntries)
        entries += (entry.m_bSelected ? ">" : " ") + std::string(entry.m_strText);
    return entries;
}
