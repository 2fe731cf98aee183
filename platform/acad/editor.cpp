#include "platform/acad/editor.h"

#include "platform/acad/ads_point.h"
#include "platform/acad/host_application.h"
#include "platform/acad/wide_format.h"
#include "platform/windows/code_page.h"

#include <cstdarg>
#include <cstdio>
#include <cwchar>

int acutPrintf(const ACHAR* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const std::string strText = GbkFromWide(FormatWideV(format, arguments));
    va_end(arguments);
    if (CEditorHost* const pHost = EditorHost()) {
        pHost->Print(strText);
        return RTNORM;
    }
    const std::string utf8Text = ToUtf8(strText);
    std::fwrite(utf8Text.data(), 1, utf8Text.size(), stdout);
    return RTNORM;
}

int acedGetPoint(const ads_point pBase, const ACHAR* prompt, ads_point result) {
    CEditorHost* const pHost = EditorHost();
    if (!pHost || !result) return RTERROR;
    AcGePoint3d base, point;
    if (pBase) base.set(pBase[0], pBase[1], pBase[2]);
    switch (pHost->AskPoint(GbkFromWide(prompt ? prompt : L""), pBase ? &base : nullptr, &point)) {
    case CPromptResult::Value:
        PutPoint(point, result);
        return RTNORM;
    case CPromptResult::None:
        return RTNONE;
    case CPromptResult::Cancel:
        break;
    }
    return RTCAN;
}

int acedFindFile(const ACHAR* name, ACHAR* result) {
    CEditorHost* const pHost = EditorHost();
    if (!pHost || !name || !*name || !result) return RTERROR;
    const std::wstring strPath = WideFromGbk(pHost->FindFile(GbkFromWide(name)));
    constexpr std::size_t room = 1024; // the ending zero included
    if (strPath.empty() || strPath.size() >= room) return RTERROR;
    std::wmemcpy(result, strPath.c_str(), strPath.size() + 1);
    return RTNORM;
}

void* adsw_acadMainWnd() {
    return EditorHost();
}

void* acedGetAcadFrame() {
    return adsw_acadMainWnd();
}
