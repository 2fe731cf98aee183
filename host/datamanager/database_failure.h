#pragma once

#include <string>

#include "host/datamanager/failure.h"
#include "platform/ado/error.h"

/// Where a database is, for messages, UTF-8: its file, else its name and server; never a password.
std::string DatabasePlace(const std::string& strConnection);

/// A database's failure as the program's: where it is and what is wrong, on one line.
CFailure DatabaseFailure(const std::string& strConnection, const CDbError& error);

/// Does work on the database of a connection text; its failures become the program's.
template <class Work>
auto AtDatabase(const std::string& strConnection, Work work) {
    try {
        return work();
    } catch (const CDbError& error) {
        throw DatabaseFailure(strConnection, error);
    }
}
