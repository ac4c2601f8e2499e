/*
 * sibdump as a child process of a test: started with its standard output and error on pipes,
 * read as it writes (live input).
 */
#ifndef UMTS_TESTS_SIBDUMP_CHILD_H
#define UMTS_TESTS_SIBDUMP_CHILD_H

#include <poll.h>
#include <unistd.h>

#include <chrono>
#include <string>
#include <vector>

struct Child {
  pid_t pid = -1;
  int out = -1;
  int err = -1;
};

inline Child spawn_sibdump(const std::string& sibdump, const std::vector<std::string>& args) {
  int out[2], err[2];
  Child c;
  if (pipe(out) != 0 || pipe(err) != 0) return c;
  c.pid = fork();
  if (c.pid == 0) {
    dup2(out[1], 1);
    dup2(err[1], 2);
    close(out[0]);
    close(err[0]);
    std::vector<char*> argv;
    argv.push_back(const_cast<char*>(sibdump.c_str()));
    for (const std::string& a : args) argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);
    execv(argv[0], argv.data());
    _exit(127);
  }
  close(out[1]);
  close(err[1]);
  c.out = out[0];
  c.err = err[0];
  return c;
}

/* Reads from `fd` into `text` until `done(text)` or the time is up (60 s: a loaded machine
   running the sanitizer tree is slow to start the tool). */
template <class Done>
inline bool read_until(int fd, std::string* text, Done done) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
  while (!done(*text)) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
    if (left.count() <= 0) return false;
    pollfd p = {fd, POLLIN, 0};
    if (poll(&p, 1, static_cast<int>(left.count())) <= 0) continue;
    char buf[4096];
    const ssize_t n = read(fd, buf, sizeof buf);
    if (n <= 0) return done(*text);
    text->append(buf, static_cast<size_t>(n));
  }
  return true;
}

#endif /* UMTS_TESTS_SIBDUMP_CHILD_H */
