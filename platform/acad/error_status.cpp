#include "platform/acad/error_status.h"

#include <iterator>

namespace {

// In the order of the enumeration.
constexpr const char* g_arStatusNames[] = {
    "eOk",
    "eNotImplementedYet",
    "eNotApplicable",
    "eInvalidInput",
    "eNullObjectId",
    "eNullObjectPointer",
    "eUnknownHandle",
    "eWasErased",
    "eWasOpenForRead",
    "eWasOpenForWrite",
    "eWasOpenForNotify",
    "eWasNotifying",
    "eNotOpenForRead",
    "eNotOpenForWrite",
    "eAtMaxReaders",
    "eNotThatKindOfClass",
    "eKeyNotFound",
    "eDuplicateKey",
    "eInvalidIndex",
    "eInvalidExtents",
    "eAlreadyInDb",
    "eNoDatabase",
    "eWrongDatabase",
    "eFilerError",
    "eFileNotFound",
    "eUndefinedLineType",
    "eDegenerateGeometry",
    "eNotInBlock",
    "eIsWriteProtected",
    "eNotOpenForNotify",
    "eRegappIdNotFound",
    "eInvalidAdsName",
    "eNoDocument",
    "eNotFromThisDocument",
    "eInvalidContext",
    "eLockViolation",
    "eUserBreak",
    "eDuplicateRecordName",
    "eCannotScaleNonUniformly",
    "eFileAccessErr",
    "eSelfReference",
};
static_assert(std::size(g_arStatusNames) == Acad::eSelfReference + 1, "every status has its name");

} // namespace

const char* Acad::ErrorStatusText(ErrorStatus status) {
    const auto index = static_cast<long long>(status);
    if (index < 0 || index >= static_cast<long long>(std::size(g_arStatusNames)))
        return "unknown error status";
    return g_arStatusNames[index];
}
