/*
 * sibdump's inputs beside hexadecimal text: pcap and pcapng captures of GSMTAP
 * (capture_input.cpp) and GSMTAP datagrams received live over UDP (udp_input.cpp).
 */
#ifndef UMTS_TOOLS_SIBDUMP_INPUTS_H
#define UMTS_TOOLS_SIBDUMP_INPUTS_H

#include <stddef.h>
#include <stdint.h>
#include <stdio.h>

#include <functional>

#include "cell_feed.h"
#include "umts_sib_decoder.h"

/* The default address of --udp, where phone-to-GSMTAP bridges send. */
#define SIBDUMP_UDP_DEFAULT "127.0.0.1:4729"

/* The receive buffer that --udp asks for, in bytes: about 40,000 datagrams of BCH blocks,
   0.4 s at 100,000 a second. */
#define SIBDUMP_UDP_BUFFER (16u << 20)

/* Looks at the first octets of `in` for the magic number of a pcap or pcapng file. Returns a
   stream that reads the same octets from the start (and closes `in` when closed, unless it
   is standard input), or null with a message. */
FILE* peek_input(FILE* in, const char* name, bool* is_capture);

/* False when sibdump was built without libpcap. */
bool capture_input_available();

/* Hands every frame of the capture `in` (which it closes) to `feed`; the messages about the
   capture as a whole go to `messages`. Returns the number of frames read, or -1 when the
   capture cannot be read at all (or sibdump has no capture input). */
long read_capture(FILE* in, const char* name, FrameSink& feed, FILE* messages);

/* read_capture, then the counts on `messages`. Returns the exit status: 0, 1 when some
   frames were bad or the capture was damaged, 2 when it cannot be read at all. */
int run_capture(FILE* in, const char* name, FrameSink& feed, FILE* messages);

/* The live input. */
struct UdpInput {
  const char* address = nullptr; /* [ADDRESS:]PORT; null: SIBDUMP_UDP_DEFAULT */
  size_t buffer = 0;             /* the receive buffer asked for, in bytes; 0: SIBDUMP_UDP_BUFFER */
  /* The datagrams that the kernel dropped so far, each time that count grows (before the
     datagram that brought the news is decoded) and at the end; may be empty. */
  std::function<void(uint64_t dropped)> dropped;
};

/* Listens for GSMTAP datagrams until interrupted (SIGINT or SIGTERM), then writes the
   counts. The records go to `output`, whose flush is called whenever the socket goes quiet;
   the cells' decoders print their text on `text` (null: nowhere). Returns the exit status. */
int run_udp(const UdpInput& input, umts_sib_set* set, const RecordOutput& output, FILE* text);

#endif /* UMTS_TOOLS_SIBDUMP_INPUTS_H */
