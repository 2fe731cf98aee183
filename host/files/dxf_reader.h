#pragma once
// A DXF file as a row of groups: a code and its value.

#include "host/files/dxf_failure.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <variant>

/// A group. A text lies in the bytes of the file, in their encoding; binary data lie there as hexadecimal
/// digits or, in a binary file, as such.
struct CDxfTag {
    int m_nCode = 0;
    std::variant<std::string_view, double, std::int64_t> m_value;
    std::size_t m_nPlace = 0; ///< line, or offset in a binary file
    bool m_bDigits = true;    ///< binary data are hexadecimal digits

    /// The value when it is a text, else nothing.
    std::string_view Text() const {
        const auto* const pText = std::get_if<std::string_view>(&m_value);
        return pText ? *pText : std::string_view();
    }
};

/// Takes the groups out of a file's bytes, which outlive it. Throws CDxfFailure for a code that no file has,
/// a value that is not of its code's kind, a real that is not finite, and a group that is cut off.
class CDxfReader {
public:
    virtual ~CDxfReader() = default;
    /// The next group, comments left out. False at the end of the bytes.
    bool Next(CDxfTag* pTag);
    /// A place as the file's user finds it.
    virtual std::string PlaceText(std::size_t nPlace) const = 0;
    [[noreturn]] void Fail(std::size_t nPlace, const std::string& strWhat) const {
        throw CDxfFailure(PlaceText(nPlace), strWhat);
    }

private:
    virtual bool Read(CDxfTag* pTag) = 0;
};

/// A reader for the form that the bytes are in, text or binary, told by how they begin.
std::unique_ptr<CDxfReader> OpenDxf(std::string_view bytes);
