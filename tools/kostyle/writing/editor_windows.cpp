#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <fmt/core.h>
#include <windows.h>

#include <string>
#include <system_error>

#include "basics/failure.h"
#include "writing/editor.h"

namespace tool {
namespace {

std::wstring variable(const wchar_t* name) {
  std::wstring value(GetEnvironmentVariableW(name, nullptr, 0), L'\0');
  const DWORD length = GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size()));
  value.resize(length < value.size() ? length : 0);
  return value;
}

std::wstring editorCommand() {
  for (const wchar_t* const name : {L"VISUAL", L"EDITOR"})
    if (std::wstring command = variable(name); !command.empty()) return command;
  throw Refused("no editor is known: VISUAL or EDITOR must name one, such as EDITOR=notepad");
}

// The keys that end a program are the editor's while it runs.
BOOL WINAPI leaveToEditor(DWORD event) { return event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT; }

class KeysForEditor {
 public:
  KeysForEditor() { SetConsoleCtrlHandler(leaveToEditor, TRUE); }
  KeysForEditor(const KeysForEditor&) = delete;
  KeysForEditor& operator=(const KeysForEditor&) = delete;
  ~KeysForEditor() { SetConsoleCtrlHandler(leaveToEditor, FALSE); }
};

}  // namespace

void requireEditor() { editorCommand(); }

void runEditor(const fs::path& file) {
  const std::wstring command = editorCommand();
  const std::wstring shell = variable(L"ComSpec");
  // The shell would take a path apart that has percent signs; what a variable holds it leaves alone.
  const wchar_t* const fileVariable = L"KOSTYLE_EDITED_FILE";
  SetEnvironmentVariableW(fileVariable, file.c_str());
  std::wstring line = L"cmd.exe /d /s /c \"" + command + L" \"%" + fileVariable + L"%\"\"";
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  const KeysForEditor keys;
  if (!CreateProcessW(shell.empty() ? nullptr : shell.c_str(), line.data(), nullptr, nullptr, TRUE, 0,
                      nullptr, nullptr, &startup, &process)) {
    const std::error_code error(static_cast<int>(GetLastError()), std::system_category());
    throw Refused(fmt::format("the editor {} cannot be started: {}", toUtf8(command), error.message()));
  }
  DWORD exitCode = 0;
  WaitForSingleObject(process.hProcess, INFINITE);
  GetExitCodeProcess(process.hProcess, &exitCode);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  if (exitCode != 0)
    throw Refused(fmt::format("the editor {} ended with exit code {}", toUtf8(command), exitCode));
}

}  // namespace tool
