#include "host/datamanager/current_failure.h"

#include <filesystem>

#include "platform/ado/error.h"
#include "platform/windows/code_page.h"

CFailure CurrentFailure() {
    try {
        throw;
    } catch (const CFailure& failure) {
        return failure;
    } catch (const CDbError& error) {
        return {ExitStatus::NoAccess, ToUtf8(error.what())};
    } catch (const std::filesystem::filesystem_error& error) {
        return {ExitStatus::NoAccess, error.path1().string() + ": " + error.code().message()};
    } catch (const std::exception& error) {
        return {ExitStatus::NoAccess, error.what()};
    }
}
