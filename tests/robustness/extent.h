#pragma once

#include <cstdlib>
#include <iostream>
#include <string>

/// How often something is tried: a few times by the test suite, often by scripts/robustness.
inline int Extent(int nShort, int nFull) {
    return std::getenv("TERVO_FULL_EXTENT") ? nFull : nShort;
}

/// A row for the table of figures, which scripts/robustness picks out of the output.
inline void TellFigure(const std::string& strTrial, const std::string& strFigure) {
    std::cout << "| " << strTrial << " | " << strFigure << " |" << std::endl;
}
