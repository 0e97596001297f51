#include <fmt/core.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string>
#include <system_error>

#include "basics/failure.h"
#include "writing/editor.h"

namespace tool {
namespace {

std::string editorCommand() {
  for (const char* const name : {"VISUAL", "EDITOR"}) {
    const char* const command = std::getenv(name);
    if (command && *command != 0) return command;
  }
  throw Refused("no editor is known: VISUAL or EDITOR must name one, such as EDITOR=nano");
}

// The keys that end a program are the editor's while it runs.
class KeysForEditor {
 public:
  KeysForEditor() {
    struct sigaction ignored {};
    ignored.sa_handler = SIG_IGN;
    for (std::size_t i = 0; i < signals.size(); ++i) sigaction(signals[i], &ignored, &before_[i]);
  }
  KeysForEditor(const KeysForEditor&) = delete;
  KeysForEditor& operator=(const KeysForEditor&) = delete;
  ~KeysForEditor() {
    for (std::size_t i = 0; i < signals.size(); ++i) sigaction(signals[i], &before_[i], nullptr);
  }

  static constexpr std::array<int, 2> signals{SIGINT, SIGQUIT};

 private:
  std::array<struct sigaction, 2> before_{};
};

// Starts a command with one more argument, as the shell splits it; gives its process.
pid_t start(std::string command, std::string argument) {
  std::string shell = "sh";
  std::string option = "-c";
  std::string script = command + " \"$@\"";
  const std::array<char*, 6> arguments{shell.data(),   option.data(),   script.data(),
                                       command.data(), argument.data(), nullptr};
  sigset_t usual;
  sigemptyset(&usual);
  for (const int signal : KeysForEditor::signals) sigaddset(&usual, signal);
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setsigdefault(&attributes, &usual);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
  pid_t process = 0;
  const int error = posix_spawn(&process, "/bin/sh", nullptr, &attributes, arguments.data(), environ);
  posix_spawnattr_destroy(&attributes);
  if (error != 0)
    throw Refused(fmt::format("the editor {} cannot be started: {}", command,
                              std::generic_category().message(error)));
  return process;
}

}  // namespace

void requireEditor() { editorCommand(); }

void runEditor(const fs::path& file) {
  const std::string command = editorCommand();
  int status = 0;
  {
    const KeysForEditor keys;
    const pid_t process = start(command, file.native());
    while (waitpid(process, &status, 0) < 0)
      if (errno != EINTR) throw Refused(fmt::format("the editor {} is lost", command));
  }
  if (WIFSIGNALED(status))
    throw Refused(fmt::format("the editor {} was ended by signal {}", command, WTERMSIG(status)));
  if (WEXITSTATUS(status) != 0)
    throw Refused(fmt::format("the editor {} ended with exit code {}", command, WEXITSTATUS(status)));
}

}  // namespace tool
