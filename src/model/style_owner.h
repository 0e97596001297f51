// StyleOwner: a manager as its styles see it, which is all that a style asks of whoever owns it.
#pragma once

#include <cstdint>
#include <memory>

#include "interfaces/interfaces.h"
#include "platform/text.h"

namespace Tesk::KoStyle {

class MutableStyle;
class SystemStyle;
class UserStyle;

class StyleOwner : public IStyleManager {
 public:
  // The neighbours of a style in its set; null at the ends.
  virtual SystemStyle* next(const SystemStyle& style) const = 0;
  virtual SystemStyle* previous(const SystemStyle& style) const = 0;
  virtual UserStyle* next(const UserStyle& style) const = 0;
  virtual UserStyle* previous(const UserStyle& style) const = 0;

  /// Deletes a user style's file and destroys the style. Gives the code of UserStyle_remove().
  virtual int remove(UserStyle& style) = 0;

  virtual std::unique_ptr<IPropertyEditor> makePropertyEditor(UserStyle& style) = 0;

  /// Destroys a mutable style; ignores one that is not here.
  virtual void destroy(MutableStyle& style) = 0;

  // Each gives the user style that the mutable one, which is destroyed, became; null with a code in
  // `error` on failure.
  virtual IUserStyle* save(MutableStyle& style, bool pretty, std::uint32_t& error) = 0;
  virtual IUserStyle* overwrite(const Char* targetID, MutableStyle& style, bool pretty,
                                std::uint32_t& error) = 0;

  using IStyleManager::destroy;

 protected:
  ~StyleOwner() = default;
};

}  // namespace Tesk::KoStyle
