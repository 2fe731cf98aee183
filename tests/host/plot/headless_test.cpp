#include "host/plot/headless.h"

#include <QtGui/QGuiApplication>

#include <gtest/gtest.h>

#include <clocale>
#include <string>

TEST(StartHeadlessQt, NeedsNoDisplayAndStartsOnce) {
    StartHeadlessQt();
    const QCoreApplication* pFirst = QCoreApplication::instance();
    ASSERT_NE(pFirst, nullptr);
    EXPECT_EQ(QGuiApplication::platformName(), u"offscreen");
    StartHeadlessQt();
    EXPECT_EQ(QCoreApplication::instance(), pFirst);
}

TEST(StartHeadlessQt, LeavesTheLocaleAlone) {
    StartHeadlessQt();
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
}

TEST(StartHeadlessQt, KeepsQtsRemarksOffStandardError) {
    StartHeadlessQt();
    testing::internal::CaptureStderr();
    qWarning("a remark");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}
