#include "platform/ado/gbk_name.h"

#include "platform/ado/text.h"
#include "platform/windows/code_page.h"

bool SameGbkName(std::string_view strA, std::string_view strB) {
    if (strA.size() != strB.size()) return false;
    for (std::size_t i = 0; i < strA.size();) {
        const char* pAt = strA.data() + i;
        const auto nBytes = static_cast<std::size_t>(GbkCharLength(pAt, strA.data() + strA.size()));
        const bool bSame = nBytes == 1 ? LowerAscii(strA[i]) == LowerAscii(strB[i])
                                       : strA.substr(i, nBytes) == strB.substr(i, nBytes);
        if (!bSame) return false;
        i += nBytes;
    }
    return true;
}
