#pragma once
// The service "AcEditor" and those who watch it.

#include "platform/acad/adesk.h"
#include "platform/acad/rx_object.h"
#include "platform/acad/rx_registry.h"

#include <functional>
#include <vector>

class AcRxEventReactor : public AcRxObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return AcRxEventReactor::desc(); }
};

class AcEditorReactor : public AcRxEventReactor {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return AcEditorReactor::desc(); }
    /// Called before each command starts, with its global name in upper case.
    virtual void commandWillStart(const ACHAR*) {}
    // One of these is called when it is over.
    virtual void commandEnded(const ACHAR*) {}
    virtual void commandCancelled(const ACHAR*) {} ///< the user gave it up
    virtual void commandFailed(const ACHAR*) {}
};

class AcEditor : public AcRxObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return AcEditor::desc(); }

    void addReactor(AcEditorReactor* pReactor); ///< not owned; once only
    void removeReactor(AcEditorReactor* pReactor);

    // Host side.
    /// Takes away the reactors whose class is code that goes.
    void RemoveReactorsOf(const std::function<bool(const void*)>& isInside);
    void FireCommandWillStart(const ACHAR* globalName);
    void FireCommandEnded(const ACHAR* globalName);
    void FireCommandCancelled(const ACHAR* globalName);
    void FireCommandFailed(const ACHAR* globalName);

private:
    void Fire(const ACHAR* globalName, void (AcEditorReactor::*pEvent)(const ACHAR*));

    std::vector<AcEditorReactor*> m_arReactors;
};

#define acedEditor (static_cast<AcEditor*>(acrxSysRegistry()->at(ACED_EDITOR_OBJ)))
