#include "platform/acad/wide_names.h"

#include <algorithm>
#include <clocale>
#include <cwctype>
#include <locale.h> // newlocale
#include <type_traits>

namespace {

wchar_t Upper(wchar_t character) {
    static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    const auto wide = static_cast<std::wint_t>(static_cast<std::make_unsigned_t<wchar_t>>(character));
    return static_cast<wchar_t>(unicode ? towupper_l(wide, unicode) : std::towupper(wide));
}

} // namespace

std::wstring UpperName(std::wstring_view name) {
    std::wstring upper(name);
    std::transform(upper.begin(), upper.end(), upper.begin(), Upper);
    return upper;
}

bool SameName(std::wstring_view a, std::wstring_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](wchar_t left, wchar_t right) { return Upper(left) == Upper(right); });
}
