#include "commands/br_editor_reactor.h"

#include "commands/session_flags.h"
#include "commands/text_conversion.h"
#include "platform/mfc/string.h"

CEdBRReactor* g_pEdReactor = nullptr;
Adesk::Int32 g_bQuitting = 0;

void CEdBRReactor::commandWillStart(const ACHAR* pName) {
    const CString strName = ToNarrow(pName);
    g_bQuitting = strName == "QUIT" ? 1 : 0;
}
