// Commands run from within commands.

#include "platform/acad/ap_document_manager.h"
#include "platform/acad/editor.h"
#include "platform/acad/host_application.h"
#include "platform/ado/number_text.h"
#include "platform/windows/code_page.h"

#include <cstdarg>

namespace {

std::string AnswerText(const resbuf& buffer) {
    const ads_u_val& value = buffer.resval;
    switch (ResbufKind(buffer.restype)) {
    case CResbufKind::Text:
        return GbkFromWide(value.rstring ? value.rstring : L"");
    case CResbufKind::Real:
        return ShortestText(value.rreal);
    case CResbufKind::Point:
        return ShortestText(value.rpoint[0]) + "," + ShortestText(value.rpoint[1]) + "," +
               ShortestText(value.rpoint[2]);
    case CResbufKind::Short:
        return ShortestText(value.rint);
    case CResbufKind::Long:
        return ShortestText(value.rlong);
    case CResbufKind::None:
        break;
    }
    return {};
}

} // namespace

int acedCmd(const resbuf* pChain) {
    CEditorHost* const pHost = EditorHost();
    if (!pHost || !pChain || acDocManagerPtr()->isApplicationContext()) return RTERROR;
    std::vector<std::string> words;
    for (const resbuf* pBuffer = pChain; pBuffer; pBuffer = pBuffer->rbnext)
        words.push_back(AnswerText(*pBuffer));
    switch (pHost->RunCommand(words)) {
    case CCommandResult::Done:
        return RTNORM;
    case CCommandResult::Failed:
        return RTERROR;
    case CCommandResult::Cancelled:
        break;
    }
    return RTCAN;
}

int acedCommand(int type, ...) {
    std::va_list arguments;
    va_start(arguments, type);
    const CResbufChain chain(BuildListV(type, arguments));
    va_end(arguments);
    return acedCmd(chain.Get());
}
