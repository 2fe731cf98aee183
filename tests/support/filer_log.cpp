#include "tests/support/filer_log.h"

#include "platform/acad/result_buffer.h"
#include "platform/windows/code_page.h"

Acad::ErrorStatus CFilerLog::writeString(const ACHAR* text) {
    return Note("String " + GbkFromWide(text));
}

Acad::ErrorStatus CFilerLog::readString(ACHAR** pText) {
    *pText = acutNewString(L"");
    return Acad::eFilerError;
}
