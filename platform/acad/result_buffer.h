#pragma once
// Result buffers: typed values and chains of them, as the editor's functions and extended data hand them out.

#include "platform/acad/adesk.h"

#include <cstdarg>

inline constexpr int RTNONE = 5000;
inline constexpr int RTREAL = 5001;
inline constexpr int RTPOINT = 5002; ///< a point of the plane
inline constexpr int RTSHORT = 5003;
inline constexpr int RTANG = 5004;
inline constexpr int RTSTR = 5005;
inline constexpr int RT3DPOINT = 5009;
inline constexpr int RTLONG = 5010;
inline constexpr int RTDXF0 = 5020; ///< group code 0 in acutBuildList, where 0 itself ends the list
inline constexpr int RTNORM = 5100;
inline constexpr int RTERROR = -5001;
inline constexpr int RTCAN = -5002;

using ads_real = double;
using ads_point = ads_real[3];

union ads_u_val {
    ads_real rreal;
    ads_real rpoint[3];
    short rint;
    ACHAR* rstring; ///< made with acutNewString; the receiver releases it with acutDelString
    Adesk::Int32 rlong;
};

/// A result buffer: a typed value, and the next one of a chain.
struct resbuf {
    resbuf* rbnext = nullptr;
    short restype = RTNONE;
    ads_u_val resval{};
};

/// What a buffer's value is.
enum class CResbufKind { None, Text, Real, Point, Short, Long };

/// The kind that a type code (RT...) or a group code stands for.
CResbufKind ResbufKind(int type);

ACHAR* acutNewString(const ACHAR* text); ///< a copy; null of null
void acutDelString(ACHAR*& text);

/// A buffer with a zero value.
resbuf* acutNewRb(int type);
/// A chain of type codes, each followed by its value: const ACHAR*, double, double* (three coordinates), int
/// (a short) or Adesk::Int32; it ends with RTNONE or 0. Texts are copied. Null for a chain of nothing and for
/// a code of no kind.
resbuf* acutBuildList(int type, ...);
resbuf* BuildListV(int type, std::va_list arguments); ///< the same from the arguments behind type
/// Releases a chain and its texts; null is none. Returns RTNORM.
int acutRelRb(resbuf* pChain);

/// Releases a chain at the end of a scope.
class CResbufChain {
public:
    explicit CResbufChain(resbuf* pChain = nullptr)
        : m_pChain(pChain) {}
    ~CResbufChain() { acutRelRb(m_pChain); }
    CResbufChain(const CResbufChain&) = delete;
    CResbufChain& operator=(const CResbufChain&) = delete;
    resbuf* Get() const { return m_pChain; }
    resbuf* operator->() const { return m_pChain; }
    explicit operator bool() const { return m_pChain != nullptr; }

private:
    resbuf* m_pChain;
};
