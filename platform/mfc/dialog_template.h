#pragma once
// Dialog templates: what a module's resources say of a dialog before it is made. Texts are GBK.

#include <string>
#include <vector>

#include "platform/windows/types.h"

enum class CControlKind { Dialog, List, MultiList, Combo, Edit, Check, Radio, Button, Date, Label };

/// How a control begins; to be joined with |.
enum CControlFlags : unsigned {
    CONTROL_PLAIN = 0,
    CONTROL_DISABLED = 1,
    CONTROL_HIDDEN = 2,
    CONTROL_GROUP = 4,   ///< begins a group of radio buttons, which ends before the next such control
    CONTROL_DEFAULT = 8, ///< the button that Enter presses
    CONTROL_READONLY = 16,
};

/// A place in dialog units, from the dialog's upper left corner.
struct CControlPlace {
    int x = 0, y = 0, cx = 0, cy = 0;
};

struct CControlTemplate {
    UINT m_nId = 0;
    CControlKind m_kind = CControlKind::Label;
    std::string m_strCaption;
    CControlPlace m_place;
    unsigned m_nFlags = CONTROL_PLAIN;
};

/// One dialog; the controls stand in tab order.
struct CDialogTemplate {
    UINT m_nId = 0;
    std::string m_strName; ///< resources may go by a name too; empty when this one does not
    std::string m_strCaption;
    int m_cx = 0, m_cy = 0; ///< dialog units
    std::vector<CControlTemplate> m_arControls;
};
