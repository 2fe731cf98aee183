#include "commands/br_editor_reactor.h"

#include "commands/session_flags.h"

#include <gtest/gtest.h>

TEST(EditorReactor, KnowsOfQuittingUntilTheNextCommand) {
    CEdBRReactor reactor;
    reactor.commandWillStart(L"QUIT");
    EXPECT_EQ(g_bQuitting, 1);
    reactor.commandWillStart(L"LINE"); // the QUIT before was cancelled
    EXPECT_EQ(g_bQuitting, 0);
}

TEST(EditorReactor, ComparesTheNameExactly) {
    CEdBRReactor reactor;
    reactor.commandWillStart(L"quit");
    EXPECT_EQ(g_bQuitting, 0);
    reactor.commandWillStart(L"QUITX");
    EXPECT_EQ(g_bQuitting, 0);
}
