#pragma once

#include "host/desktop/dialogs/control_view.h"

class QListWidget;

/// A list box, for one selected entry or for several.
class CListView : public CControlView {
public:
    CListView(CControl& control, QWidget* pParent, CUserAct act);

protected:
    void ShowValue() override;

private:
    void ShowEntries();
    void TakeSelection();
    void TakeCaret();
    void Click(int nRow);
    void DoubleClick(int nRow);

    QListWidget* m_pList;
    bool m_bTold = false; ///< whether the click under way has changed the selection
};
