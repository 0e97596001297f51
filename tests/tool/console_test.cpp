// What a console of Windows shows.
#if defined(_WIN32)

#include "tool/tool.h"

namespace test {
namespace {

// A console's screen, to which a program can print.
class Screen {
 public:
  Screen() {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    handle_ =
        CreateConsoleScreenBuffer(GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                  &inherited, CONSOLE_TEXTMODE_BUFFER, nullptr);
  }
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  ~Screen() {
    if (isOpen()) CloseHandle(handle_);
  }
  bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE handle() const { return handle_; }

  std::wstring line(SHORT number) const {
    CONSOLE_SCREEN_BUFFER_INFO info{};
    GetConsoleScreenBufferInfo(handle_, &info);
    std::wstring text(static_cast<std::size_t>(info.dwSize.X), L' ');
    DWORD count = 0;
    ReadConsoleOutputCharacterW(handle_, text.data(), static_cast<DWORD>(text.size()), {0, number},
                                &count);
    text.resize(count);
    return text;
  }

 private:
  HANDLE handle_;
};

int runOn(const Screen& screen, const Arguments& arguments) {
  const std::wstring application = fs::absolute(fs::u8path(KOSTYLE_TOOL)).make_preferred().native();
  std::wstring commandLine = quotedArgument(application);
  for (const auto& argument : arguments) commandLine += L' ' + quotedArgument(text(argument));
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
  startup.hStdOutput = screen.handle();
  startup.hStdError = screen.handle();
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(application.c_str(), commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr,
                      nullptr, &startup, &process))
    throw std::runtime_error("cannot start the tool");
  DWORD exitCode = 0;
  WaitForSingleObject(process.hProcess, INFINITE);
  GetExitCodeProcess(process.hProcess, &exitCode);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return static_cast<int>(exitCode);
}

TEST(Console, ShowsUnicode) {
  AllocConsole();  // fails where there is one already
  const Screen screen;
  if (!screen.isOpen()) GTEST_SKIP() << "no console can be had here: " << GetLastError();
  const TemporaryDirectory directory;
  writeFile(directory / "a.kostyle", document("a", "Зимняя дорога é"));
  EXPECT_EQ(runOn(screen, {"show", argument(directory / "a.kostyle")}), 0);
  EXPECT_EQ(screen.line(0).substr(0, 15), L"Зимняя дорога é");
  EXPECT_EQ(screen.line(1).substr(0, 8), L"├─ id: a");
}

TEST(Console, ShowsUnicodeInErrors) {
  AllocConsole();
  const Screen screen;
  if (!screen.isOpen()) GTEST_SKIP() << "no console can be had here: " << GetLastError();
  EXPECT_EQ(runOn(screen, {"show", "дорога"}), 2);
  EXPECT_EQ(screen.line(0).substr(0, 15), L"kostyle: дорога");
}

}  // namespace
}  // namespace test

#endif
