// What does not fit together does not compile, and views are as light as pointers. Compiling is the
// test.
#include <kostyle/kostyle.hpp>

#include <cstddef>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

namespace {

using namespace kostyle;

template <class... Views>
constexpr bool areLight = ((sizeof(Views) == sizeof(void*) && std::is_trivially_copyable_v<Views> &&
                            std::is_nothrow_default_constructible_v<Views>)&&...);
static_assert(areLight<Style, StoredStyle, SystemStyle, UserStyle, MutableStyle>);
static_assert(areLight<Effect, StoredEffect, AudioEffect, MidiEffect>);
static_assert(areLight<MutableEffect, MutableAudioEffect, MutableMidiEffect>);
static_assert(areLight<Parameter, StoredParameter, MutableParameter>);
static_assert(areLight<CreationResult, ManagerView, PropertyEditor, Text>);
static_assert(areLight<SystemStyles, UserStyles, SystemCreationResults, UserCreationResults>);
static_assert(areLight<AudioEffects, MidiEffects, MutableAudioEffects, MutableMidiEffects>);
static_assert(areLight<StoredParameters, MutableParameters, decltype(UserStyle().genres())>);

static_assert(sizeof(Manager) == sizeof(void*));
static_assert(std::is_nothrow_move_constructible_v<Manager> &&
              std::is_nothrow_move_assignable_v<Manager>);
static_assert(!std::is_copy_constructible_v<Manager> && !std::is_copy_assignable_v<Manager>);

// The kinds turn into more general ones, and into no others.
template <class From, class To>
constexpr bool becomes = std::is_convertible_v<From, To>;
static_assert(becomes<SystemStyle, StoredStyle> && becomes<UserStyle, StoredStyle>);
static_assert(becomes<StoredStyle, Style> && becomes<MutableStyle, Style>);
static_assert(!becomes<SystemStyle, UserStyle> && !becomes<UserStyle, SystemStyle>);
static_assert(!becomes<StoredStyle, UserStyle> && !becomes<Style, StoredStyle>);
static_assert(!becomes<MutableStyle, StoredStyle> && !becomes<UserStyle, MutableStyle>);
static_assert(becomes<AudioEffect, StoredEffect> && becomes<MutableMidiEffect, MutableEffect>);
static_assert(!becomes<AudioEffect, MidiEffect> && !becomes<MutableMidiEffect, MutableAudioEffect>);
static_assert(!becomes<AudioEffect, MutableAudioEffect> && !becomes<MutableEffect, StoredEffect>);
static_assert(becomes<StoredParameter, Parameter> && !becomes<StoredParameter, MutableParameter>);
static_assert(!becomes<Parameter, StoredParameter> && !becomes<MutableParameter, StoredParameter>);
static_assert(!becomes<Manager, CreationResult> && !becomes<Effect, Parameter> &&
              !becomes<Style, Effect>);
static_assert(!becomes<KoStyleStyle*, UserStyle> && !becomes<std::nullptr_t, Style>);
static_assert(!becomes<UserStyle, bool> && !becomes<UserStyle, KoStyleStyle*>);

// What each kind can do. `can<Does, Views...>` is whether Does compiles for the views.
template <template <class...> class Does, class Void, class... Views>
struct Can : std::false_type {};
template <template <class...> class Does, class... Views>
struct Can<Does, std::void_t<Does<Views...>>, Views...> : std::true_type {};
template <template <class...> class Does, class... Views>
constexpr bool can = Can<Does, void, Views...>::value;

template <class View>
using Remove = decltype(std::declval<View>().remove());
template <class View>
using Edit = decltype(std::declval<View>().edit());
template <class View>
using Identifier = decltype(std::declval<View>().id());
template <class View>
using Vendor = decltype(std::declval<View>().vendor());
template <class View>
using SetName = decltype(std::declval<View>().setName("x"));
template <class View>
using AddGenre = decltype(std::declval<View>().addGenre("x"));
template <class View>
using AddParameter = decltype(std::declval<View>().addParameter("x"));
template <class View>
using Move = decltype(std::declval<View>().move(0));
template <class View>
using Destroy = decltype(std::declval<View>().destroy());
template <class View>
using Save = decltype(std::declval<View>().save());
template <class View, class Target>
using Overwrite = decltype(std::declval<View>().overwrite(std::declval<Target>()));
template <class View, class Element>
using Has = decltype(std::declval<View>().has(std::declval<Element>()));
template <class View, class Value>
using SetValue = decltype(std::declval<View>().setValue(std::declval<Value>()));
template <class View, class Value>
using AddValue = decltype(std::declval<View>().addParameter("x", std::declval<Value>()));
template <class View, class Other>
using Equal = decltype(std::declval<View>() == std::declval<Other>());
template <class View, class Other>
using Differ = decltype(std::declval<View>() != std::declval<Other>());
template <class View>
using SafeSave = decltype(safeSave(std::declval<View>()));
template <class View, class Target>
using SafeOverwrite = decltype(safeOverwrite(std::declval<View>(), std::declval<Target>()));
template <class View>
using Copy = decltype(createMutableCopy(std::declval<View>()));

static_assert(can<Remove, UserStyle> && !can<Remove, SystemStyle> && !can<Remove, MutableStyle>);
static_assert(can<Edit, UserStyle> && !can<Edit, SystemStyle> && !can<Edit, MutableStyle>);
static_assert(can<Identifier, SystemStyle> && !can<Identifier, MutableStyle> &&
              !can<Identifier, Style>);
static_assert(can<Vendor, UserStyle> && !can<Vendor, MutableStyle>);
static_assert(can<SetName, MutableStyle> && !can<SetName, UserStyle> && !can<SetName, SystemStyle>);
static_assert(can<SetName, MutableParameter> && !can<SetName, StoredParameter>);
static_assert(can<AddGenre, MutableStyle> && !can<AddGenre, UserStyle>);
static_assert(can<AddParameter, MutableMidiEffect> && !can<AddParameter, AudioEffect>);
static_assert(can<Move, MutableAudioEffect> && !can<Move, AudioEffect>);
static_assert(can<Destroy, MutableStyle> && can<Destroy, MutableEffect> &&
              can<Destroy, MutableParameter>);
static_assert(!can<Destroy, UserStyle> && !can<Destroy, AudioEffect> && !can<Destroy, StoredParameter>);
static_assert(!can<Destroy, ManagerView>);
static_assert(can<Save, MutableStyle> && !can<Save, UserStyle>);
static_assert(can<Overwrite, MutableStyle, UserStyle> && !can<Overwrite, MutableStyle, SystemStyle>);
static_assert(!can<Overwrite, MutableStyle, MutableStyle> && !can<Overwrite, UserStyle, UserStyle>);
static_assert(can<SafeSave, MutableStyle> && !can<SafeSave, UserStyle>);
static_assert(can<SafeOverwrite, MutableStyle, UserStyle>);
static_assert(!can<SafeOverwrite, MutableStyle, SystemStyle> &&
              !can<SafeOverwrite, UserStyle, UserStyle>);
static_assert(can<Copy, SystemStyle> && can<Copy, UserStyle> && !can<Copy, MutableStyle>);

static_assert(can<Has, UserStyle, AudioEffect> && can<Has, SystemStyle, MidiEffect>);
static_assert(!can<Has, UserStyle, MutableAudioEffect> && !can<Has, MutableStyle, MidiEffect>);
static_assert(!can<Has, UserStyle, StoredParameter> && can<Has, MutableStyle, MutableMidiEffect>);
static_assert(can<Has, AudioEffect, StoredParameter> && !can<Has, AudioEffect, MutableParameter>);
static_assert(can<Has, Manager, UserStyle> && !can<Has, Manager, StoredStyle>);

static_assert(can<SetValue, MutableParameter, int> && can<SetValue, MutableParameter, float>);
static_assert(can<SetValue, MutableParameter, const char*> && can<SetValue, MutableParameter, Text>);
static_assert(can<SetValue, MutableParameter, std::string> &&
              can<SetValue, MutableParameter, TextView>);
static_assert(can<SetValue, MutableParameter, ParameterValue>);
static_assert(!can<SetValue, MutableParameter, char> && !can<SetValue, MutableParameter, KoStyleChar>);
static_assert(!can<SetValue, MutableParameter, short> &&
              !can<SetValue, MutableParameter, std::nullptr_t>);
static_assert(!can<SetValue, MutableParameter, double> && !can<SetValue, MutableParameter, bool>);
static_assert(!can<SetValue, MutableParameter, long long> &&
              !can<SetValue, MutableParameter, unsigned>);
static_assert(!can<SetValue, StoredParameter, int> && !can<SetValue, MutableParameter, UserStyle>);
static_assert(can<AddValue, MutableAudioEffect, int> && can<AddValue, MutableAudioEffect, const char*>);
static_assert(!can<AddValue, MutableAudioEffect, double> && !can<AddValue, MutableAudioEffect, bool>);
static_assert(!can<AddValue, AudioEffect, int>);

// Only what may be one object is compared.
static_assert(can<Equal, UserStyle, UserStyle> && can<Differ, AudioEffect, AudioEffect>);
static_assert(can<Equal, StoredStyle, UserStyle> && can<Equal, MutableStyle, Style>);
static_assert(can<Equal, Manager, ManagerView> && can<Differ, Parameter, StoredParameter>);
static_assert(!can<Equal, SystemStyle, UserStyle> && !can<Differ, MutableStyle, StoredStyle>);
static_assert(!can<Equal, AudioEffect, MidiEffect> && !can<Equal, Style, Effect>);
static_assert(!can<Equal, UserStyle, std::nullptr_t> && !can<Equal, UserStyle, KoStyleStyle*>);

// Both kinds of text are taken, and a bare nullptr, which could be either, is not.
static_assert(becomes<const char*, const TextArgument&> &&
              becomes<const KoStyleChar*, const TextArgument&>);
static_assert(!becomes<std::nullptr_t, const TextArgument&> && !becomes<int, const TextArgument&>);

TEST(CppKinds, AreToldApartByTheCompiler) { SUCCEED() << "what is above has been compiled"; }

}  // namespace
