#pragma once
// A library with resources of its own, as its process knows it while it is attached.

#include "platform/windows/types.h"

class CDynLinkLibrary;

/// What an extension library keeps of itself; a static object of its own, all null before it is attached.
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized = FALSE;
    HINSTANCE hModule = nullptr;
    HINSTANCE hResource = nullptr;
    CDynLinkLibrary* pLibrary = nullptr; ///< owned; gone with the termination
};

/// Names the library by its instance handle, whose resources are its own. TRUE; also for one initialised
/// already, which stays as it is.
BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HINSTANCE hModule);
/// Takes back what the initialisation and the library object did.
void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state);

/// An initialised extension library. Made with new; its state owns it.
class CDynLinkLibrary {
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state);
    CDynLinkLibrary(const CDynLinkLibrary&) = delete;
    CDynLinkLibrary& operator=(const CDynLinkLibrary&) = delete;

    const HINSTANCE m_hModule;
    const HINSTANCE m_hResource; ///< for CTemporaryResourceOverride
};
