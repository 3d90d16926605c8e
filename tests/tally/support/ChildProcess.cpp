// SPDX-License-Identifier: MIT
#include "tests/tally_support/ChildProcess.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <optional>
#include <stdexcept>

namespace mivo::tally::test {
namespace {

constexpr std::chrono::seconds patience{30};

std::optional<std::string> lineWith(std::string_view output, std::string_view text) {
  const auto found = output.find(text);
  const auto end = found == std::string_view::npos ? found : output.find('\n', found);
  if (end == std::string_view::npos) return std::nullopt;
  const auto before = output.rfind('\n', found);
  const auto begin = before == std::string_view::npos ? 0 : before + 1;
  return std::string{output.substr(begin, end - begin)};
}

// execvp's list of words; made before the fork, after which a child of many threads must not allocate.
std::vector<char*> wordsOf(const std::vector<std::string>& command) {
  std::vector<char*> words;
  for (const auto& word : command) words.push_back(const_cast<char*>(word.c_str()));
  words.push_back(nullptr);
  return words;
}

[[noreturn]] void become(const std::vector<char*>& words, int output) {
  ::dup2(output, STDOUT_FILENO);
  ::dup2(output, STDERR_FILENO);
  ::execvp(words[0], words.data());
  ::_exit(127);
}

}  // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& command) {
  const auto words = wordsOf(command);
  std::array<int, 2> pipe{};
  if (::pipe2(pipe.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  processId = ::fork();
  if (processId == 0) become(words, pipe[1]);
  ::close(pipe[1]);
  if (processId < 0) throw std::runtime_error("no process");
  reader = std::jthread{[this, from = pipe[0]] { gather(from); }};
}

ChildProcess::~ChildProcess() { kill(); }

void ChildProcess::gather(int descriptor) {
  std::array<char, 4096> bytes{};
  for (;;) {
    const auto size = ::read(descriptor, bytes.data(), bytes.size());
    if (size < 0 && errno == EINTR) continue;
    const std::lock_guard guard{mutex};
    if (size > 0) written.append(bytes.data(), static_cast<std::size_t>(size));
    hasEnded = size <= 0;
    changed.notify_all();
    if (hasEnded) break;
  }
  ::close(descriptor);
}

void ChildProcess::send(int signal) const { ::kill(processId, signal); }

void ChildProcess::kill() {
  if (processId < 0) return;
  ::kill(processId, SIGKILL);
  ::waitpid(processId, nullptr, 0);
  processId = -1;
}

std::string ChildProcess::killAfter(std::chrono::milliseconds time) {
  std::unique_lock lock{mutex};
  changed.wait_for(lock, time, [this] { return hasEnded; });
  lock.unlock();
  kill();
  lock.lock();
  changed.wait(lock, [this] { return hasEnded; });
  return written;
}

int ChildProcess::wait() {
  {
    std::unique_lock lock{mutex};
    if (!changed.wait_for(lock, patience, [this] { return hasEnded; }))
      throw std::runtime_error("the program does not end: " + written);
  }
  int status = 0;
  ::waitpid(processId, &status, 0);
  processId = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

std::string ChildProcess::output() const {
  const std::lock_guard guard{mutex};
  return written;
}

std::string ChildProcess::waitForLine(std::string_view text) const {
  std::unique_lock lock{mutex};
  std::optional<std::string> line;
  changed.wait_for(lock, patience, [&] {
    line = lineWith(written, text);
    return line || hasEnded;
  });
  if (!line) throw std::runtime_error("no line says \"" + std::string{text} + "\": " + written);
  return *line;
}

std::chrono::milliseconds killTime(int round, std::chrono::milliseconds usual) {
  return round % 20 == 19 ? std::chrono::minutes{1} : usual * (round % 20) / 16;
}

}  // namespace mivo::tally::test
