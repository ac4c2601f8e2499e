/*
 * sibdump --udp when its receive buffer overflows: every datagram sent over loopback is either
 * read or counted as dropped by the kernel, in the counts and in the summary.
 */
#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/wait.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "capture_writer.h"
#include "sibdump_child.h"

namespace {

/* The number before `what` in `text` ("... 12 datagrams read"), or -1. */
long count_before(const std::string& text, const std::string& what) {
  const size_t at = text.find(what);
  size_t start = at;
  while (start != std::string::npos && start > 0 && text[start - 1] >= '0' && text[start - 1] <= '9') start--;
  return at == std::string::npos || start == at ? -1 : std::atol(text.c_str() + start);
}

/* sibdump is stopped (SIGSTOP) while 300 datagrams arrive at a receive buffer of 4 KiB, which
   holds a few: the kernel drops the rest, sibdump reads what was kept once it goes on, and
   its counts add up to what was sent. */
TEST(LiveDrops, OverfilledReceiveBufferIsCountedExactly) {
#ifndef __linux__
  GTEST_SKIP() << "the kernel's drop count is read on Linux only";
#endif
  std::vector<capture::Bytes> datagrams;
  std::ifstream in(UMTS_SAMPLES_DIR "/fdd_cell.bch");
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line[0] == '#') continue;
    capture::GsmtapMessage m;
    m.arfcn = 10700;
    for (size_t i = 0; i + 1 < line.size(); i += 2)
      m.message.push_back(static_cast<uint8_t>(std::stoul(line.substr(i, 2), nullptr, 16)));
    datagrams.push_back(capture::gsmtap_datagram(m));
  }
  ASSERT_FALSE(datagrams.empty());

  Child c = spawn_sibdump(SIBDUMP_PATH, {"--udp", "127.0.0.1:0", "--udp-buffer", "4K", "--summary=json"});
  ASSERT_GT(c.pid, 0);
  std::string err, out;
  const std::string prefix = "sibdump: listening for GSMTAP on 127.0.0.1:";
  ASSERT_TRUE(read_until(c.err, &err, [](const std::string& t) { return t.find(" (interrupt to stop)\n") != std::string::npos; }))
      << err;
  ASSERT_EQ(err.rfind(prefix, 0), 0u) << err;
  const int port = std::atoi(err.c_str() + prefix.size());

  ASSERT_EQ(kill(c.pid, SIGSTOP), 0);
  const int fd = socket(AF_INET, SOCK_DGRAM, 0);
  ASSERT_GE(fd, 0);
  sockaddr_in to;
  std::memset(&to, 0, sizeof to);
  to.sin_family = AF_INET;
  to.sin_port = htons(static_cast<uint16_t>(port));
  to.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  long sent = 0;
  for (size_t k = 0; k < 300; k++) {
    const capture::Bytes& d = datagrams[k % datagrams.size()];
    if (sendto(fd, d.data(), d.size(), 0, reinterpret_cast<sockaddr*>(&to), sizeof to) == static_cast<ssize_t>(d.size()))
      sent++;
  }
  /* A datagram to this test's own socket, received back: the loopback device has delivered
     those sent before it, so that each is now queued or dropped. */
  const int probe = socket(AF_INET, SOCK_DGRAM, 0);
  sockaddr_in self = to;
  self.sin_port = 0;
  socklen_t self_length = sizeof self;
  const timeval limit = {60, 0};
  ASSERT_EQ(bind(probe, reinterpret_cast<sockaddr*>(&self), sizeof self), 0);
  getsockname(probe, reinterpret_cast<sockaddr*>(&self), &self_length);
  setsockopt(probe, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
  char byte = 0;
  sendto(fd, &byte, 1, 0, reinterpret_cast<sockaddr*>(&self), sizeof self);
  EXPECT_EQ(recv(probe, &byte, 1, 0), 1);
  close(probe);
  close(fd);
  kill(c.pid, SIGCONT);
  kill(c.pid, SIGINT);
  read_until(c.err, &err, [](const std::string&) { return false; }); /* to the end */
  read_until(c.out, &out, [](const std::string&) { return false; });
  int status = 0;
  waitpid(c.pid, &status, 0);
  close(c.out);
  close(c.err);
  ASSERT_TRUE(WIFEXITED(status)) << err;
  EXPECT_EQ(WEXITSTATUS(status), 0) << err;

  const long read = count_before(err, " datagrams read,");
  const long dropped = count_before(err, " datagrams dropped by the kernel before they were read (receive buffer 4 KiB)\n");
  EXPECT_EQ(sent, 300);
  EXPECT_GT(read, 0) << err;
  EXPECT_GT(dropped, 0) << err;
  EXPECT_EQ(read + dropped, sent) << err;
  /* The cell's summary, written at the end, says the same count. */
  EXPECT_NE(out.find("\"datagrams_dropped_by_kernel\":" + std::to_string(dropped) + ","), std::string::npos) << out;
}

}  // namespace
