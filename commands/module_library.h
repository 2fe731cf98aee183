#pragma once
// The module as a library of its process.

#include "platform/windows/types.h"

// Saved when the library comes into the process, null when it has gone.
extern HINSTANCE g_hModuleInstance;
extern HINSTANCE g_hModuleResources; ///< what CTemporaryResourceOverride puts in force around a dialog

// What the loader runs when the library comes, before any entry is called, and when it goes. Both return
// TRUE.
BOOL AttachModule();
BOOL DetachModule();
