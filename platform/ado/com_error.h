#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

#include "platform/ado/error.h"

/// A result code: negative for a failure.
using HRESULT = std::int32_t;

constexpr HRESULT HResult(std::uint32_t nCode) {
    return static_cast<HRESULT>(nCode);
}

inline constexpr HRESULT S_OK = 0;
inline constexpr HRESULT E_FAIL = HResult(0x80004005);
inline constexpr HRESULT DB_E_BADBOOKMARK = HResult(0x80040E0E);
inline constexpr HRESULT DB_E_PARAMNOTOPTIONAL = HResult(0x80040E10);
inline constexpr HRESULT DB_E_ERRORSINCOMMAND = HResult(0x80040E14);
inline constexpr HRESULT DB_E_ERRORSOCCURRED = HResult(0x80040E21);
inline constexpr HRESULT DB_E_DELETEDROW = HResult(0x80040E23);
inline constexpr HRESULT DB_E_INTEGRITYVIOLATION = HResult(0x80040E2F);
inline constexpr HRESULT DB_E_ABORTLIMITREACHED = HResult(0x80040E31);
inline constexpr HRESULT DB_E_NOTABLE = HResult(0x80040E37);
inline constexpr HRESULT DB_E_DATAOVERFLOW = HResult(0x80040E57);
inline constexpr HRESULT XACT_E_NOTRANSACTION = HResult(0x8004D00E);
inline constexpr HRESULT XACT_E_XTIONEXISTS = HResult(0x8004D013);

/// The error object that a failing call of a database object raises.
class CComError : public std::exception {
public:
    CComError(HRESULT nCode, std::wstring strSource, std::wstring strDescription);

    [[nodiscard]] HRESULT Error() const { return m_nCode; }
    /// What the code means, GBK; "Unknown error 0x…" for a code that is not known here.
    [[nodiscard]] std::string ErrorMessage() const;
    /// Which object or engine raised it.
    [[nodiscard]] const std::wstring& Source() const { return m_strSource; }
    [[nodiscard]] const std::wstring& Description() const { return m_strDescription; }
    /// The description, GBK.
    [[nodiscard]] const char* what() const noexcept override { return m_strWhat.c_str(); }

private:
    HRESULT m_nCode;
    std::wstring m_strSource;
    std::wstring m_strDescription;
    std::string m_strWhat;
};

namespace ADODB {

/// Errors of the objects themselves; the code raised is 0x800A0000 and the number.
enum ErrorValueEnum {
    adErrFileExists = 58,
    adErrInvalidArgument = 3001,
    adErrReadFile = 3003,
    adErrWriteFile = 3004,
    adErrNoCurrentRecord = 3021,
    adErrIllegalOperation = 3219,
    adErrInTransaction = 3246,
    adErrFeatureNotAvailable = 3251,
    adErrItemNotFound = 3265,
    adErrObjectInCollection = 3367,
    adErrDataConversion = 3421,
    adErrObjectClosed = 3704,
    adErrObjectOpen = 3705,
    adErrInvalidParamInfo = 3708,
    adErrInvalidConnection = 3709,
};

constexpr HRESULT AdoResult(ErrorValueEnum error) {
    return HResult(0x800A0000U + static_cast<std::uint32_t>(error));
}

/// Raises an error of the objects themselves; without a description, GBK, it is the code's meaning.
[[noreturn]] void RaiseAdoError(ErrorValueEnum error, std::string_view strDescription = {});

/// Raises the error object for an error of the database layer.
[[noreturn]] void RaiseDbError(const CDbError& error);

/// Runs a call of the database layer, whose errors come out as error objects.
template <class Call>
decltype(auto) Raising(const Call& call) {
    try {
        return call();
    } catch (const CDbError& error) {
        RaiseDbError(error);
    }
}

} // namespace ADODB
