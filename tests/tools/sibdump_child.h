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
  struct {
    pid_t pid = -1;
    int out = -1, err = -1;
  } c; /* the child and its standard output and error */
  int port = 0;
  int fd = -1;
  std::string out, err;

  explicit LiveSibdump(const std::string& sibdump, const std::vector<std::string>& more = {}) {
    int out_pipe[2], err_pipe[2];
    if (pipe(out_pipe) != 0 || pipe(err_pipe) != 0) return;
    c.pid = fork();
    if (c.pid == 0) {
      dup2(out_pipe[1], 1);
      dup2(err_pipe[1], 2);
      close(out_pipe[0]);
      close(err_pipe[0]);
      std::vector<char*> argv = {const_cast<char*>(sibdump.c_str()), const_cast<char*>("--udp"),
                                 const_cast<char*>("127.0.0.1:0")};
      for (const std::string& a : more) argv.push_back(const_cast<char*>(a.c_str()));
      argv.push_back(nullptr);
      execv(argv[0], argv.data());
      _exit(127);
    }
    close(out_pipe[1]);
    close(err_pipe[1]);
    c.out = out_pipe[0];
    c.err = err_pipe[0];
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
