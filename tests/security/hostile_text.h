#pragma once
// Texts as data that mean something to a database, a shell or a file system.

#include "tests/support/programs.h"

/// A text between double quotes, those inside it doubled: a field of a CSV file, a word of a script's line.
inline std::string Quoted(const std::string& strText) {
    std::string strQuoted = "\"";
    for (const char c : strText)
        strQuoted.append(c == '"' ? 2 : 1, c);
    return strQuoted + '"';
}

/// A text as one word of a shell's command line.
inline std::string ShellWord(const std::string& strText) {
    std::string strWord = "'";
    for (const char c : strText)
        strWord += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return strWord + '\'';
}
