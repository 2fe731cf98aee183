// Runs a command beside a PostgreSQL server of its own with an empty database: bench_with_postgresql COMMAND
// [WORD...]. The command finds it by CONNECT, the connection text of a project there, and by the variables of
// the server's own programs (PGHOST and so on).

#include "platform/ado/text.h"
#include "tests/support/test_database.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include <sys/wait.h>
#include <unistd.h>

int main(int nArguments, char** arguments) {
    if (nArguments < 2) {
        std::fputs("usage: bench_with_postgresql COMMAND [WORD...]\n", stderr);
        return 2;
    }
    const CTestDatabase database(TestEngine::Postgresql);
    const CConnectionText text(database.ConnectionText());
    setenv("CONNECT", database.ConnectionText().c_str(), 1);
    for (const auto& [pVariable, pKey] : {std::pair{"PGHOST", "Server"},
                                          {"PGPORT", "Port"},
                                          {"PGDATABASE", "Database"},
                                          {"PGUSER", "Uid"},
                                          {"PGPASSWORD", "Pwd"}})
        setenv(pVariable, text.Value(pKey).c_str(), 1);
    const pid_t nChild = fork();
    if (nChild == 0) {
        execvp(arguments[1], arguments + 1);
        _exit(127);
    }
    int nStatus = 0;
    return waitpid(nChild, &nStatus, 0) == nChild && WIFEXITED(nStatus) ? WEXITSTATUS(nStatus) : 1;
}
