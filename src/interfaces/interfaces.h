// The interfaces behind the exported handles.
//
// The order of the operations is part of the interface: exports that share an entry point call by
// position. So an interface has no virtual destructor, except where the order ends
// with one; objects are destroyed through their implementation bases. A handle is a pointer to the base
// interface of its family, which is a virtual base of the others; those are reached by a checked
// downcast.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/text.h"

namespace Tesk::KoStyle {

class IStyleBase;
class ISystemStyle;
class IUserStyle;
class IMutableStyle;
class IAudioEffect;
class IMidiEffect;
class IMutableAudioEffect;
class IMutableMidiEffect;
class IParameter;
class IMutableParameter;
class IStyle;

// --- Parameters

class IParameterBase {
 public:
  virtual std::uint32_t type() const = 0;
  virtual const Char* name() const = 0;
  virtual std::int32_t valueInt() const = 0;
  virtual float valueFloat() const = 0;
  virtual const Char* valueString() const = 0;

 protected:
  ~IParameterBase() = default;
};

class IEffect;
class IMutableEffect;

class IParameter : public virtual IParameterBase {
 public:
  virtual IEffect* parent() const = 0;
  virtual IParameter* next() const = 0;
  virtual IParameter* prev() const = 0;

 protected:
  ~IParameter() = default;
};

class IMutableParameter : public virtual IParameterBase {
 public:
  virtual void destroy() = 0;
  virtual IMutableEffect* parent() const = 0;
  virtual IMutableParameter* next() const = 0;
  virtual IMutableParameter* prev() const = 0;
  virtual bool setName(const Char* name) = 0;
  virtual void setValueInt(const std::int32_t& value) = 0;
  virtual void setValueFloat(const float& value) = 0;
  virtual void setValueString(const Char* value) = 0;

 protected:
  ~IMutableParameter() = default;
};

// --- Effects

class IEffectBase {
 public:
  virtual std::uint32_t type() const = 0;
  virtual const Char* id() const = 0;
  virtual std::size_t numParameter() const = 0;
  virtual bool hasParameter(IParameterBase* parameter) const = 0;

 protected:
  ~IEffectBase() = default;
};

class IEffect : public virtual IEffectBase {
 public:
  virtual IStyle* parent() const = 0;
  virtual IParameter* parameter(const std::size_t& index) const = 0;

 protected:
  ~IEffect() = default;
};

class IAudioEffect : public virtual IEffect {
 public:
  virtual IAudioEffect* next() const = 0;
  virtual IAudioEffect* prev() const = 0;

 protected:
  ~IAudioEffect() = default;
};

class IMidiEffect : public virtual IEffect {
 public:
  virtual IMidiEffect* next() const = 0;
  virtual IMidiEffect* prev() const = 0;

 protected:
  ~IMidiEffect() = default;
};

class IMutableEffect : public virtual IEffectBase {
 public:
  virtual void destroy() = 0;
  virtual IMutableStyle* parent() const = 0;
  virtual IMutableParameter* parameter(const std::size_t& index) const = 0;
  virtual bool move(const std::size_t& index) = 0;
  virtual IMutableParameter* addParameter(const Char* name) = 0;

 protected:
  ~IMutableEffect() = default;
};

class IMutableAudioEffect : public virtual IMutableEffect {
 public:
  virtual IMutableAudioEffect* next() const = 0;
  virtual IMutableAudioEffect* prev() const = 0;

 protected:
  ~IMutableAudioEffect() = default;
};

class IMutableMidiEffect : public virtual IMutableEffect {
 public:
  virtual IMutableMidiEffect* next() const = 0;
  virtual IMutableMidiEffect* prev() const = 0;

 protected:
  ~IMutableMidiEffect() = default;
};

// --- Creation results

class IStyleCreationResult {
 public:
  virtual IStyleCreationResult* next() const = 0;
  virtual IStyleCreationResult* prev() const = 0;
  virtual std::uint32_t error() const = 0;
  virtual const Char* filePath() const = 0;
  virtual const Char* id() const = 0;
  virtual std::uint32_t type() const = 0;
  virtual const Char* jsonPath() const = 0;
  virtual std::uint32_t parseError() const = 0;
  virtual std::uint64_t parseErrorOffset() const = 0;

 protected:
  ~IStyleCreationResult() = default;
};

// --- Managers

class IStyleManager {
 public:
  virtual void destroy() = 0;
  virtual const Char* appID() const = 0;
  virtual const Char* systemStyleDirPath() const = 0;
  virtual std::size_t numSystemStyleCreationResult() const = 0;
  virtual IStyleCreationResult* systemStyleCreationResult(const std::size_t& index) const = 0;
  virtual std::size_t numSystemStyle() const = 0;
  virtual ISystemStyle* systemStyle(const std::size_t& index) const = 0;
  virtual bool hasSystemStyle(ISystemStyle* style) const = 0;
  virtual const Char* userStyleDirPath() const = 0;
  virtual std::size_t numUserStyleCreationResult() const = 0;
  virtual IStyleCreationResult* userStyleCreationResult(const std::size_t& index) const = 0;
  virtual std::size_t numUserStyle() const = 0;
  virtual IUserStyle* userStyle(const std::size_t& index) const = 0;
  virtual bool hasUserStyle(IUserStyle* style) const = 0;
  virtual bool hasMutableStyle(IMutableStyle* style) const = 0;
  virtual int readSystemStyles() = 0;
  virtual int readUserStyles() = 0;
  virtual IMutableStyle* createMutableStyle() = 0;

 protected:
  ~IStyleManager() = default;
};

// --- Property editors

class IPropertyEditor {
 public:
  virtual bool setStyleName(const Char* name) = 0;
  virtual bool addSubGenre(const Char* subGenre) = 0;
  virtual bool addColor(const Char* color) = 0;
  virtual bool save(const bool& pretty) = 0;
  virtual ~IPropertyEditor() = default;
};

// --- Styles

class IStyleBase {
 public:
  virtual IStyleManager* parent() const = 0;
  virtual std::uint32_t type() const = 0;
  virtual const Char* id() const = 0;
  virtual const Char* path() const = 0;
  virtual const Char* name() const = 0;
  virtual std::size_t numLanguage() const = 0;
  virtual std::int32_t language(const std::size_t& index) const = 0;
  virtual int minLangID() const = 0;
  virtual int maxLangID() const = 0;
  virtual std::size_t numSingerGroup() const = 0;
  virtual const Char* singerGroup(const std::size_t& index) const = 0;
  virtual std::size_t numSingerID() const = 0;
  virtual const Char* singerID(const std::size_t& index) const = 0;
  virtual int singerIDLength() const = 0;
  virtual std::size_t numGenre() const = 0;
  virtual const Char* genre(const std::size_t& index) const = 0;
  virtual std::size_t numSubGenre() const = 0;
  virtual const Char* subGenre(const std::size_t& index) const = 0;
  virtual std::size_t numColor() const = 0;
  virtual const Char* color(const std::size_t& index) const = 0;
  virtual std::size_t numAudioEffect() const = 0;
  virtual std::size_t numMidiEffect() const = 0;
  virtual bool hasAudioEffect(IEffectBase* effect) const = 0;
  virtual bool hasMidiEffect(IEffectBase* effect) const = 0;

 protected:
  ~IStyleBase() = default;
};

class IStyle : public virtual IStyleBase {
 public:
  virtual const Char* vendor() const = 0;
  virtual IAudioEffect* audioEffect(const std::size_t& index) const = 0;
  virtual IMidiEffect* midiEffect(const std::size_t& index) const = 0;

 protected:
  ~IStyle() = default;
};

class ISystemStyle : public virtual IStyle {
 public:
  virtual ISystemStyle* next() const = 0;
  virtual ISystemStyle* prev() const = 0;

 protected:
  ~ISystemStyle() = default;
};

class IUserStyle : public virtual IStyle {
 public:
  virtual IUserStyle* next() const = 0;
  virtual IUserStyle* prev() const = 0;
  virtual int remove() = 0;
  virtual IPropertyEditor* createPropertyEditor() = 0;
  virtual void destroyPropertyEditor() = 0;

 protected:
  ~IUserStyle() = default;
};

class IMutableStyle : public virtual IStyleBase {
 public:
  virtual void destroy() = 0;
  virtual IMutableAudioEffect* audioEffect(const std::size_t& index) const = 0;
  virtual IMutableMidiEffect* midiEffect(const std::size_t& index) const = 0;
  virtual bool setName(const Char* name) = 0;
  virtual bool addLanguage(const std::int32_t& language) = 0;
  virtual bool deleteLanguage(const std::int32_t& language) = 0;
  virtual bool addSingerGroup(const Char* singerGroup) = 0;
  virtual bool deleteSingerGroup(const Char* singerGroup) = 0;
  virtual bool addSingerID(const Char* singerID) = 0;
  virtual bool deleteSingerID(const Char* singerID) = 0;
  virtual bool addGenre(const Char* genre) = 0;
  virtual bool deleteGenre(const Char* genre) = 0;
  virtual bool addSubGenre(const Char* subGenre) = 0;
  virtual bool deleteSubGenre(const Char* subGenre) = 0;
  virtual bool addColor(const Char* color) = 0;
  virtual bool deleteColor(const Char* color) = 0;
  virtual IMutableAudioEffect* insertAudioEffect(const std::size_t& index, const Char* id) = 0;
  virtual IMutableMidiEffect* insertMidiEffect(const std::size_t& index, const Char* id) = 0;
  virtual IUserStyle* save(const bool& pretty, std::uint32_t* error) = 0;
  virtual IUserStyle* overwrite(const Char* targetID, const bool& pretty, std::uint32_t* error) = 0;

 protected:
  ~IMutableStyle() = default;
};

}  // namespace Tesk::KoStyle
