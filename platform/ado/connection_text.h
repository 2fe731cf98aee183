#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A connection text `key=value;key=value`, GBK. Keys compare without case, blanks around keys and values do
/// not count. A value in single or double quotes (or, as drivers want it, braces, of which a closing one
/// inside is doubled) may hold semicolons; single and double quotes are taken off. Of a key given twice the
/// last one counts.
class CConnectionText {
public:
    explicit CConnectionText(std::string_view strText);

    /// The value of a key, empty where the key is missing.
    [[nodiscard]] std::string Value(std::string_view strKey) const;
    /// Everything but the key named, in order, as a connection text: what is handed on to a driver.
    [[nodiscard]] std::string Without(std::string_view strKey) const;

private:
    struct CPair {
        std::string m_strKey;
        std::string m_strValue;
        std::string m_strAsWritten;
    };
    std::vector<CPair> m_arPairs;
};

/// `key=value` for a connection text, GBK; the value is in braces where it would be read otherwise without.
std::string ConnectionPair(std::string_view strKey, std::string_view strValue);
