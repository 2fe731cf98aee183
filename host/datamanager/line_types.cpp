#include "host/datamanager/line_types.h"

#include <array>
#include <string_view>

namespace {

/// Positive lengths are dashes, negative ones gaps, 0 is a dot.
struct CLineType {
    std::string_view m_strName;
    std::string_view m_strPicture;
    std::string_view m_strPattern;
};

// Each pattern also comes with half and double lengths, under the names that drawings use for them. On paper
// Dashed2 has dashes of 2 mm and gaps of 1 mm.
constexpr std::array g_arLineTypes = {
    CLineType{"Dashed", "__ __ __ __ __ __ __", "0.4,-0.2"},
    CLineType{"Dashed2", "_ _ _ _ _ _ _ _ _ _", "0.2,-0.1"},
    CLineType{"DashedX2", "____  ____  ____", "0.8,-0.4"},
    CLineType{"Hidden", "_ _ _ _ _ _ _ _ _ _", "0.25,-0.15"},
    CLineType{"Hidden2", "- - - - - - - - - -", "0.125,-0.075"},
    CLineType{"HiddenX2", "__  __  __  __  __", "0.5,-0.3"},
    CLineType{"Dot", ". . . . . . . . . .", "0,-0.2"},
    CLineType{"Dot2", "....................", "0,-0.1"},
    CLineType{"DotX2", ".  .  .  .  .  .  .", "0,-0.4"},
    CLineType{"Dashdot", "__ . __ . __ . __ .", "0.5,-0.2,0,-0.2"},
    CLineType{"Dashdot2", "_ . _ . _ . _ . _ .", "0.25,-0.1,0,-0.1"},
    CLineType{"DashdotX2", "____  .  ____  .", "1,-0.4,0,-0.4"},
    CLineType{"Divide", "__ . . __ . . __ . .", "0.5,-0.2,0,-0.2,0,-0.2"},
    CLineType{"Divide2", "_ . . _ . . _ . . _", "0.25,-0.1,0,-0.1,0,-0.1"},
    CLineType{"DivideX2", "____  .  .  ____", "1,-0.4,0,-0.4,0,-0.4"},
    CLineType{"Center", "____ _ ____ _ ____ _", "1.2,-0.2,0.3,-0.2"},
    CLineType{"Center2", "___ _ ___ _ ___ _", "0.6,-0.1,0.15,-0.1"},
    CLineType{"CenterX2", "________  __  ________", "2.4,-0.4,0.6,-0.4"},
    CLineType{"Border", "__ __ . __ __ . __", "0.5,-0.2,0.5,-0.2,0,-0.2"},
    CLineType{"Border2", "_ _ . _ _ . _ _ .", "0.25,-0.1,0.25,-0.1,0,-0.1"},
    CLineType{"BorderX2", "____  ____  .  ____", "1,-0.4,1,-0.4,0,-0.4"},
    CLineType{"Phantom", "_____ _ _ _____ _ _", "1.2,-0.2,0.3,-0.2,0.3,-0.2"},
    CLineType{"Phantom2", "___ _ _ ___ _ _ ___", "0.6,-0.1,0.15,-0.1,0.15,-0.1"},
    CLineType{"PhantomX2", "_________  __  __  ____", "2.4,-0.4,0.6,-0.4,0.6,-0.4"},
};

} // namespace

std::string LineTypeFile() {
    std::string strFile = ";; Line types for sheets in millimetres, LTSCALE 10\n";
    for (const CLineType& type : g_arLineTypes) {
        strFile.append("*").append(type.m_strName).append(",").append(type.m_strName);
        strFile.append(" ").append(type.m_strPicture).append("\n");
        strFile.append("A,").append(type.m_strPattern).append("\n");
    }
    return strFile;
}
