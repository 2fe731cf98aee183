#pragma once

#include <clocale>
#include <string>

/// Keeps the process's locale over the start of Qt, which takes the user's over with its decimal comma:
/// numbers are read and written with a point here.
class CKeptLocale {
public:
    CKeptLocale() = default;
    ~CKeptLocale() { std::setlocale(LC_ALL, m_strLocale.c_str()); }
    CKeptLocale(const CKeptLocale&) = delete;
    CKeptLocale& operator=(const CKeptLocale&) = delete;

private:
    std::string m_strLocale = std::setlocale(LC_ALL, nullptr);
};
