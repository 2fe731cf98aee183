#include "host/desktop/dialogs/gbk_text.h"

#include "platform/windows/code_page.h"

QString CaptionFromGbk(std::string_view strCaption) {
    return FromGbk(strCaption).remove(u'\r');
}

bool IsInCodePage(const QString& strText) {
    std::string strGbk;
    return Utf8ToGbk(strText.toStdString(), &strGbk);
}

CString ToGbk(const QString& strText) {
    return {GbkFromWide(strText.toStdWString())};
}
