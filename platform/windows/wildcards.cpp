#include "platform/windows/wildcards.h"

#include <vector>

namespace {

/// A '*' before the dot that ends the pattern stops at the name's last dot.
bool StopsAtLastDot(std::wstring_view pattern, std::size_t at) {
    return at + 2 == pattern.size() && pattern.back() == L'.';
}

/// A dot that stands for the end of a name too.
bool IsOptionalDot(std::wstring_view pattern, std::size_t at) {
    if (at + 1 == pattern.size()) return at > 0 && pattern[at - 1] == L'*';
    return pattern[at + 1] == L'*' || pattern[at + 1] == L'?';
}

/// Whether the pattern from at on fits the name from in on; behind says so of the pattern from at + 1 on and
/// further of the name from in + 1 on.
bool FitsFrom(std::wstring_view pattern, std::size_t at, std::wstring_view name, std::size_t in,
              const std::vector<bool>& behind, bool further) {
    const bool ended = in == name.size();
    switch (pattern[at]) {
    case L'*':
        if (behind[in]) return true;
        return further && !(StopsAtLastDot(pattern, at) && name.rfind(L'.') == in);
    case L'?':
        return ended || name[in] == L'.' ? behind[in] : behind[in + 1];
    case L'.':
        if (ended) return IsOptionalDot(pattern, at) && behind[in];
        return name[in] == L'.' && behind[in + 1];
    default:
        return !ended && pattern[at] == name[in] && behind[in + 1];
    }
}

} // namespace

bool FitsWildcards(std::wstring_view pattern, std::wstring_view name) {
    if (pattern == L"*.*") return true;
    std::vector<bool> behind(name.size() + 1); // for the end of the pattern: only the end of the name fits
    behind.back() = true;
    for (std::size_t at = pattern.size(); at-- > 0;) {
        std::vector<bool> fits(name.size() + 1);
        for (std::size_t in = name.size() + 1; in-- > 0;)
            fits[in] = FitsFrom(pattern, at, name, in, behind, in < name.size() && fits[in + 1]);
        behind.swap(fits);
    }
    return behind.front();
}
