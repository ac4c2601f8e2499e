/*
 * sibdump as a child process of a test: started with its standard output and error on pipes,
 * read as it writes (live input), and fed GSMTAP datagrams over the loopback address.
 */
#ifndef UMTS_TESTS_SIBDUMP_CHILD_H
#define UMTS_TESTS_SIBDUMP_CHILD_H

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

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

/* sibdump --udp 127.0.0.1:0 with `more` arguments: the port that it reports, datagrams sent
   to it, and at stop() an interruption, both streams read to their end and the exit status. */
struct LiveSibdump {
  Child c;
  int port = 0;
  int fd = -1;
  std::string out, err;

  explicit LiveSibdump(const std::string& sibdump, std::vector<std::string> more = {}) {
    more.insert(more.begin(), {"--udp", "127.0.0.1:0"});
    c = spawn_sibdump(sibdump, more);
    const std::string prefix = "sibdump: listening for GSMTAP on 127.0.0.1:";
    if (c.pid > 0 && read_until(c.err, &err, [](const std::string& t) { return t.find(" (interrupt to stop)\n") != std::string::npos; }) &&
        err.rfind(prefix, 0) == 0)
      port = std::atoi(err.c_str() + prefix.size());
    fd = socket(AF_INET, SOCK_DGRAM, 0);
  }
  ~LiveSibdump() {
    if (c.pid > 0) stop();
  }
  bool send(const std::vector<uint8_t>& d) const {
    sockaddr_in to;
    std::memset(&to, 0, sizeof to);
    to.sin_family = AF_INET;
    to.sin_port = htons(static_cast<uint16_t>(port));
    to.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return sendto(fd, d.data(), d.size(), 0, reinterpret_cast<const sockaddr*>(&to), sizeof to) == static_cast<ssize_t>(d.size());
  }
  int stop() {
    if (fd >= 0) close(fd);
    fd = -1;
    kill(c.pid, SIGINT);
    read_until(c.out, &out, [](const std::string&) { return false; }); /* to the end */
    read_until(c.err, &err, [](const std::string&) { return false; });
    int status = 0;
    waitpid(c.pid, &status, 0);
    close(c.out);
    close(c.err);
    c.pid = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
};

#endif /* UMTS_TESTS_SIBDUMP_CHILD_H */
