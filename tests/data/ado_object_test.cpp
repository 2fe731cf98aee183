#include "data/ado_object.h"

#include <gtest/gtest.h>

namespace {

class CSample final : public CADOObject {
public:
    CSample()
        : CADOObject("CSample") {}

    /// Raises an error of this code and description, unless the code is S_OK.
    int Raise(HRESULT nCode, const wchar_t* pszDescription) {
        return Attempt([&] {
            if (nCode != S_OK) throw CComError(nCode, L"来源", pszDescription);
        });
    }

private:
    CString ErrorPrefix() const override { return "Before\n"; }
};

} // namespace

TEST(AdoObject, HasNoErrorAtFirst) {
    CSample sample;
    EXPECT_EQ(sample.Raise(S_OK, L""), 1);
    EXPECT_EQ(sample.GetLastErrorString(), "");
    EXPECT_EQ(sample.GetLastErrorCode(), 0U);
}

TEST(AdoObject, KeepsTheLastErrorAsTextAndCode) {
    CSample sample;
    EXPECT_EQ(sample.Raise(E_FAIL, L"甲"), 0);
    EXPECT_EQ(sample.Raise(DB_E_NOTABLE, L"没有表"), 0);
    EXPECT_EQ(sample.Raise(S_OK, L""), 1);
    EXPECT_EQ(sample.GetLastErrorCode(), 0x80040E37U);
    EXPECT_STREQ(sample.GetLastErrorString(),
                 "Before\nCSample Error\n\tCode = 80040e37\n\tCode meaning = The table does not exist\n"
                 "\tSource = 来源\n\tDescription = 没有表\n");
}

TEST(AdoObject, WritesACodeWithEightDigits) {
    CSample sample;
    sample.Raise(HRESULT{0x1F}, L"");
    EXPECT_EQ(sample.GetLastErrorString(),
              "Before\nCSample Error\n\tCode = 0000001f\n\tCode meaning = Unknown error 0x0000001F\n"
              "\tSource = 来源\n\tDescription = \n");
}
