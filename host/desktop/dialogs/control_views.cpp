#include "host/desktop/dialogs/control_views.h"

#include "host/desktop/dialogs/button_view.h"
#include "host/desktop/dialogs/combo_view.h"
#include "host/desktop/dialogs/date_view.h"
#include "host/desktop/dialogs/edit_view.h"
#include "host/desktop/dialogs/label_view.h"
#include "host/desktop/dialogs/list_view.h"

std::unique_ptr<CControlView> MakeControlView(CControl& control, QWidget* pParent, const CUserAct& act) {
    switch (control.m_kind) {
    case CControlKind::List:
    case CControlKind::MultiList:
        return std::make_unique<CListView>(control, pParent, act);
    case CControlKind::Combo:
        return std::make_unique<CComboView>(control, pParent, act);
    case CControlKind::Edit:
        return std::make_unique<CEditView>(control, pParent, act);
    case CControlKind::Check:
    case CControlKind::Radio:
    case CControlKind::Button:
        return std::make_unique<CButtonView>(control, pParent, act);
    case CControlKind::Date:
        return std::make_unique<CDateView>(control, pParent, act);
    default:
        return std::make_unique<CLabelView>(control, pParent, act);
    }
}
