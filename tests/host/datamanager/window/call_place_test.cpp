#include "host/datamanager/window/call_place.h"

#include <QtCore/QThread>

#include <vector>

#include "tests/host/datamanager/window/window_test.h"

namespace {
class CallPlace : public CWindowTest {};
} // namespace

TEST_F(CallPlace, CallsLaterInOrder) {
    CCallPlace place;
    std::vector<int> arCalls;
    place.Call([&] { arCalls.push_back(1); });
    place.Call([&] { arCalls.push_back(2); });
    EXPECT_TRUE(arCalls.empty());
    QCoreApplication::processEvents();
    EXPECT_EQ(arCalls, (std::vector<int>{1, 2}));
}

TEST_F(CallPlace, CallsOnTheThreadItLivesOn) {
    QThread thread;
    CCallPlace place, home;
    place.moveToThread(&thread);
    thread.start();
    QThread* pThere = nullptr;
    QThread* pBack = nullptr;
    place.Call([&] {
        pThere = QThread::currentThread();
        home.Call([&] { pBack = QThread::currentThread(); });
    });
    Await([&] { return pBack != nullptr; }, "the call came back");
    thread.quit();
    thread.wait();
    EXPECT_EQ(pThere, &thread);
    EXPECT_EQ(pBack, QThread::currentThread());
}

TEST_F(CallPlace, DropsCallsWhenItGoes) {
    bool bCalled = false;
    std::make_unique<CCallPlace>()->Call([&] { bCalled = true; });
    QCoreApplication::processEvents();
    EXPECT_FALSE(bCalled);
}
