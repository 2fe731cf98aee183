#pragma once

#include "host/desktop/dialogs/control_view.h"

class QComboBox;

class CComboView : public CControlView {
public:
    CComboView(CControl& control, QWidget* pParent, CUserAct act);

protected:
    void ShowValue() override;

private:
    QComboBox* m_pCombo;
};
