#include "data/ado_exception.h"

#include <gtest/gtest.h>

TEST(AdoException, IsThrownWithCodeAndText) {
    try {
        ThrowADOException(-7, "打不开");
    } catch (const CException& exception) {
        EXPECT_STREQ(exception.GetRuntimeClass()->m_lpszClassName, "CADOException");
        EXPECT_TRUE(exception.IsKindOf(&CADOException::classCADOException));
        EXPECT_TRUE(exception.IsKindOf(&CException::classCException));
        EXPECT_EQ(exception.GetErrorMessage(), "打不开");
        EXPECT_EQ(dynamic_cast<const CADOException&>(exception).m_lErrorCode, -7);
    }
    EXPECT_THROW(ThrowADOException(0, ""), CADOException);
}
