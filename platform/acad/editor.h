#pragma once
// Functions of the editor that commands call.

#include "platform/acad/adesk.h"

inline constexpr int RTNONE = 5000;
inline constexpr int RTREAL = 5001;
inline constexpr int RTSHORT = 5003;
inline constexpr int RTSTR = 5005;
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

/// Prints to the text window. Returns RTNORM.
int acutPrintf(const ACHAR* format, ...);

/// Asks for a point; pBase is the point a rubber band starts from, null for none. RTNORM with the point,
/// RTNONE for an empty answer, RTCAN when the user cancelled.
int acedGetPoint(const ads_point pBase, const ACHAR* prompt, ads_point result);

/// System variables: those of the working drawing, and those of the program (SDI, PLOTDPI). RTERROR for an
/// unknown name or a value of the wrong kind.
int acedGetVar(const ACHAR* name, resbuf* pResult);
int acedSetVar(const ACHAR* name, const resbuf* pValue);

/// Finds a file by the host's search order: as given, beside the drawing, in the installation's Support
/// folder, then below its root. result holds up to 1024 characters. RTERROR when there is none.
int acedFindFile(const ACHAR* name, ACHAR* result);

ACHAR* acutNewString(const ACHAR* text);
void acutDelString(ACHAR*& text);

/// The main window, as an owner for message boxes.
void* adsw_acadMainWnd();
