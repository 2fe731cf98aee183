#include "host/console/text_output.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

/// An output into a file of its own.
class TextOutput : public testing::Test {
protected:
    std::string Written() {
        m_output.Flush();
        std::string text(static_cast<size_t>(std::ftell(m_pFile.get())), '\0');
        std::rewind(m_pFile.get());
        EXPECT_EQ(std::fread(text.data(), 1, text.size(), m_pFile.get()), text.size());
        return text;
    }
    struct CCloser {
        void operator()(std::FILE* pFile) const { std::fclose(pFile); }
    };
    std::unique_ptr<std::FILE, CCloser> m_pFile{std::tmpfile()};
    CTextOutput m_output{m_pFile.get()};
};

} // namespace

TEST_F(TextOutput, DropsCarriageReturns) {
    m_output.Write("a\r\nb\r");
    EXPECT_EQ(Written(), "a\nb");
}

TEST_F(TextOutput, ALineStandsOnALineOfItsOwn) {
    m_output.WriteLine("first");
    m_output.Write("begun");
    m_output.WriteLine("second");
    m_output.WriteLine("third");
    EXPECT_EQ(Written(), "first\nbegun\nsecond\nthird\n");
}

TEST_F(TextOutput, BeginLineEndsABegunLineOnce) {
    m_output.BeginLine();
    m_output.Write("a");
    m_output.BeginLine();
    m_output.Write("\r");
    m_output.BeginLine();
    EXPECT_EQ(Written(), "a\n");
}
