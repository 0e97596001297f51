// The exported functions as the library's own sources see them: the public declarations, with the
// interfaces in the place of the host's opaque handles. The compiler thereby checks each definition
// against what hosts are told.
#pragma once

#include "interfaces/interfaces.h"

using KoStyleManager = Tesk::KoStyle::IStyleManager;
using KoStyleStyle = Tesk::KoStyle::IStyleBase;
using KoStyleEffect = Tesk::KoStyle::IEffectBase;
using KoStyleParameter = Tesk::KoStyle::IParameterBase;
using KoStyleCreationResult = Tesk::KoStyle::IStyleCreationResult;
using KoStylePropertyEditor = Tesk::KoStyle::IPropertyEditor;

#include <kostyle/kostyle.h>
