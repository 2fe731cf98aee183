#pragma once
// The dialog with a control of each kind, laid out one below the other.

#include "tests/host/console/test_dialog.h"

class CPlacedDialog : public CTestDialog {
public:
    CPlacedDialog() { InitModalIndirect(&m_template); }

    CDialogTemplate m_template = Placed(TestDialog::Template());

    static CDialogTemplate Placed(CDialogTemplate dialog) {
        int y = 6;
        for (CControlTemplate& control : dialog.m_arControls) {
            const bool bList =
                control.m_kind == CControlKind::List || control.m_kind == CControlKind::MultiList;
            control.m_place = {10, y, 100, bList ? 80 : 12};
            y += control.m_place.cy + 2;
        }
        dialog.m_cx = 120;
        dialog.m_cy = y;
        return dialog;
    }
};
