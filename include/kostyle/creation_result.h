/*
 * KoStyle: creation results. Reading a style set leaves one for each style file that was opened,
 * whether its style was taken or not. It never changes, and lives with its texts until its set is read
 * again or its manager is destroyed.
 */
#ifndef KOSTYLE_CREATION_RESULT_H
#define KOSTYLE_CREATION_RESULT_H

#include "types.h"

/** The creation result after this one of the same set, in reading order; NULL at the end. */
KOSTYLE_API KoStyleCreationResult* StyleCreationResult_next(KoStyleCreationResult* result);

/** The creation result before this one of the same set; NULL at the front. */
KOSTYLE_API KoStyleCreationResult* StyleCreationResult_prev(KoStyleCreationResult* result);

/**
 * Whether the style was taken.
 *
 * @return KOSTYLE_OK when it was, else KOSTYLE_ERROR_JSON_SYNTAX, KOSTYLE_ERROR_MEMBER_MISSING,
 *         KOSTYLE_ERROR_WRONG_TYPE, KOSTYLE_ERROR_EMPTY_STRING, KOSTYLE_ERROR_DUPLICATE_ID or
 *         KOSTYLE_ERROR_NO_EFFECT; KOSTYLE_ERROR_NO_CREATION_RESULT for a null handle.
 */
KOSTYLE_API int StyleCreationResult_error(KoStyleCreationResult* result);

/** The path of the file: the directory as it was given, a separator and the file's name. */
KOSTYLE_API const KoStyleChar* StyleCreationResult_filePath(KoStyleCreationResult* result);

/**
 * The identifier of the style in the file, also when it was refused with KOSTYLE_ERROR_DUPLICATE_ID;
 * empty after every other error.
 */
KOSTYLE_API const KoStyleChar* StyleCreationResult_id(KoStyleCreationResult* result);

/** The set, KOSTYLE_KIND_SYSTEM or KOSTYLE_KIND_USER; KOSTYLE_KIND_NONE for a null handle. */
KOSTYLE_API int StyleCreationResult_type(KoStyleCreationResult* result);

/**
 * Where in the document the failing value lies: "/" for the root, "/id" or "/name"; empty on success,
 * after KOSTYLE_ERROR_JSON_SYNTAX and after KOSTYLE_ERROR_DUPLICATE_ID.
 */
KOSTYLE_API const KoStyleChar* StyleCreationResult_jsonPath(KoStyleCreationResult* result);

/**
 * The parser's code after KOSTYLE_ERROR_JSON_SYNTAX, a value of enum KoStyleParseError; otherwise
 * KOSTYLE_PARSE_OK. KOSTYLE_PARSE_NO_CREATION_RESULT for a null handle.
 */
KOSTYLE_API int StyleCreationResult_parseError(KoStyleCreationResult* result);

/**
 * After KOSTYLE_ERROR_JSON_SYNTAX, where the error is: the number of bytes of the file up to and
 * including the character at fault, a byte-order mark included; the length of the file when the file
 * ends too early. Of a number that is too big, an escape and an encoding that is not valid, the
 * character at fault is the first one; of KOSTYLE_PARSE_TERMINATED it is the one behind the bracket.
 * Otherwise 0. SIZE_MAX for a null handle.
 */
KOSTYLE_API size_t StyleCreationResult_parseErrorOffset(KoStyleCreationResult* result);

#endif
