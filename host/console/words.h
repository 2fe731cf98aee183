#pragma once
// The words of a script's line. Texts are UTF-8.

#include <string>
#include <vector>

/// One word of a line.
struct CWord {
    std::string m_strText;
    bool m_bQuoted = false; ///< some of it stood in quotes, so it is a text and never a keyword
};

/// Cuts a line at its blanks and tabs. Double quotes keep blanks together; a doubled one inside them is one
/// quote; `""` is an empty word; no other character quotes. False with the reason when a quote is not closed;
/// the words are then those before it.
bool SplitWords(const std::string& line, std::vector<CWord>* words, std::string* reason);

/// The pieces of a word between its separators, empty ones too; at least one.
std::vector<std::string> PiecesOf(const std::string& word, char separator);

std::string WithoutBlanksAround(const std::string& text);
