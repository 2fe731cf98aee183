#pragma once

#include "host/desktop/dialogs/control_view.h"

class QLabel;

class CLabelView : public CControlView {
public:
    CLabelView(CControl& control, QWidget* pParent, CUserAct act);

protected:
    void ShowValue() override;

private:
    QLabel* m_pLabel;
};
