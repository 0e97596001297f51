/*
 * KoStyle: the codes, kinds and limits of the interface.
 *
 * The values are part of the interface and are never renumbered. Functions return them as `int`, so
 * that a value that a later version adds is not undefined behaviour in a host built against this one.
 */
#ifndef KOSTYLE_CODES_H
#define KOSTYLE_CODES_H

/** Outcome of an operation or of reading one style file. One numbering serves all of them. */
enum KoStyleCode {
  /** Success. */
  KOSTYLE_OK = 0,
  /** Empty name on a save, or null identifier on an overwrite. */
  KOSTYLE_ERROR_ARGUMENT_MISSING = 1,
  /** Null handle, a handle of the wrong kind, or a removal that ran out of memory. */
  KOSTYLE_ERROR_INVALID_HANDLE = 2,
  /** No style can be made for the kind that was asked for. Never reported to a host. */
  KOSTYLE_ERROR_NO_STYLE_FOR_KIND = 3,
  /** The style belongs to no manager. Never reported to a host. */
  KOSTYLE_ERROR_NO_MANAGER = 4,
  /** No user style of the manager has the identifier. */
  KOSTYLE_ERROR_USER_STYLE_NOT_FOUND = 5,
  /** The mutable style belongs to another manager. Never reported to a host. */
  KOSTYLE_ERROR_FOREIGN_MUTABLE_STYLE = 6,
  /** The directory to read does not exist or is not a directory. */
  KOSTYLE_ERROR_DIRECTORY_MISSING = 7,
  /** The style file cannot be opened for writing. */
  KOSTYLE_ERROR_OPEN_FAILED = 8,
  /** The style's file could not be deleted. */
  KOSTYLE_ERROR_DELETE_FAILED = 9,
  /** The file to overwrite is missing or cannot be deleted. */
  KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE = 10,
  /** The application identifier is null or empty. */
  KOSTYLE_ERROR_APP_ID_MISSING = 14,
  /** The system style directory is null, missing or not a directory. */
  KOSTYLE_ERROR_SYSTEM_DIRECTORY_MISSING = 15,
  /** The user style directory is missing and cannot be created. */
  KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE = 16,
  /** The file is not one valid JSON text; StyleCreationResult_parseError() tells more. */
  KOSTYLE_ERROR_JSON_SYNTAX = 17,
  /** Writing: there is no effect to write. Never reported to a host. */
  KOSTYLE_ERROR_WRITE_NO_EFFECT_OBJECT = 18,
  /** A required member of the document is missing. */
  KOSTYLE_ERROR_MEMBER_MISSING = 19,
  /** A value of the document has the wrong type. */
  KOSTYLE_ERROR_WRONG_TYPE = 20,
  /** A required string of the document is empty. */
  KOSTYLE_ERROR_EMPTY_STRING = 21,
  /** The manager already holds a style with the same identifier. */
  KOSTYLE_ERROR_DUPLICATE_ID = 22,
  /** The file read, or the style to be written, holds neither an audio nor a MIDI effect. */
  KOSTYLE_ERROR_NO_EFFECT = 23,
  /** Writing: the identifier is empty. Never reported to a host. */
  KOSTYLE_ERROR_WRITE_EMPTY_ID = 24,
  /** Writing: the name is empty. Only an overwrite reports it. */
  KOSTYLE_ERROR_WRITE_EMPTY_NAME = 25,
  /** Writing: the document has no members. Never reported to a host. */
  KOSTYLE_ERROR_WRITE_EMPTY_DOCUMENT = 26,
  /** Writing: the value to hold the attribute lists is not an object. Never reported to a host. */
  KOSTYLE_ERROR_WRITE_FILTER_TARGET = 27,
  /** Writing: the value to hold an effect chain is not an object. Never reported to a host. */
  KOSTYLE_ERROR_WRITE_CHAIN_TARGET = 28,
  /** Writing: the value to hold an effect's parameters is not an object. Never reported to a host. */
  KOSTYLE_ERROR_WRITE_PARAMETER_TARGET = 29,
  /** There is no creation result: the null-handle default of StyleCreationResult_error(). */
  KOSTYLE_ERROR_NO_CREATION_RESULT = 31
};

/** Why a file is not one valid JSON text: StyleCreationResult_parseError(). */
enum KoStyleParseError {
  /** The file was parsed. */
  KOSTYLE_PARSE_OK = 0,
  /** The file holds no value. */
  KOSTYLE_PARSE_EMPTY = 1,
  /** Something other than white space follows the root value. */
  KOSTYLE_PARSE_ROOT_NOT_SINGULAR = 2,
  /** Not a value. */
  KOSTYLE_PARSE_VALUE_INVALID = 3,
  /** An object member has no name. */
  KOSTYLE_PARSE_OBJECT_NAME_MISSING = 4,
  /** No colon follows a member's name. */
  KOSTYLE_PARSE_OBJECT_COLON_MISSING = 5,
  /** Neither a comma nor a closing brace follows a member. */
  KOSTYLE_PARSE_OBJECT_END_MISSING = 6,
  /** Neither a comma nor a closing bracket follows an element. */
  KOSTYLE_PARSE_ARRAY_END_MISSING = 7,
  /** The digits of a \\u escape are not hexadecimal. */
  KOSTYLE_PARSE_ESCAPE_NOT_HEXADECIMAL = 8,
  /** A high surrogate escape is not followed by a low one. */
  KOSTYLE_PARSE_SURROGATE_INVALID = 9,
  /** A string holds a backslash that starts no escape, or a raw control character: line break, tab. */
  KOSTYLE_PARSE_ESCAPE_INVALID = 10,
  /** A string has no closing quotation mark. */
  KOSTYLE_PARSE_QUOTATION_MARK_MISSING = 11,
  /** A string is not valid in the file's encoding. */
  KOSTYLE_PARSE_ENCODING_INVALID = 12,
  /** A number is too large for double precision. */
  KOSTYLE_PARSE_NUMBER_TOO_BIG = 13,
  /** A number has no digit after its decimal point. */
  KOSTYLE_PARSE_FRACTION_MISSING = 14,
  /** A number has no digit in its exponent. */
  KOSTYLE_PARSE_EXPONENT_MISSING = 15,
  /** The values nest deeper than KOSTYLE_MAX_NESTING levels. */
  KOSTYLE_PARSE_TERMINATED = 16,
  /** Another syntax error. */
  KOSTYLE_PARSE_OTHER = 17,
  /** There is no creation result: the null-handle default of StyleCreationResult_parseError(). */
  KOSTYLE_PARSE_NO_CREATION_RESULT = 18
};

/** Kind of a style (Style_type()) and of the set of a creation result (StyleCreationResult_type()). */
enum KoStyleKind {
  /** Read from a system style directory; never changed by the library. */
  KOSTYLE_KIND_SYSTEM = 0,
  /** Read from or saved to a user style directory. */
  KOSTYLE_KIND_USER = 1,
  /** Built in memory and not stored yet (styles only). */
  KOSTYLE_KIND_MUTABLE = 2,
  /** The null-handle default. */
  KOSTYLE_KIND_NONE = 3
};

/** Kind of an effect: Effect_type(). */
enum KoStyleEffectKind {
  /** An effect of the audio chain. */
  KOSTYLE_EFFECT_AUDIO = 0,
  /** An effect of the MIDI chain. */
  KOSTYLE_EFFECT_MIDI = 1,
  /** The null-handle default. */
  KOSTYLE_EFFECT_NONE = 2
};

/** Type of a parameter's value: Parameter_type(). */
enum KoStyleParameterType {
  /** 32-bit signed integer. */
  KOSTYLE_PARAMETER_INT = 0,
  /** 32-bit floating point. */
  KOSTYLE_PARAMETER_FLOAT = 1,
  /** Text. */
  KOSTYLE_PARAMETER_STRING = 2,
  /** The null-handle default. */
  KOSTYLE_PARAMETER_NONE = 3
};

/**
 * Fixed limits. Style_minLangID(), Style_maxLangID() and Style_singerIDLength() answer three of them.
 */
enum KoStyleLimit {
  /** Smallest language identifier. */
  KOSTYLE_MIN_LANGUAGE = 0,
  /** Largest language identifier. */
  KOSTYLE_MAX_LANGUAGE = 4,
  /** Length of a singer identifier, in UTF-16 units. */
  KOSTYLE_SINGER_ID_LENGTH = 16,
  /** Longest name of a style, in UTF-16 units. */
  KOSTYLE_MAX_NAME_LENGTH = 100,
  /** Deepest nesting of objects and arrays in a style file, the root being level 1. */
  KOSTYLE_MAX_NESTING = 512
};

#endif
