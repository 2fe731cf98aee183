#include "platform/acad/result_buffer.h"

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cwchar>

namespace {

struct CCodes {
    int m_nFirst, m_nLast;
    CResbufKind m_kind;
};

constexpr std::array g_arCodes = {
    CCodes{RTREAL, RTREAL, CResbufKind::Real},
    CCodes{RTPOINT, RTPOINT, CResbufKind::Point},
    CCodes{RTSHORT, RTSHORT, CResbufKind::Short},
    CCodes{RTANG, RTANG, CResbufKind::Real},
    CCodes{RTSTR, RTSTR, CResbufKind::Text},
    CCodes{RT3DPOINT, RT3DPOINT, CResbufKind::Point},
    CCodes{RTLONG, RTLONG, CResbufKind::Long},
    CCodes{-4, -4, CResbufKind::Text},
    CCodes{0, 9, CResbufKind::Text},
    CCodes{10, 17, CResbufKind::Point},
    CCodes{38, 59, CResbufKind::Real},
    CCodes{60, 79, CResbufKind::Short},
    CCodes{90, 99, CResbufKind::Long},
    CCodes{100, 102, CResbufKind::Text},
    CCodes{140, 147, CResbufKind::Real},
    CCodes{170, 178, CResbufKind::Short},
    CCodes{210, 210, CResbufKind::Point},
    CCodes{280, 289, CResbufKind::Short},
    CCodes{300, 309, CResbufKind::Text},
    CCodes{1000, 1003, CResbufKind::Text},
    CCodes{1005, 1009, CResbufKind::Text},
    CCodes{1010, 1013, CResbufKind::Point},
    CCodes{1040, 1042, CResbufKind::Real},
    CCodes{1070, 1070, CResbufKind::Short},
    CCodes{1071, 1071, CResbufKind::Long},
};

/// Takes the value of the buffer's kind off the arguments.
void TakeValue(resbuf& buffer, std::va_list& arguments) {
    switch (ResbufKind(buffer.restype)) {
    case CResbufKind::Text:
        buffer.resval.rstring = acutNewString(va_arg(arguments, const ACHAR*));
        break;
    case CResbufKind::Real:
        buffer.resval.rreal = va_arg(arguments, double);
        break;
    case CResbufKind::Point:
        std::copy_n(va_arg(arguments, const double*), 3, buffer.resval.rpoint);
        break;
    case CResbufKind::Short:
        buffer.resval.rint = static_cast<short>(va_arg(arguments, int));
        break;
    case CResbufKind::Long:
        buffer.resval.rlong = va_arg(arguments, Adesk::Int32);
        break;
    case CResbufKind::None:
        break;
    }
}

} // namespace

CResbufKind ResbufKind(int type) {
    const auto* const pFound = std::find_if(g_arCodes.begin(), g_arCodes.end(), [type](const CCodes& codes) {
        return type >= codes.m_nFirst && type <= codes.m_nLast;
    });
    return pFound == g_arCodes.end() ? CResbufKind::None : pFound->m_kind;
}

ACHAR* acutNewString(const ACHAR* text) {
    if (!text) return nullptr;
    const std::size_t size = std::wcslen(text) + 1;
    return std::wmemcpy(new ACHAR[size], text, size);
}

void acutDelString(ACHAR*& text) {
    delete[] text;
    text = nullptr;
}

resbuf* acutNewRb(int type) {
    auto* const pBuffer = new resbuf;
    pBuffer->restype = static_cast<short>(type);
    return pBuffer;
}

resbuf* acutBuildList(int type, ...) {
    std::va_list arguments;
    va_start(arguments, type);
    resbuf* const pChain = BuildListV(type, arguments);
    va_end(arguments);
    return pChain;
}

resbuf* BuildListV(int type, std::va_list arguments) {
    std::va_list left;
    va_copy(left, arguments);
    resbuf* pFirst = nullptr;
    resbuf** ppNext = &pFirst;
    for (int nCode = type; nCode != RTNONE && nCode != 0; nCode = va_arg(left, int)) {
        if (nCode == RTDXF0) nCode = 0;
        if (ResbufKind(nCode) == CResbufKind::None) {
            acutRelRb(pFirst);
            pFirst = nullptr;
            break;
        }
        *ppNext = acutNewRb(nCode);
        TakeValue(**ppNext, left);
        ppNext = &(*ppNext)->rbnext;
    }
    va_end(left);
    return pFirst;
}

int acutRelRb(resbuf* pChain) {
    while (pChain) {
        resbuf* const pNext = pChain->rbnext;
        if (ResbufKind(pChain->restype) == CResbufKind::Text) acutDelString(pChain->resval.rstring);
        delete pChain;
        pChain = pNext;
    }
    return RTNORM;
}
