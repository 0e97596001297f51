// Runs a program to its end and keeps what it printed.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/temporary_directory.h"

#if defined(_WIN32)
#include "support/windows_api.h"
#else
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

extern char** environ;
#endif

namespace test {

struct Outcome {
  int exitCode;
  std::string out;
  std::string err;
};

#if defined(_WIN32)

/// An argument as the C runtime takes it apart again.
inline std::wstring quotedArgument(const std::wstring& argument) {
  std::wstring quoted = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t unit : argument) {
    if (unit == L'"') quoted.append(backslashes + 1, L'\\');
    backslashes = unit == L'\\' ? backslashes + 1 : 0;
    quoted += unit;
  }
  return quoted.append(backslashes, L'\\') + L'"';
}

inline HANDLE createInherited(const fs::path& path) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  const DWORD attributes = FILE_ATTRIBUTE_NORMAL;
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited,
                                  CREATE_ALWAYS, attributes, nullptr);
  if (file == INVALID_HANDLE_VALUE) throw std::runtime_error("cannot create " + path.string());
  return file;
}

inline HANDLE openInherited(const fs::path& path) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, &inherited,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) throw std::runtime_error("cannot open " + path.string());
  return file;
}

/// The program's standard input is a file when one is named.
inline int runTo(const fs::path& out, const fs::path& err, const std::string& program,
                 const std::vector<std::string>& arguments, const fs::path& in = {}) {
  const std::wstring application = fs::absolute(fs::u8path(program)).make_preferred().native();
  std::wstring commandLine = quotedArgument(application);
  for (const auto& argument : arguments) commandLine += L' ' + quotedArgument(text(argument));
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  if (!in.empty()) startup.hStdInput = openInherited(in);
  startup.hStdOutput = createInherited(out);
  startup.hStdError = createInherited(err);
  PROCESS_INFORMATION process{};
  // Of some ten thousand programs Wine does not start one (error 1359), and does so a moment later.
  bool started = false;
  DWORD error = ERROR_SUCCESS;
  for (int attempts = 3; !started && attempts > 0; --attempts) {
    if (error != ERROR_SUCCESS) Sleep(500);
    started = CreateProcessW(application.c_str(), commandLine.data(), nullptr, nullptr, TRUE, 0,
                             nullptr, nullptr, &startup, &process);
    if (!started) error = GetLastError();
  }
  DWORD exitCode = 0;
  if (started) {
    WaitForSingleObject(process.hProcess, INFINITE);
    GetExitCodeProcess(process.hProcess, &exitCode);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
  }
  if (!in.empty()) CloseHandle(startup.hStdInput);
  CloseHandle(startup.hStdOutput);
  CloseHandle(startup.hStdError);
  if (!started)
    throw std::runtime_error("cannot start " + program + ": error " + std::to_string(error));
  if (error != ERROR_SUCCESS) std::cerr << program << " did not start at once: error " << error << '\n';
  return static_cast<int>(exitCode);
}

#else

/// The program's standard input is a file when one is named.
inline int runTo(const fs::path& out, const fs::path& err, const std::string& program,
                 const std::vector<std::string>& arguments, const fs::path& in = {}) {
  std::vector<std::string> all{program};
  all.insert(all.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  for (std::string& argument : all) pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  constexpr int flags = O_WRONLY | O_CREAT | O_TRUNC;
  if (!in.empty()) posix_spawn_file_actions_addopen(&actions, 0, in.c_str(), O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, 1, out.c_str(), flags, 0600);
  posix_spawn_file_actions_addopen(&actions, 2, err.c_str(), flags, 0600);
  pid_t process = 0;
  const int error = posix_spawn(&process, program.c_str(), &actions, nullptr, pointers.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) throw std::runtime_error("cannot start " + program);
  int status = 0;
  waitpid(process, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

#endif

/// While the object lives, temporary files are made in another directory.
class OtherTemporaryPath {
 public:
  explicit OtherTemporaryPath(const fs::path& path) : before_(fs::temp_directory_path()) { set(path); }
  OtherTemporaryPath(const OtherTemporaryPath&) = delete;
  OtherTemporaryPath& operator=(const OtherTemporaryPath&) = delete;
  ~OtherTemporaryPath() { set(before_); }

 private:
  static void set(const fs::path& path) {
#if defined(_WIN32)
    SetEnvironmentVariableW(L"TMP", path.c_str());
#else
    setenv("TMPDIR", path.c_str(), 1);
#endif
  }

  fs::path before_;
};

/// Printed lines end in \n on every system.
inline std::string readPrinted(const fs::path& path) {
  const std::string text = readFile(path);
  std::string printed;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text.compare(i, 2, "\r\n") != 0) printed += text[i];
  }
  return printed;
}

/// Expects that the program leaves no temporary file.
inline Outcome run(const std::string& program, const std::vector<std::string>& arguments,
                   const fs::path& in = {}) {
  const TemporaryDirectory directory;
  const fs::path temporary = directory.folder("temporary");
  const OtherTemporaryPath other(temporary);
  const int exitCode = runTo(directory / "out", directory / "err", program, arguments, in);
  EXPECT_TRUE(fs::is_empty(temporary));
  return {exitCode, readPrinted(directory / "out"), readPrinted(directory / "err")};
}

}  // namespace test
