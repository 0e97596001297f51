// MutableStyle: a style in memory that the host changes piece by piece and saves.
#pragma once

#include <cstddef>
#include <cstdint>

#include "containers/memory_pool.h"
#include "containers/sorted_texts.h"
#include "model/attributes.h"
#include "model/mutable_effect.h"
#include "model/style_with.h"

namespace Tesk::KoStyle {

struct MutableContent {
  MutableContent() = default;
  MutableContent(const MutableContent&) = delete;
  MutableContent& operator=(const MutableContent&) = delete;
  ~MutableContent() { pool.abandon(); }

  MemoryPool pool;  // of the lists and chains
  Text name;
  Attributes<SortedTexts> attributes{&pool};
  MutableChain audioEffects{&pool};
  MutableChain midiEffects{&pool};
};

class MutableStyle final : public StyleWith<MutableContent>, public IMutableStyle {
 public:
  explicit MutableStyle(StyleOwner* owner) : StyleWith(owner, StyleKind::mutableStyle) {}

  // It has neither; a saved one gets them.
  const Char* id() const override { return TextView(KOSTYLE_TEXT("")).data(); }
  const Char* path() const override { return TextView(KOSTYLE_TEXT("")).data(); }

  void destroy() override;
  IMutableAudioEffect* audioEffect(const std::size_t& index) const override;
  IMutableMidiEffect* midiEffect(const std::size_t& index) const override;
  bool setName(const Char* name) override;
  bool addLanguage(const std::int32_t& language) override;
  bool deleteLanguage(const std::int32_t& language) override;
  bool addSingerGroup(const Char* singerGroup) override;
  bool deleteSingerGroup(const Char* singerGroup) override;
  bool addSingerID(const Char* singerID) override;
  bool deleteSingerID(const Char* singerID) override;
  bool addGenre(const Char* genre) override;
  bool deleteGenre(const Char* genre) override;
  bool addSubGenre(const Char* subGenre) override;
  bool deleteSubGenre(const Char* subGenre) override;
  bool addColor(const Char* color) override;
  bool deleteColor(const Char* color) override;
  IMutableAudioEffect* insertAudioEffect(const std::size_t& index, const Char* id) override;
  IMutableMidiEffect* insertMidiEffect(const std::size_t& index, const Char* id) override;
  IUserStyle* save(const bool& pretty, std::uint32_t* error) override;
  IUserStyle* overwrite(const Char* targetID, const bool& pretty, std::uint32_t* error) override;

  MemoryPool& pool() noexcept { return content().pool; }

  MutableChain& chain(EffectKind kind) noexcept {
    return kind == EffectKind::audio ? content().audioEffects : content().midiEffects;
  }

 private:
  bool add(Attribute attribute, const Char* text);
  bool erase(Attribute attribute, const Char* text);
  template <class EffectType>
  EffectType* insertEffect(std::size_t index, const Char* id);
};

}  // namespace Tesk::KoStyle
