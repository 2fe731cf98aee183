#pragma once

#include "host/desktop/dialogs/control_view.h"

class QLineEdit;

/// An edit field. Characters that the code page lacks cannot be typed or pasted.
class CEditView : public CControlView {
public:
    CEditView(CControl& control, QWidget* pParent, CUserAct act);

protected:
    void ShowValue() override;

private:
    QLineEdit* m_pEdit;
};
