#pragma once

#include "host/desktop/dialogs/control_view.h"

#include <memory>

/// The view of a control by its kind, with its widget made on pParent.
std::unique_ptr<CControlView> MakeControlView(CControl& control, QWidget* pParent, const CUserAct& act);
