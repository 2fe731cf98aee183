#pragma once
// The module's dialogs on the screen, in a project of the test's own.

#include "host/console/dialog_text.h"
#include "tests/host/desktop/dialogs/user_hand.h"
#include "tests/ui/dialog_fixture.h"

class CModuleDialogTest : public CDialogTest {
protected:
    /// What came of a dialog: its result, what it showed before it was confirmed, and the boxes.
    struct COutcome {
        bool operator==(const COutcome&) const = default;

        int m_nResult = 0;
        std::string m_strShown, m_strBoxes;
    };
    friend std::ostream& operator<<(std::ostream& out, const COutcome& outcome) {
        return out << outcome.m_nResult << '\n' << outcome.m_strShown << outcome.m_strBoxes;
    }

    /// Answers the dialog by lines (GBK), then by `ok`.
    COutcome Script(CModalWindow& dialog, const std::vector<std::string>& lines) {
        COutcome outcome;
        m_arBoxes.clear();
        outcome.m_nResult = Play(dialog, [&] {
            for (const std::string& line : lines)
                RunDialogLine(dialog, ToUtf8(line));
            outcome.m_strShown = Shown(dialog);
            RunDialogLine(dialog, "ok");
        });
        outcome.m_strBoxes = Boxes();
        return outcome;
    }
    /// The user's part, then Enter.
    COutcome ByHand(CModalWindow& dialog, const std::function<void()>& user) {
        COutcome outcome;
        m_arBoxes.clear();
        outcome.m_nResult = WorkIn(dialog, [&] {
            user();
            outcome.m_strShown = Shown(dialog);
            CUserHand::Key(Qt::Key_Return);
        });
        outcome.m_strBoxes = Boxes();
        return outcome;
    }

private:
    static std::string Shown(const CModalWindow& dialog) {
        std::string strShown;
        for (const std::string& line : DialogLines(dialog))
            strShown += line + '\n';
        return strShown;
    }
};
