#include "host/console/words.h"

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

// Takes what stands in quotes; at is behind the opening one and ends behind the closing one.
bool TakeQuoted(const std::string& line, size_t* at, std::string* text) {
    for (; *at < line.size(); ++*at) {
        if (line[*at] != '"') {
            *text += line[*at];
        } else if (*at + 1 < line.size() && line[*at + 1] == '"') {
            *text += line[++*at];
        } else {
            ++*at;
            return true;
        }
    }
    return false;
}

} // namespace

bool SplitWords(const std::string& line, std::vector<CWord>* words, std::string* reason) {
    words->clear();
    size_t at = 0;
    while (true) {
        while (at < line.size() && IsBlank(line[at]))
            ++at;
        if (at == line.size()) return true;
        CWord word;
        while (at < line.size() && !IsBlank(line[at])) {
            if (line[at] != '"') {
                word.m_strText += line[at++];
                continue;
            }
            word.m_bQuoted = true;
            ++at;
            if (!TakeQuoted(line, &at, &word.m_strText)) {
                *reason = "a quote is not closed";
                return false;
            }
        }
        words->push_back(word);
    }
}

std::vector<std::string> PiecesOf(const std::string& word, char separator) {
    std::vector<std::string> pieces;
    size_t begin = 0;
    for (size_t end = 0; (end = word.find(separator, begin)) != std::string::npos; begin = end + 1)
        pieces.push_back(word.substr(begin, end - begin));
    pieces.push_back(word.substr(begin));
    return pieces;
}

std::string WithoutBlanksAround(const std::string& text) {
    const size_t first = text.find_first_not_of(" \t");
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}
