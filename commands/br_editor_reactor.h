#pragma once

#include "platform/acad/editor_reactor.h"

/// Watches the commands that start. Before one that leaves the drawing or begins new charts it asks whether a
/// change of an envelope line is to be stored, and it knows when the host is quitting.
class CEdBRReactor : public AcEditorReactor {
public:
    void commandWillStart(const ACHAR* pName) override;
};

/// The module's one reactor; null before load and after unload.
extern CEdBRReactor* g_pEdReactor;
