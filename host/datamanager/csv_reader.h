#pragma once

#include <cstddef>
#include <istream>
#include <string>
#include <vector>

/// One record of a CSV file. Fields are as they stand between the commas, quotes resolved.
struct CCsvRecord {
    std::size_t m_nLine = 0; ///< where the record begins, from 1
    std::vector<std::string> m_arFields;
    std::string m_strFault; ///< why the last field is broken; empty for a sound record
};

/// Reads comma-separated records, lines ending with LF or CRLF, from the stream's beginning. A UTF-8 mark and
/// empty lines are passed over. A broken record ends with its line, so the next one can be read.
class CCsvReader {
public:
    explicit CCsvReader(std::istream& stream);

    /// Takes the next record; false at the end of the file.
    bool Next(CCsvRecord* pRecord);

private:
    int Peek();
    int Take();
    bool AtLineEnd();
    void SkipMark();
    void ReadField(CCsvRecord* pRecord);
    void ReadPlain(CCsvRecord* pRecord);
    void ReadQuoted(CCsvRecord* pRecord);
    void SkipLine();

    std::streambuf& m_buffer;
    std::size_t m_nLine = 1;
};
