// MutableStyle: the host's workspace for a new style or a changed copy of one.
#pragma once

#include "model/style_base.h"

namespace Tesk::KoStyle {

class MutableStyle final : public IMutableStyle, public StyleBase {
 public:
  explicit MutableStyle(StyleManager* parent) : StyleBase(parent, StyleKind::editable) {}

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

 private:
  template <class MutableKind>
  MutableKind* insertEffect(std::size_t index, const Char* id);
};

}  // namespace Tesk::KoStyle
