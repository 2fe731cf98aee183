#include "host/files/dxf_codes.h"

#include <algorithm>
#include <array>

namespace {

struct CDxfCodes {
    int m_nFirst, m_nLast;
    CDxfKind m_kind;
};

constexpr std::array g_arCodes = {
    CDxfCodes{0, 9, CDxfKind::Text},         CDxfCodes{10, 59, CDxfKind::Real},
    CDxfCodes{60, 79, CDxfKind::Short},      CDxfCodes{90, 99, CDxfKind::Long},
    CDxfCodes{100, 105, CDxfKind::Text},     CDxfCodes{110, 149, CDxfKind::Real},
    CDxfCodes{160, 169, CDxfKind::LongLong}, CDxfCodes{170, 179, CDxfKind::Short},
    CDxfCodes{210, 239, CDxfKind::Real},     CDxfCodes{270, 289, CDxfKind::Short},
    CDxfCodes{290, 299, CDxfKind::Flag},     CDxfCodes{300, 309, CDxfKind::Text},
    CDxfCodes{310, 319, CDxfKind::Bytes},    CDxfCodes{320, 369, CDxfKind::Text},
    CDxfCodes{370, 389, CDxfKind::Short},    CDxfCodes{390, 399, CDxfKind::Text},
    CDxfCodes{400, 409, CDxfKind::Short},    CDxfCodes{410, 419, CDxfKind::Text},
    CDxfCodes{420, 429, CDxfKind::Long},     CDxfCodes{430, 439, CDxfKind::Text},
    CDxfCodes{440, 459, CDxfKind::Long},     CDxfCodes{460, 469, CDxfKind::Real},
    CDxfCodes{470, 481, CDxfKind::Text},     CDxfCodes{999, 1003, CDxfKind::Text},
    CDxfCodes{1004, 1004, CDxfKind::Bytes},  CDxfCodes{1005, 1009, CDxfKind::Text},
    CDxfCodes{1010, 1059, CDxfKind::Real},   CDxfCodes{1060, 1070, CDxfKind::Short},
    CDxfCodes{1071, 1071, CDxfKind::Long},
};

} // namespace

CDxfKind DxfKindOf(int nCode) {
    const auto* const pFound = std::find_if(g_arCodes.begin(), g_arCodes.end(), [nCode](const auto& codes) {
        return nCode >= codes.m_nFirst && nCode <= codes.m_nLast;
    });
    return pFound == g_arCodes.end() ? CDxfKind::None : pFound->m_kind;
}
