/*
 * KoStyle: helpers that a host would otherwise write for itself: UTF-8, sentences for the codes, and
 * lines and columns. All of it is in this header, for C99 and C++11 upwards; the library exports nothing
 * more. Any thread may call any of them at any time; none allocates, fails or keeps what it is given.
 *
 * The languages of a style are numbers from KOSTYLE_MIN_LANGUAGE to KOSTYLE_MAX_LANGUAGE. What they mean
 * is agreed between a host and the makers of its styles; the library gives them no names.
 */
#ifndef KOSTYLE_HELPERS_H
#define KOSTYLE_HELPERS_H

#include "codes.h"
#include "types.h"

#ifdef __cplusplus
#define KOSTYLE_INLINE inline
#define KOSTYLE_CAST(Type, value) static_cast<Type>(value)
#else
#define KOSTYLE_INLINE static inline
#define KOSTYLE_CAST(Type, value) ((Type)(value))
#endif

/* --- Sentences ------------------------------------------------------------------------------------- */

/**
 * One sentence for a code of enum KoStyleCode, in English, without a capital or a full stop, so that it
 * may stand behind a colon. Never NULL: a code that is not known gives a sentence that says so.
 */
KOSTYLE_INLINE const char* KoStyle_codeText(int code) {
  switch (code) {
    case KOSTYLE_OK:
      return "success";
    case KOSTYLE_ERROR_ARGUMENT_MISSING:
      return "the style has no name";
    case KOSTYLE_ERROR_INVALID_HANDLE:
      return "not a style of this kind";
    case KOSTYLE_ERROR_NO_STYLE_FOR_KIND:
      return "no style can be made for the kind";
    case KOSTYLE_ERROR_NO_MANAGER:
      return "the style belongs to no manager";
    case KOSTYLE_ERROR_USER_STYLE_NOT_FOUND:
      return "no user style has the identifier";
    case KOSTYLE_ERROR_FOREIGN_MUTABLE_STYLE:
      return "the style belongs to another manager";
    case KOSTYLE_ERROR_DIRECTORY_MISSING:
      return "the directory does not exist";
    case KOSTYLE_ERROR_OPEN_FAILED:
      return "the style file cannot be opened for writing";
    case KOSTYLE_ERROR_DELETE_FAILED:
      return "the style file cannot be deleted";
    case KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE:
      return "the style file is missing or cannot be replaced";
    case KOSTYLE_ERROR_APP_ID_MISSING:
      return "the application identifier is missing";
    case KOSTYLE_ERROR_SYSTEM_DIRECTORY_MISSING:
      return "the system directory does not exist";
    case KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE:
      return "the user directory cannot be created";
    case KOSTYLE_ERROR_JSON_SYNTAX:
      return "not valid JSON";
    case KOSTYLE_ERROR_MEMBER_MISSING:
      return "required member is missing";
    case KOSTYLE_ERROR_WRONG_TYPE:
      return "value has the wrong type";
    case KOSTYLE_ERROR_EMPTY_STRING:
      return "required string is empty";
    case KOSTYLE_ERROR_DUPLICATE_ID:
      return "another style has the same identifier";
    case KOSTYLE_ERROR_NO_EFFECT:
      return "the style has no effect";
    case KOSTYLE_ERROR_WRITE_EMPTY_ID:
      return "the identifier is empty";
    case KOSTYLE_ERROR_WRITE_EMPTY_NAME:
      return "the name is empty";
    case KOSTYLE_ERROR_WRITE_NO_EFFECT_OBJECT:
      return "there is no effect to write";
    case KOSTYLE_ERROR_WRITE_EMPTY_DOCUMENT:
      return "there is nothing to write";
    case KOSTYLE_ERROR_WRITE_FILTER_TARGET:
      return "the attributes cannot be written";
    case KOSTYLE_ERROR_WRITE_CHAIN_TARGET:
      return "the effects cannot be written";
    case KOSTYLE_ERROR_WRITE_PARAMETER_TARGET:
      return "the parameters cannot be written";
    case KOSTYLE_ERROR_NO_CREATION_RESULT:
      return "not a creation result";
    default:
      return "a code that is not known here";
  }
}

/** One sentence for what StyleCreationResult_parseError() gives, in the same form; never NULL. */
KOSTYLE_INLINE const char* KoStyle_parseErrorText(int parseError) {
  switch (parseError) {
    case KOSTYLE_PARSE_OK:
      return "success";
    case KOSTYLE_PARSE_EMPTY:
      return "the file holds no value";
    case KOSTYLE_PARSE_ROOT_NOT_SINGULAR:
      return "something follows the root value";
    case KOSTYLE_PARSE_VALUE_INVALID:
      return "not a value";
    case KOSTYLE_PARSE_OBJECT_NAME_MISSING:
      return "an object member has no name";
    case KOSTYLE_PARSE_OBJECT_COLON_MISSING:
      return "no colon follows a member's name";
    case KOSTYLE_PARSE_OBJECT_END_MISSING:
      return "neither a comma nor a closing brace follows a member";
    case KOSTYLE_PARSE_ARRAY_END_MISSING:
      return "neither a comma nor a closing bracket follows an element";
    case KOSTYLE_PARSE_ESCAPE_NOT_HEXADECIMAL:
      return "the digits of a \\u escape are not hexadecimal";
    case KOSTYLE_PARSE_SURROGATE_INVALID:
      return "a high surrogate escape is not followed by a low one";
    case KOSTYLE_PARSE_ESCAPE_INVALID:
      return "a string holds a raw control character or a backslash that starts no escape";
    case KOSTYLE_PARSE_QUOTATION_MARK_MISSING:
      return "a string has no closing quotation mark";
    case KOSTYLE_PARSE_ENCODING_INVALID:
      return "a string is not valid in the file's encoding";
    case KOSTYLE_PARSE_NUMBER_TOO_BIG:
      return "a number is too large for double precision";
    case KOSTYLE_PARSE_FRACTION_MISSING:
      return "a number has no digit after its decimal point";
    case KOSTYLE_PARSE_EXPONENT_MISSING:
      return "a number has no digit in its exponent";
    case KOSTYLE_PARSE_TERMINATED:
      return "the values nest too deep";
    default:
      return "another syntax error";
  }
}

/* --- Text ------------------------------------------------------------------------------------------ */

/*
 * Internal: takes one code point of UTF-8 that has not ended and moves behind it. A byte that is part of
 * no valid sequence (overlong forms, surrogates and what lies beyond U+10FFFF are none) is taken alone,
 * as `stray` plus its value, or as U+FFFD when `stray` is zero.
 */
KOSTYLE_INLINE uint32_t KoStyle_takeUtf8(const char** utf8, uint32_t stray) {
  const char* const at = *utf8;
  const uint32_t lead = KOSTYLE_CAST(unsigned char, at[0]);
  const int length = lead < 0x80   ? 1
                     : lead < 0xC2 ? 0
                     : lead < 0xE0 ? 2
                     : lead < 0xF0 ? 3
                     : lead < 0xF5 ? 4
                                   : 0;
  uint32_t codePoint = length == 2   ? lead & 0x1F
                       : length == 3 ? lead & 0x0F
                       : length == 4 ? lead & 0x07
                                     : lead;
  int taken = length > 0;
  for (int i = 1; taken && i < length; ++i) {
    const uint32_t next = KOSTYLE_CAST(unsigned char, at[i]);
    taken = (next & 0xC0) == 0x80;
    codePoint = codePoint << 6 | (next & 0x3F);
  }
  if (length == 3 && (codePoint < 0x800 || (codePoint >= 0xD800 && codePoint <= 0xDFFF))) taken = 0;
  if (length == 4 && (codePoint < 0x10000 || codePoint > 0x10FFFF)) taken = 0;
  *utf8 = at + (taken ? length : 1);
  return taken ? codePoint : stray ? stray + lead : 0xFFFD;
}

/* Internal: the one body of both conversions to UTF-16. */
KOSTYLE_INLINE size_t KoStyle_widen(const char* utf8, KoStyleChar* buffer, size_t capacity,
                                    uint32_t stray) {
  size_t length = 0;
  size_t written = 0;
  while (utf8 && *utf8) {
    const uint32_t codePoint = KoStyle_takeUtf8(&utf8, stray);
    const size_t units = codePoint > 0xFFFF ? 2 : 1;
    if (written == length && length + units < capacity) {
      if (units == 2) {
        buffer[written++] = KOSTYLE_CAST(KoStyleChar, 0xD7C0 + (codePoint >> 10));
        buffer[written++] = KOSTYLE_CAST(KoStyleChar, 0xDC00 + (codePoint & 0x3FF));
      } else {
        buffer[written++] = KOSTYLE_CAST(KoStyleChar, codePoint);
      }
    }
    length += units;
  }
  if (capacity > 0) buffer[written] = 0;
  return length;
}

/* Internal: the one body of both conversions to UTF-8; of a path, when `stray` is not zero. */
KOSTYLE_INLINE size_t KoStyle_narrow(const KoStyleChar* text, char* buffer, size_t capacity,
                                     uint32_t stray) {
  size_t length = 0;
  size_t written = 0;
  while (text && *text) {
    const uint32_t unit = KOSTYLE_CAST(uint16_t, *text++);
    uint32_t codePoint = unit;
    char bytes[4];
    size_t count = 0;
    if (unit >= 0xD800 && unit <= 0xDBFF && *text >= 0xDC00 && *text <= 0xDFFF) {
      codePoint = 0x10000 + ((unit - 0xD800) << 10) + (KOSTYLE_CAST(uint16_t, *text++) - 0xDC00U);
    } else if (unit >= 0xD800 && unit <= 0xDFFF &&
               !(stray && unit >= stray + 0x80 && unit <= stray + 0xFF)) {
      if (stray) {
        if (capacity > 0) buffer[0] = 0;
        return SIZE_MAX;
      }
      codePoint = 0xFFFD;
    }
    if (codePoint >= 0xD800 && codePoint <= 0xDFFF) {
      bytes[count++] = KOSTYLE_CAST(char, codePoint - stray);
    } else if (codePoint < 0x80) {
      bytes[count++] = KOSTYLE_CAST(char, codePoint);
    } else {
      if (codePoint < 0x800) {
        bytes[count++] = KOSTYLE_CAST(char, 0xC0 | codePoint >> 6);
      } else {
        if (codePoint < 0x10000) {
          bytes[count++] = KOSTYLE_CAST(char, 0xE0 | codePoint >> 12);
        } else {
          bytes[count++] = KOSTYLE_CAST(char, 0xF0 | codePoint >> 18);
          bytes[count++] = KOSTYLE_CAST(char, 0x80 | (codePoint >> 12 & 0x3F));
        }
        bytes[count++] = KOSTYLE_CAST(char, 0x80 | (codePoint >> 6 & 0x3F));
      }
      bytes[count++] = KOSTYLE_CAST(char, 0x80 | (codePoint & 0x3F));
    }
    if (written == length && length + count < capacity) {
      for (size_t i = 0; i < count; ++i) buffer[written++] = bytes[i];
    }
    length += count;
  }
  if (capacity > 0) buffer[written] = 0;
  return length;
}

/**
 * Converts UTF-8 to the library's text.
 *
 * @param utf8 Ends with a NUL; NULL is taken as the empty text. Each byte that is part of no valid
 *     sequence becomes U+FFFD, so that the result never holds a lone surrogate.
 * @param buffer Gets the text with a NUL behind it; may be NULL when `capacity` is 0.
 * @param capacity Of the buffer, in units. What does not fit is left off, never half a code point.
 * @return The units of the whole text without its NUL. When this is not less than `capacity`, the text
 *     was cut: a buffer of one unit more than this holds it.
 */
KOSTYLE_INLINE size_t KoStyle_textFromUtf8(const char* utf8, KoStyleChar* buffer, size_t capacity) {
  return KoStyle_widen(utf8, buffer, capacity, 0);
}

/**
 * Converts the library's text to UTF-8.
 *
 * @param text Ends with a NUL; NULL is taken as the empty text. A lone surrogate becomes U+FFFD.
 * @param buffer Gets the bytes with a NUL behind them; may be NULL when `capacity` is 0.
 * @param capacity Of the buffer, in bytes. What does not fit is left off, never half a code point.
 * @return The bytes of the whole text without its NUL; cut when this is not less than `capacity`.
 */
KOSTYLE_INLINE size_t KoStyle_utf8FromText(const KoStyleChar* text, char* buffer, size_t capacity) {
  return KoStyle_narrow(text, buffer, capacity, 0);
}

/**
 * Converts a path of a system whose paths are bytes, as Linux, to the library's text, without loss: a
 * byte b that is not valid UTF-8 becomes the unit 0xDC00 + b. Otherwise as KoStyle_textFromUtf8().
 */
KOSTYLE_INLINE size_t KoStyle_textFromPath(const char* path, KoStyleChar* buffer, size_t capacity) {
  return KoStyle_widen(path, buffer, capacity, 0xDC00);
}

/**
 * Converts a path that the library gave to the bytes of the system: the way back of
 * KoStyle_textFromPath(). Otherwise as KoStyle_utf8FromText(), but that a text with another lone surrogate
 * is no path: the library finds and makes nothing there.
 *
 * @return As KoStyle_utf8FromText(); SIZE_MAX for what is no path, and the buffer then gets an empty text.
 */
KOSTYLE_INLINE size_t KoStyle_pathFromText(const KoStyleChar* text, char* buffer, size_t capacity) {
  return KoStyle_narrow(text, buffer, capacity, 0xDC00);
}

/* --- Places in files ------------------------------------------------------------------------------- */

/* Internal: a code unit of a file, of 1, 2 or 4 bytes in either order. */
KOSTYLE_INLINE uint32_t KoStyle_unitAt(const unsigned char* bytes, size_t unitSize, size_t bigEndian) {
  uint32_t unit = 0;
  for (size_t i = 0; i < unitSize; ++i) {
    const size_t shift = 8 * (bigEndian ? unitSize - 1 - i : i);
    unit |= KOSTYLE_CAST(uint32_t, bytes[i]) << shift;
  }
  return unit;
}

/* Internal: how the units of a file are written, by its first bytes; what the library itself finds. */
struct KoStyleEncoding {
  size_t unitSize;
  size_t bigEndian; /* 1 or 0 */
  size_t markSize;
};

KOSTYLE_INLINE struct KoStyleEncoding KoStyle_encodingOf(const unsigned char* bytes, size_t size) {
  struct KoStyleEncoding encoding = {1, 0, 0};
  const uint32_t start = size < 4 ? 0x20202020 : KoStyle_unitAt(bytes, 4, 1);
  const unsigned zeros = (start >> 24 == 0) * 8U + ((start >> 16 & 0xFF) == 0) * 4U +
                         ((start >> 8 & 0xFF) == 0) * 2U + ((start & 0xFF) == 0);
  const int utf32 = start == 0x0000FEFF || start == 0xFFFE0000;
  const int utf16 = !utf32 && (start >> 16 == 0xFEFF || start >> 16 == 0xFFFE);
  if (utf32 || (!utf16 && (zeros == 0xE || zeros == 0x7))) {
    encoding.unitSize = 4;
    encoding.bigEndian = start == 0x0000FEFF || (!utf32 && zeros == 0xE);
    encoding.markSize = utf32 ? 4 : 0;
  } else if (utf16 || zeros == 0xA || zeros == 0x5) {
    encoding.unitSize = 2;
    encoding.bigEndian = start >> 16 == 0xFEFF || (!utf16 && zeros == 0xA);
    encoding.markSize = utf16 ? 2 : 0;
  } else if (start >> 8 == 0xEFBBBF) {
    encoding.markSize = 3;
  }
  return encoding;
}

/* Internal: the bytes of the character at a place of the file; CR LF is one. */
KOSTYLE_INLINE size_t KoStyle_characterSize(const unsigned char* bytes, size_t size,
                                            struct KoStyleEncoding encoding) {
  const size_t step = encoding.unitSize;
  size_t taken = step < size ? step : size;
  uint32_t unit;
  if (size < 2 * step) return taken;
  unit = KoStyle_unitAt(bytes, step, encoding.bigEndian);
  if (unit == '\r' && KoStyle_unitAt(bytes + step, step, encoding.bigEndian) == '\n') return 2 * step;
  if (step == 2 && unit >= 0xD800 && unit <= 0xDBFF) {
    const uint32_t next = KoStyle_unitAt(bytes + step, step, encoding.bigEndian);
    if (next >= 0xDC00 && next <= 0xDFFF) taken = 4;
  }
  if (step == 1 && unit >= 0xC2) {
    while (taken < size && taken < 4 && (bytes[taken] & 0xC0) == 0x80) ++taken;
  }
  return taken;
}

/**
 * Finds the line and the column that StyleCreationResult_parseErrorOffset() means: those of the character
 * whose last byte, or an earlier one of its own, is the offset's last. When the file ends too early that
 * is its last character; after KOSTYLE_PARSE_TERMINATED it is the one behind the bracket.
 *
 * @param content The file's bytes in any encoding that the library reads: UTF-8, UTF-16 or UTF-32 of
 *     either byte order, with or without a byte-order mark.
 * @param size Of the content, in bytes.
 * @param offset A number of bytes from the start of the file, as the library gives it. Beyond the end it
 *     is taken as the end.
 * @param line Gets the line, counted from 1. Lines end with LF, CR or CR LF.
 * @param column Gets the column, counted from 1 in code points; a byte-order mark is none.
 */
KOSTYLE_INLINE void KoStyle_findLine(const void* content, size_t size, uint64_t offset, size_t* line,
                                     size_t* column) {
  const unsigned char* const bytes = KOSTYLE_CAST(const unsigned char*, content);
  const struct KoStyleEncoding encoding = KoStyle_encodingOf(bytes, size);
  const size_t end = offset < size ? KOSTYLE_CAST(size_t, offset) : size;
  size_t at = encoding.markSize;
  *line = 1;
  *column = 1;
  while (at < end) {
    const size_t taken = KoStyle_characterSize(bytes + at, size - at, encoding);
    uint32_t unit = 0;
    if (at + taken >= end) return;
    if (taken >= encoding.unitSize)
      unit = KoStyle_unitAt(bytes + at, encoding.unitSize, encoding.bigEndian);
    if (unit == '\r' || unit == '\n') {
      ++*line;
      *column = 1;
    } else {
      ++*column;
    }
    at += taken;
  }
}

#endif
