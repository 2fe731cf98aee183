#pragma once
// Reading sets under tests/data/readings, as the tests need them.

#include "analysis/reduction.h"

#include <map>
#include <string>
#include <vector>

/// Rows of a CSV file as column name to value; the test data have no quoted line breaks.
std::vector<std::map<std::string, std::string>> CsvRows(const std::string& strPath);

/// Names of all sets, sorted; never empty.
std::vector<std::string> ReadingSets();
std::string SetFolder(const std::string& strSet);

/// The set's readings, each value narrowed to float as the table keeps it.
std::vector<CTestReading> ReadingsOf(const std::string& strSet);
/// The set's test method as the table holds it.
CString MethodOf(const std::string& strSet);

/// A text as part of a test's name: letters and digits, "_" for the rest.
std::string TestName(std::string strText);

/// What the module printed since the object was made, GBK.
class CPrintedText {
public:
    CPrintedText();
    ~CPrintedText();
    CPrintedText(const CPrintedText&) = delete;
    CPrintedText& operator=(const CPrintedText&) = delete;
    const std::string& Text() const;
};
