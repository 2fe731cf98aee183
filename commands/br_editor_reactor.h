#pragma once

#include "platform/acad/editor_reactor.h"

/// Watches the commands that start. It knows when the host is quitting.
class CEdBRReactor : public AcEditorReactor {
public:
    void commandWillStart(const ACHAR* pName) override;
};

/// The module's one reactor; null before load and after unload.
extern CEdBRReactor* g_pEdReactor;
