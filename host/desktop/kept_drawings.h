#pragma once

#include "host/console/host.h"
#include "host/desktop/autosave.h"

class QWidget;

/// Asks for each drawing that an earlier run left whether it is opened. It opens as a changed drawing of its
/// own name; the copy goes once this run has one of its own, and also when the user does not want it. Cancel
/// leaves it for the next start. One that another window asks for now is left to that one.
void OfferKeptDrawings(CHost& host, CAutosave& autosave, QWidget* pParent);
