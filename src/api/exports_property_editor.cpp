#include "api/exports.h"
#include "api/handle.h"

using namespace Tesk::KoStyle;

bool PropertyEditor_setStyleName(KoStylePropertyEditor* editor, const Char* name) {
  return direct(editor, &IPropertyEditor::setStyleName, false, name);
}
bool PropertyEditor_addSubGenre(KoStylePropertyEditor* editor, const Char* subGenre) {
  return direct(editor, &IPropertyEditor::addSubGenre, false, subGenre);
}
bool PropertyEditor_addColor(KoStylePropertyEditor* editor, const Char* color) {
  return direct(editor, &IPropertyEditor::addColor, false, color);
}
bool PropertyEditor_save(KoStylePropertyEditor* editor, bool pretty) {
  return direct(editor, &IPropertyEditor::save, false, pretty);
}
