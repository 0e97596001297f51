// Entry points that several exports share; exports.txt says which.
#include <cstddef>

#include "api/handle.h"
#include "api/shared_entry.h"

using namespace Tesk::KoStyle;

KOSTYLE_API const void* KoStyle_firstPointer(void* handle) {
  return callAt<const void*>(Position{0}, handle, nullptr);
}
KOSTYLE_API const void* KoStyle_secondPointer(void* handle) {
  return callAt<const void*>(Position{1}, handle, nullptr);
}
KOSTYLE_API const Char* KoStyle_thirdText(void* handle) { return callAt(Position{2}, handle, noText); }
KOSTYLE_API const Char* KoStyle_fourthText(void* handle) { return callAt(Position{3}, handle, noText); }
KOSTYLE_API const Char* KoStyle_fifthText(void* handle) { return callAt(Position{4}, handle, noText); }
KOSTYLE_API std::size_t KoStyle_sixthCount(void* handle) {
  return callAt(Position{5}, handle, noCount);
}
KOSTYLE_API std::size_t KoStyle_tenthCount(void* handle) {
  return callAt(Position{9}, handle, noCount);
}
KOSTYLE_API const void* KoStyle_eleventhPointer(void* handle, std::size_t index) {
  return callAt<const void*, const std::size_t*>(Position{10}, handle, nullptr, &index);
}
KOSTYLE_API std::size_t KoStyle_twelfthCount(void* handle) {
  return callAt(Position{11}, handle, noCount);
}
