#include "platform/ado/database_text.h"

#include <gtest/gtest.h>

#include "platform/ado/error.h"

namespace {

const std::string g_strClay = "\xE7\xB2\x98\xE5\x9C\x9F"; // 粘土, UTF-8

/// What a call throws; empty when it does not.
template <class Call>
std::string Thrown(const Call& call) {
    try {
        call();
    } catch (const CDbError& error) {
        EXPECT_EQ(error.Failure(), DbFailure::NotInCodePage);
        return error.Source() + ": " + error.what();
    }
    return {};
}

} // namespace

TEST(DatabaseText, ConvertsBothWays) {
    EXPECT_EQ(StatementToUtf8("粘土", "X"), g_strClay);
    EXPECT_EQ(ValueToUtf8("粘土", "X"), g_strClay);
    EXPECT_EQ(TextFromUtf8(g_strClay, "t", "c", "X"), "粘土");
    EXPECT_EQ(NameFromUtf8(g_strClay), "粘土");
}

TEST(DatabaseText, NamesTheCharacterThatTheCodePageLacksAndWhereItStands) {
    EXPECT_EQ(Thrown([] { TextFromUtf8("a\xF0\x9F\x98\x80", "t", "name", "X"); }),
              "X: t.name: character U+1F600 is not in the system code page");
    EXPECT_EQ(NameFromUtf8("a\xF0\x9F\x98\x80"), "");
}

TEST(DatabaseText, RefusesBytesThatAreNoCharacters) {
    EXPECT_EQ(Thrown([] { StatementToUtf8("\xFF", "X"); }),
              "X: The statement is broken: its bytes are no characters.");
    EXPECT_EQ(Thrown([] { ValueToUtf8("\xFF", "X"); }), "X: a text is broken: its bytes are no characters");
}

TEST(DatabaseText, DoublesQuotesInANameInQuotes) {
    EXPECT_EQ(QuotedName("a\"b"), "\"a\"\"b\"");
    EXPECT_EQ(QuotedName(""), "\"\"");
}

TEST(InsertStatement, HasAParameterForEachColumn) {
    EXPECT_EQ(InsertStatement("\"t\"", {"\"a\"", "b"}), "INSERT INTO \"t\"(\"a\",b) VALUES(?,?)");
    EXPECT_EQ(InsertStatement("s.t AS u", {"a"}), "INSERT INTO s.t AS u(a) VALUES(?)");
    EXPECT_EQ(InsertStatement("t", {}), "INSERT INTO t DEFAULT VALUES");
}
