#include "drawing/placed_text.h"

#include "platform/windows/code_page.h"

void SetPlacedText(AcDbText& text, const CString& strText) {
    text.setTextString(WideFromGbk(strText.View()).c_str());
    text.adjustAlignment();
}
