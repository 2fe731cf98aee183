#include "platform/mfc/format.h"

#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>

#include "platform/windows/code_page.h"
#include "platform/windows/host_assert.h"

namespace {

/// Keeps the decimal sign a point while numbers are written.
class CPlainLocale {
public:
    CPlainLocale()
        : m_previous(uselocale(Plain())) {}
    ~CPlainLocale() { uselocale(m_previous); }
    CPlainLocale(const CPlainLocale&) = delete;
    CPlainLocale& operator=(const CPlainLocale&) = delete;

private:
    static locale_t Plain() {
        static const locale_t s_plain = newlocale(LC_ALL_MASK, "C", nullptr);
        return s_plain;
    }

    locale_t m_previous;
};

/// Appends one conversion, whose text the format of the piece alone describes.
template <class... Values>
void AppendPiece(std::string* text, const std::string& piece, Values... values) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#pragma GCC diagnostic ignored "-Wformat-security"
    const int length = std::snprintf(nullptr, 0, piece.c_str(), values...);
    HOST_ASSERT(length >= 0, "the format is sound");
    const std::size_t before = text->size();
    text->resize(before + static_cast<std::size_t>(length) + 1);
    std::snprintf(text->data() + before, static_cast<std::size_t>(length) + 1, piece.c_str(), values...);
    text->pop_back();
#pragma GCC diagnostic pop
}

template <class Float>
Float WithoutNanSign(Float value) {
    return std::isnan(value) ? std::numeric_limits<Float>::quiet_NaN() : value;
}

/// One conversion: its flags, width and precision with stars filled in, its length letters and its letter.
struct CConversion {
    std::string m_strStart = "%";
    std::string m_strLength;
    char m_cLetter = 0;
};

const char* ReadConversion(const char* at, std::va_list* arguments, CConversion* conversion) {
    for (; std::strchr("-+ #0123456789.*'", *at); ++at) {
        HOST_ASSERT(*at, "a conversion is complete");
        if (*at == '*') {
            conversion->m_strStart += std::to_string(va_arg(*arguments, int));
        } else {
            conversion->m_strStart += *at;
        }
    }
    for (; *at && std::strchr("hlLqjzt", *at); ++at)
        conversion->m_strLength += *at;
    HOST_ASSERT(*at, "a conversion is complete");
    conversion->m_cLetter = *at;
    return at + 1;
}

void AppendInteger(std::string* text, const CConversion& conversion, std::va_list* arguments) {
    const std::string piece = conversion.m_strStart + conversion.m_strLength + conversion.m_cLetter;
    const std::string& length = conversion.m_strLength;
    if (length == "l") return AppendPiece(text, piece, va_arg(*arguments, long));
    if (length == "ll" || length == "q") return AppendPiece(text, piece, va_arg(*arguments, long long));
    if (length == "j") return AppendPiece(text, piece, va_arg(*arguments, std::intmax_t));
    if (length == "z") return AppendPiece(text, piece, va_arg(*arguments, std::size_t));
    if (length == "t") return AppendPiece(text, piece, va_arg(*arguments, std::ptrdiff_t));
    AppendPiece(text, piece, va_arg(*arguments, int)); // char and short come as int
}

void AppendFloat(std::string* text, const CConversion& conversion, std::va_list* arguments) {
    if (conversion.m_strLength == "L") {
        const long double value = WithoutNanSign(va_arg(*arguments, long double));
        return AppendPiece(text, conversion.m_strStart + 'L' + conversion.m_cLetter, value);
    }
    const double value = WithoutNanSign(va_arg(*arguments, double));
    AppendPiece(text, conversion.m_strStart + conversion.m_cLetter, value);
}

void AppendString(std::string* text, const CConversion& conversion, std::va_list* arguments) {
    if (conversion.m_strLength != "l")
        return AppendPiece(text, conversion.m_strStart + 's', va_arg(*arguments, const char*));
    const wchar_t* wide = va_arg(*arguments, const wchar_t*);
    const std::string narrow = wide ? GbkFromWide(wide) : "(null)"; // as for narrow text
    AppendPiece(text, conversion.m_strStart + 's', narrow.c_str());
}

void AppendConversion(std::string* text, const CConversion& conversion, std::va_list* arguments) {
    switch (conversion.m_cLetter) {
    case 'd':
    case 'i':
    case 'u':
    case 'o':
    case 'x':
    case 'X':
    case 'c':
        return AppendInteger(text, conversion, arguments);
    case 'f':
    case 'F':
    case 'e':
    case 'E':
    case 'g':
    case 'G':
    case 'a':
    case 'A':
        return AppendFloat(text, conversion, arguments);
    case 's':
        return AppendString(text, conversion, arguments);
    case 'p':
        return AppendPiece(text, conversion.m_strStart + 'p', va_arg(*arguments, void*));
    case '%':
        return text->push_back('%');
    default:
        HOST_ASSERT(false, "the format has a known conversion letter");
    }
}

} // namespace

std::string FormatTextV(const char* format, std::va_list arguments) {
    const CPlainLocale plain;
    std::va_list left;
    va_copy(left, arguments);
    std::string text;
    while (*format) {
        const char* percent = std::strchr(format, '%');
        if (!percent) {
            text += format;
            break;
        }
        text.append(format, percent);
        CConversion conversion;
        format = ReadConversion(percent + 1, &left, &conversion);
        AppendConversion(&text, conversion, &left);
    }
    va_end(left);
    return text;
}

std::string FormatText(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    std::string text = FormatTextV(format, arguments);
    va_end(arguments);
    return text;
}
