#pragma once
// The same dialog played by a user and by the lines of a script.

#include <gtest/gtest.h>

#include "host/console/dialog_lines.h"
#include "platform/windows/code_page.h"
#include "tests/host/desktop/dialogs/placed_dialog.h"
#include "tests/host/desktop/dialogs/user_hand.h"
#include "tests/platform/mfc/dialog_script.h"

class CPlacedDialogTest : public testing::Test {
protected:
    /// The notifications that these lines (GBK) send.
    static std::string Told(const std::vector<std::string>& lines) {
        CPlacedDialog dialog;
        const CDialogScript script([&](CModalWindow&) {
            for (const std::string& line : lines)
                RunDialogLine(dialog, ToUtf8(line));
        });
        dialog.DoModal();
        return dialog.m_strLog;
    }
    int Work(const std::function<void()>& user) { return WorkIn(m_dialog, user); }

    CPlacedDialog m_dialog;
};
