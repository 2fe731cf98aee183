#include <gtest/gtest.h>

#include <array>
#include <string>

#include "platform/windows/file_bytes.h"
#include "platform/windows/profile.h"
#include "tests/platform/utf8_text.h"
#include "tests/temp_folder.h"

// What encoding an ini file is taken for, and that a write keeps it.

namespace {

constexpr const char* UTF8_MARK = "\xEF\xBB\xBF";

class ProfileEncoding : public testing::Test {
protected:
    void Write(const std::string& bytes) const { m_folder.Write("a.ini", bytes); }
    std::string Value(const char* key) const {
        std::array<char, 256> buffer = {};
        GetPrivateProfileStringA("工程", key, "none", buffer.data(), buffer.size(), m_file.c_str());
        return buffer.data();
    }
    /// The file's bytes after a key was written.
    std::string After(const char* key, const char* text) const {
        EXPECT_TRUE(WritePrivateProfileStringA("工程", key, text, m_file.c_str()));
        std::string bytes;
        ReadFileWhole(m_file, &bytes);
        return bytes;
    }

    const CTempFolder m_folder;
    const std::string m_file = m_folder.Path("a.ini");
};

} // namespace

TEST_F(ProfileEncoding, TakesCodePageBytesThatHappenToBeUtf8ForTheCodePage) {
    // Two bytes each, and each a letter of UTF-8 as well.
    for (const char* name : {"陆", "卢", "陆卢", "陆a卢b"}) {
        m_folder.Write("b.ini", std::string("[S]\nname=") + name + "\n");
        std::array<char, 64> buffer = {};
        GetPrivateProfileStringA("S", "name", "", buffer.data(), buffer.size(),
                                 m_folder.Path("b.ini").c_str());
        EXPECT_STREQ(buffer.data(), name);
        EXPECT_TRUE(WritePrivateProfileStringA("S", "other", "土", m_folder.Path("b.ini").c_str()));
        EXPECT_EQ(m_folder.Read("b.ini"), std::string("[S]\nname=") + name + "\nother=土\n");
    }
}

TEST_F(ProfileEncoding, TakesAMarkForUtf8WhateverFollows) {
    Write(UTF8_MARK + Utf8(u8"[工程]\nname=陆φ°\n"));
    EXPECT_EQ(Value("name"), "陆φ°");
    EXPECT_EQ(After("more", "卢"), UTF8_MARK + Utf8(u8"[工程]\nname=陆φ°\nmore=卢\n"));
}

TEST_F(ProfileEncoding, TakesUnmarkedTextOfThreeBytesACharacterForUtf8) {
    Write(Utf8(u8"; 注释\n[工程]\nname=陆、土\n"));
    EXPECT_EQ(Value("name"), "陆、土");
    EXPECT_EQ(After("name", "卢"), Utf8(u8"; 注释\n[工程]\nname=卢\n"));
}

TEST_F(ProfileEncoding, TakesUnmarkedTextWithATwoByteCharacterForTheCodePage) {
    Write(Utf8(u8"[S]\nname=地铁φ\n"));
    std::array<char, 64> buffer = {};
    GetPrivateProfileStringA("S", "name", "", buffer.data(), buffer.size(), m_file.c_str());
    EXPECT_EQ(buffer.data(), Utf8(u8"地铁φ")); // its bytes, as code page text
}

TEST_F(ProfileEncoding, TakesAMixedFileForTheCodePage) {
    const std::string bytes = "[工程]\nname=陆地\n; " + Utf8(u8"地铁") + "\n";
    Write(bytes);
    EXPECT_EQ(Value("name"), "陆地");
    EXPECT_EQ(After("more", "土"), bytes + "more=土\n");
}

TEST_F(ProfileEncoding, WritesTheFirstCharacterBeyondAsciiInTheCodePage) {
    Write("; plain\r\n[x]\r\na=1\r\n");
    EXPECT_EQ(After("k", "土"), "; plain\r\n[x]\r\na=1\r\n[工程]\r\nk=土\r\n");
    EXPECT_EQ(Value("k"), "土");
}

TEST_F(ProfileEncoding, KeepsAMarkThatStandsAlone) {
    Write(UTF8_MARK);
    EXPECT_EQ(After("k", "土"), UTF8_MARK + Utf8(u8"[工程]\nk=土\n"));
}

TEST_F(ProfileEncoding, NamesBytesThatAreNoCharacterAndLeavesTheFile) {
    Write("[工程]\nk=1\n");
    testing::internal::CaptureStderr();
    EXPECT_FALSE(WritePrivateProfileStringA("工程", "k", "a\xB9", m_file.c_str()));
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              m_file + ": the byte B9 in \"a\xEF\xBF\xBD\" is no character of the system code page\n");
    EXPECT_EQ(m_folder.Read("a.ini"), "[工程]\nk=1\n");
}
