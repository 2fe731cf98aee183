#include "platform/windows/argument_words.h"

#include <algorithm>

namespace {

bool IsBlank(char character) {
    return character == ' ' || character == '\t';
}

/// Takes the word that begins at *position and moves behind it.
std::string TakeWord(std::string_view text, std::size_t* position) {
    std::string word;
    bool quoted = false;
    std::size_t at = *position;
    while (at < text.size() && (quoted || !IsBlank(text[at]))) {
        const std::size_t end = std::min(text.find_first_not_of('\\', at), text.size());
        std::size_t backslashes = end - at;
        at = end;
        const bool quote = at < text.size() && text[at] == '"';
        if (quote) {
            word.append(backslashes / 2, '\\');
            backslashes %= 2;
            const bool doubled = quoted && text.substr(at).starts_with("\"\"");
            if (backslashes || doubled) {
                word += '"';
                at += backslashes ? 1 : 2;
            } else {
                quoted = !quoted;
                ++at;
            }
        } else if (backslashes) {
            word.append(backslashes, '\\');
        } else {
            word += text[at++];
        }
    }
    *position = at;
    return word;
}

} // namespace

std::vector<std::string> ArgumentWords(std::string_view text) {
    std::vector<std::string> words;
    for (std::size_t at = 0; at < text.size();) {
        if (IsBlank(text[at])) {
            ++at;
        } else {
            words.push_back(TakeWord(text, &at));
        }
    }
    return words;
}
