#include "platform/acad/error_status.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

TEST(ErrorStatusText, NamesEveryStatusOnce) {
    std::set<std::string> names;
    for (int status = Acad::eOk; status <= Acad::eUserBreak; ++status)
        names.insert(Acad::ErrorStatusText(static_cast<Acad::ErrorStatus>(status)));
    EXPECT_EQ(names.size(), static_cast<std::size_t>(Acad::eUserBreak + 1));
    EXPECT_STREQ(Acad::ErrorStatusText(Acad::eOk), "eOk");
    EXPECT_STREQ(Acad::ErrorStatusText(Acad::eNotApplicable), "eNotApplicable");
    EXPECT_STREQ(Acad::ErrorStatusText(Acad::eWasErased), "eWasErased");
    EXPECT_STREQ(Acad::ErrorStatusText(Acad::eUndefinedLineType), "eUndefinedLineType");
    EXPECT_STREQ(Acad::ErrorStatusText(Acad::eUserBreak), "eUserBreak");
}
