#pragma once

#include <memory>
#include <string>

class CGuard;

/// A PostgreSQL server of the test program's own: on loopback, on a free port, its files in a temporary
/// folder, run as another user where the tests are root's, whom it refuses. It is started when first asked
/// for. A guard process beside the test ends it and removes its files when the test is over, however that
/// ends. Its texts sort by Chinese reading, so an order by code point comes from nowhere by chance.
class CPostgresqlServer {
public:
    /// The server of this program. Throws std::runtime_error when there is none to be had.
    static CPostgresqlServer& Instance();

    CPostgresqlServer(const CPostgresqlServer&) = delete;
    CPostgresqlServer& operator=(const CPostgresqlServer&) = delete;
    ~CPostgresqlServer();

    [[nodiscard]] int Port() const { return m_nPort; }
    /// A connection text for one of its databases.
    [[nodiscard]] std::string ConnectionText(const std::string& strDatabase) const;
    /// Makes an empty database and returns its name.
    std::string MakeDatabase();
    /// Ends all connections to the database, and removes it.
    void RemoveDatabase(const std::string& strDatabase);
    /// Ends all connections to the database, as a server does that is started anew.
    void BreakConnections(const std::string& strDatabase);

private:
    CPostgresqlServer();
    void AwaitStart() const;

    int m_nPort = 0;
    int m_nDatabases = 0;
    std::unique_ptr<CGuard> m_pGuard;
};
