#pragma once

#include "host/desktop/dialogs/control_view.h"

class QDateEdit;

class CDateView : public CControlView {
public:
    CDateView(CControl& control, QWidget* pParent, CUserAct act);

protected:
    void ShowValue() override;

private:
    QDateEdit* m_pDate;
};
