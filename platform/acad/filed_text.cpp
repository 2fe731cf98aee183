#include "platform/acad/filed_text.h"

#include "platform/acad/result_buffer.h"

Acad::ErrorStatus ReadText(AcDbDwgFiler* pFiler, std::wstring& strText) {
    ACHAR* text = nullptr;
    const Acad::ErrorStatus status = pFiler->readString(&text);
    strText = text;
    acutDelString(text);
    return status;
}
