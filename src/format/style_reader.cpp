#include "format/style_reader.h"

namespace Tesk::KoStyle {
namespace {

StyleSequence::NodeHandle makeStyle(StyleKind kind, StyleOwner* owner, StyleSequence& styles) {
  switch (kind) {
    case StyleKind::system:
      return styles.makeNode<SystemStyle>(owner);
    case StyleKind::user:
      return styles.makeNode<UserStyle>(owner);
    case StyleKind::mutableStyle:
      break;
  }
  return {};
}

}  // namespace

StyleSequence::NodeHandle StyleReader::read(StyleKind kind, StyleOwner* owner, StyleSequence& styles,
                                            TextView path, std::FILE* file, StyleReadOutcome& outcome) {
  if (const rapidjson::ParseResult result = parser_.parse(file); result.IsError()) {
    outcome.error = KOSTYLE_ERROR_JSON_SYNTAX;
    outcome.parseError = static_cast<std::uint32_t>(result.Code());
    outcome.parseErrorOffset = result.Offset();
    return {};
  }
  auto style = makeStyle(kind, owner, styles);
  if (!style) {
    outcome.error = KOSTYLE_ERROR_NO_STYLE_FOR_KIND;
    return {};
  }
  if (!documents_.read(parser_.document(), path, *style, outcome)) style = {};
  return style;
}

}  // namespace Tesk::KoStyle
