#include "platform/mfc/exception.h"

#include <gtest/gtest.h>

TEST(Exception, KnowsItsClass) {
    const CException exception;
    EXPECT_STREQ(exception.GetRuntimeClass()->m_lpszClassName, "CException");
    EXPECT_TRUE(exception.IsKindOf(&CException::classCException));
    EXPECT_EQ(exception.GetErrorMessage(), "");
}

TEST(Exception, IsNotOfAClassDerivedFromItsOwn) {
    const CRuntimeClass derived = {"CDerived", &CException::classCException};
    EXPECT_FALSE(CException().IsKindOf(&derived));
}
