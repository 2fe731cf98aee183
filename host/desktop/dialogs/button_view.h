#pragma once

#include "host/desktop/dialogs/control_view.h"

class QAbstractButton;

/// A push button, check box or radio button.
class CButtonView : public CControlView {
public:
    CButtonView(CControl& control, QWidget* pParent, CUserAct act);

protected:
    void ShowValue() override;

private:
    void Press();

    QAbstractButton* m_pButton;
};
