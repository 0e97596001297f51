#include "format/json_writer.h"

namespace Tesk::KoStyle {

void FileOutput::Flush() noexcept {
  static_cast<void>(std::fwrite(block_, 1, size_, file_));
  size_ = 0;
}

}  // namespace Tesk::KoStyle
