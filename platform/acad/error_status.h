#pragma once

namespace Acad {

/// What an operation of the drawing database answers. eOk is 0 and eNotApplicable 2, as callers rely on;
/// the other numbers are this platform's own.
enum ErrorStatus {
    eOk = 0,
    eNotImplementedYet = 1,
    eNotApplicable = 2, ///< the operation makes no sense for this object; nothing changed
    eInvalidInput = 3,
    eNullObjectId = 4,
    eNullObjectPointer = 5,
    eUnknownHandle = 6,
    eWasErased = 7,      ///< the object is erased and was not asked for as such
    eWasOpenForRead = 8, ///< refused: somebody has it open for reading
    eWasOpenForWrite = 9,
    eWasOpenForNotify = 10,
    eWasNotifying = 11,
    eNotOpenForRead = 12,
    eNotOpenForWrite = 13,
    eAtMaxReaders = 14,
    eNotThatKindOfClass = 15, ///< the object is of another class than asked for
    eKeyNotFound = 16,
    eDuplicateKey = 17,
    eInvalidIndex = 18,
    eInvalidExtents = 19, ///< nothing finite to measure
    eAlreadyInDb = 20,
    eNoDatabase = 21,
    eWrongDatabase = 22,
    eFilerError = 23,
    eFileNotFound = 24,
    eUndefinedLineType = 25,
    eDegenerateGeometry = 26,
    eNotInBlock = 27,
    eIsWriteProtected = 28,
    eNotOpenForNotify = 29,
    eRegappIdNotFound = 30, ///< extended data under a name that the drawing has not registered
    eInvalidAdsName = 31,   ///< a name that stands for no entity
    eNoDocument = 32,
    eNotFromThisDocument = 33, ///< the document is none of the program's
    eInvalidContext = 34, ///< asked for in a document's context, but for the application's; or the reverse
    eLockViolation = 35,  ///< the document is locked, or isn't, against what was asked for
    eUserBreak = 36,      ///< the user gave it up
    eDuplicateRecordName = 37,
    eCannotScaleNonUniformly = 38, ///< the object cannot follow a scale that differs by direction
    eFileAccessErr = 39,           ///< a file cannot be read or written
    eSelfReference = 40,           ///< a block would be part of itself
};

/// The status's name, for messages ("eWasErased").
const char* ErrorStatusText(ErrorStatus status);

} // namespace Acad
