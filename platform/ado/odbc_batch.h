#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ado/odbc_statement.h"
#include "platform/ado/provider.h"

/// A statement run many times. An INSERT of one row takes queued rows many at a time, since every run is a
/// way to the server and back.
class COdbcBatch : public CDbStatement {
public:
    /// The statement is UTF-8 and in the engine's words.
    COdbcBatch(COdbcHandle pLink, std::string strSql);

    void Execute(std::span<const CDbValue> arParameters) override;
    void Queue(std::span<const CDbValue> arParameters) override;
    void Flush() override;

private:
    COdbcHandle m_pLink;
    std::string m_strSql;
    std::unique_ptr<COdbcStatement> m_pOne;  ///< prepared when first run
    std::unique_ptr<COdbcStatement> m_pMany; ///< the same for m_nRowsAtOnce rows
    std::vector<CDbValue> m_arQueued;        ///< the values of the rows that wait, one row after the other
    std::size_t m_nValues = 0;               ///< of one row
    std::size_t m_nRowsAtOnce = 0;           ///< 0 until the first row is queued, 1 where one goes at a time
};
