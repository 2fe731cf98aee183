#include "platform/mfc/radio_group.h"

#include "platform/mfc/modal_window.h"

std::vector<CWnd*> RadioGroup(const CWnd& control) {
    const auto* pDialog = dynamic_cast<CModalWindow*>(control.GetParent());
    std::vector<CWnd*> group;
    bool bFound = false;
    for (CWnd* pItem : pDialog ? pDialog->GetItems() : std::vector<CWnd*>()) {
        if (pItem->GetControl()->m_nFlags & CONTROL_GROUP) {
            if (bFound) break;
            group.clear();
        }
        bFound = bFound || pItem->GetControl() == control.GetControl();
        if (pItem->GetControl()->m_kind == CControlKind::Radio) group.push_back(pItem);
    }
    return group;
}
