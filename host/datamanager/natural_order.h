#pragma once

/// Orders rows as an engineer counts boreholes and samples: numbers before names, by value, then by length
/// and letters. Goes behind ORDER BY, to the database as it stands.
inline constexpr const char* g_pNaturalOrder =
    "isnumeric(left(ZKBH,1)),val(ZKBH), string(255-len(trim(ZKBH)),'0')+trim(ZKBH),"
    "isnumeric(left(qybh,1)),val(qybh), string(255-len(trim(qybh)),'0')+trim(qybh)";
