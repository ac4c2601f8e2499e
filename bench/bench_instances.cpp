// Decoder instances: the road of one instance next to the global entry's, instances on
// several threads (blocks per second of each thread and of all), and sibdump on one and on
// several threads over a capture of eight cells made by the project's capture writer, with
// the speed-up measured against each processor at the same moment.
//
// Input: bench/bch_cycle.bch (the sample cell's broadcast over one SFN cycle).
#include <benchmark/benchmark.h>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "capture_writer.h"
#include "umts_sib_decoder.h"

namespace {

using Bytes = std::vector<uint8_t>;

const std::vector<Bytes>& cycle() {
  static const std::vector<Bytes> all = [] {
    std::vector<Bytes> out;
    std::ifstream in(UMTS_BENCH_DIR "/bch_cycle.bch");
    for (std::string line; std::getline(in, line);) {
      if (line.empty() || line[0] == '#') continue;
      Bytes b;
      for (size_t i = 0; i + 1 < line.size(); i += 2) b.push_back(static_cast<uint8_t>(std::stoul(line.substr(i, 2), nullptr, 16)));
      out.push_back(b);
    }
    return out;
  }();
  return all;
}

// Every block of the cycle in turn, text off, through `decoder` (null: umts_sib_decoder).
// `ns`: where to put the nanoseconds a block of this thread alone (the benchmark's own time
// of several threads runs until the last of them is done).
void road(benchmark::State& state, umts_sib_decoder_t* decoder, double* ns = nullptr) {
  const std::vector<Bytes>& blocks = cycle();
  umts_sib_set* set = umts_sib_set_alloc();
  size_t i = 0;
  benchmark::IterationCount done = 0;
  const auto start = std::chrono::steady_clock::now();
  for (auto _ : state) {
    if (ns != nullptr && ++done == state.max_iterations)
      *ns = std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count() /
            static_cast<double>(done);
    const Bytes& b = blocks[i];
    i = i + 1 == blocks.size() ? 0 : i + 1;
    set->presence_bitmask = 0;
    const uint32_t n = static_cast<uint32_t>(b.size());
    benchmark::DoNotOptimize(decoder == nullptr ? umts_sib_decoder(b.data(), set, n)
                                                : umts_sib_decoder_feed_block(decoder, b.data(), set, n));
  }
  state.SetItemsProcessed(state.iterations());
  umts_sib_set_free(set);
}

void BM_Road_Global_TextOff(benchmark::State& state) {
  umts_sib_print_to(nullptr);
  road(state, nullptr);
  umts_sib_print_to(stdout);
}
BENCHMARK(BM_Road_Global_TextOff);

void BM_Road_Instance_TextOff(benchmark::State& state) {
  umts_sib_decoder_t* d = umts_sib_decoder_new();
  road(state, d);
  umts_sib_decoder_free(d);
}
BENCHMARK(BM_Road_Instance_TextOff);

// One instance per thread: items per second is the sum over the threads.
void BM_Road_Instances_OnThreads(benchmark::State& state) {
  umts_sib_decoder_t* d = umts_sib_decoder_new();
  road(state, d);
  umts_sib_decoder_free(d);
}
BENCHMARK(BM_Road_Instances_OnThreads)->Threads(1)->Threads(2)->ThreadPerCpu()->UseRealTime();

// The processors this process may run on.
std::vector<int> processors() {
  cpu_set_t allowed;
  CPU_ZERO(&allowed);
  sched_getaffinity(0, sizeof allowed, &allowed);
  std::vector<int> cpus;
  for (int cpu = 0; cpu < CPU_SETSIZE; cpu++)
    if (CPU_ISSET(cpu, &allowed)) cpus.push_back(cpu);
  return cpus;
}

// Holds the calling thread (and what it starts) on `cpu`.
void hold_on(int cpu) {
  cpu_set_t one;
  CPU_ZERO(&one);
  CPU_SET(cpu, &one);
  sched_setaffinity(0, sizeof one, &one);
}

// The same with thread i held on the i-th processor: each processor's own speed, all of them
// busy at once (ns_cpuN: nanoseconds a block on processor N). What N threads can do at most
// is the sum of these speeds: the processors of a virtual machine need not be equal (on the
// 2-processor machine of docs/speed.md one ran the road 1.5 times slower than the other at
// any moment, by the host's doing, and ran plain arithmetic as fast).
void BM_Road_Instances_EachProcessor(benchmark::State& state) {
  const std::vector<int> cpus = processors();
  const int cpu = cpus[static_cast<size_t>(state.thread_index()) % cpus.size()];
  hold_on(cpu);
  umts_sib_decoder_t* d = umts_sib_decoder_new();
  double ns = 0;
  road(state, d, &ns);
  state.counters["ns_cpu" + std::to_string(cpu)] = ns;
  umts_sib_decoder_free(d);
  cpu_set_t all;
  CPU_ZERO(&all);
  for (const int c : cpus) CPU_SET(c, &all);
  sched_setaffinity(0, sizeof all, &all);
}
BENCHMARK(BM_Road_Instances_EachProcessor)->ThreadPerCpu()->UseRealTime();

// ---- sibdump --jobs ----------------------------------------------------------------------

// Eight cells (two senders, four ARFCNs each), each sending the cycle 32 times, their frames
// interleaved: 425,984 frames, some 0.4 s of decoding on one core, so that what sibdump does
// once (starting, about 20 ms) stays small beside what it does for every frame.
constexpr unsigned kRounds = 32;
const std::string& eight_cell_capture() {
  static const std::string path = [] {
    std::vector<capture::Frame> frames;
    const std::vector<Bytes>& blocks = cycle();
    uint64_t t = 1767225600000000ull;
    for (unsigned round = 0; round < kRounds; round++) {
      for (size_t k = 0; k < blocks.size(); k++) {
        for (unsigned cell = 0; cell < 8; cell++) {
          capture::GsmtapMessage m;
          m.arfcn = static_cast<uint16_t>(10700 + 25 * (cell % 4));
          m.frame_number = static_cast<uint32_t>(k);
          m.message = blocks[(k + 200 * cell) % blocks.size()];
          capture::Route route;
          route.source = cell < 4 ? "127.0.0.1" : "127.0.0.2";
          frames.push_back({t += 1250, capture::udp_frame(gsmtap::Link::ethernet, route, capture::gsmtap_datagram(m))});
        }
      }
    }
    char dir[] = "/tmp/bench_instances_XXXXXX";
    const std::string p = std::string(mkdtemp(dir)) + "/eight_cells.pcap";
    capture::write_file(p, capture::pcap_file(gsmtap::Link::ethernet, frames));
    return p;
  }();
  return path;
}

// sibdump --jobs N over the capture, its JSON to /dev/null; items: frames.
void BM_Sibdump_EightCells(benchmark::State& state) {
  const std::string cmd = std::string("'") + SIBDUMP_PATH + "' --jobs " + std::to_string(state.range(0)) + " '" +
                          eight_cell_capture() + "' >/dev/null 2>&1";
  for (auto _ : state) {
    const int status = std::system(cmd.c_str());
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
      state.SkipWithError("sibdump failed (built without capture input?)");
      return;
    }
  }
  state.SetItemsProcessed(state.iterations() * kRounds * 8 * static_cast<int64_t>(cycle().size()));
}
BENCHMARK(BM_Sibdump_EightCells)->Arg(1)->Arg(2)->UseRealTime()->Unit(benchmark::kMillisecond);

// Runs `cmd` through the shell on each of `cpus` at once, each run held on its processor;
// the milliseconds each took (empty if one failed).
std::vector<double> timed_runs(const std::string& cmd, const std::vector<int>& cpus) {
  const auto start = std::chrono::steady_clock::now();
  std::vector<pid_t> runs;
  for (const int cpu : cpus) {
    const pid_t pid = fork();
    if (pid == 0) {
      if (cpu >= 0) hold_on(cpu);
      execl("/bin/sh", "sh", "-c", cmd.c_str(), static_cast<char*>(nullptr));
      _exit(127);
    }
    runs.push_back(pid);
  }
  std::vector<double> ms(runs.size(), 0.0);
  bool failed = false;
  for (size_t left = runs.size(); left > 0; left--) {
    int status = 0;
    const pid_t pid = wait(&status);
    failed = failed || pid < 0 || !WIFEXITED(status) || WEXITSTATUS(status) != 0;
    for (size_t k = 0; k < runs.size(); k++)
      if (runs[k] == pid) ms[k] = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
  }
  if (failed) ms.clear();
  return ms;
}

double median(std::vector<double> v) {
  std::sort(v.begin(), v.end());
  return v.empty() ? 0 : v[v.size() / 2];
}

std::string sibdump_jobs(size_t jobs) {
  return std::string("'") + SIBDUMP_PATH + "' --jobs " + std::to_string(jobs) + " '" + eight_cell_capture() +
         "' >/dev/null 2>&1";
}

// sibdump --jobs 1 over the capture on every processor at once, each run held on a processor
// of its own (ms_cpuN: the run on processor N). --jobs N can be at most as much faster than
// --jobs 1 on the fastest processor as the sum of the processors' speeds allows.
void BM_Sibdump_EightCells_EachProcessor(benchmark::State& state) {
  const std::vector<int> cpus = processors();
  std::vector<double> ms(cpus.size(), 0.0);
  for (auto _ : state) {
    const std::vector<double> run = timed_runs(sibdump_jobs(1), cpus);
    if (run.empty()) {
      state.SkipWithError("sibdump failed (built without capture input?)");
      return;
    }
    for (size_t k = 0; k < cpus.size(); k++) ms[k] += run[k];
  }
  for (size_t k = 0; k < cpus.size(); k++)
    state.counters["ms_cpu" + std::to_string(cpus[k])] = ms[k] / static_cast<double>(state.iterations());
}
BENCHMARK(BM_Sibdump_EightCells_EachProcessor)->UseRealTime()->Unit(benchmark::kMillisecond)->Iterations(3);

// The speed-up of --jobs N (N: the processors) against --jobs 1, with the most the processors
// allowed at that moment: the processors of a virtual machine change speed over minutes, and
// two busy at once can each be slower than either alone. Each iteration runs --jobs 1 held on
// each processor in turn (alone), then on all at once (together), then --jobs N. Medians over
// the iterations: ms_alone_cpuK, ms_together_cpuK, ms_jobsN; speedup (--jobs 1 on the
// iteration's fastest processor alone, over --jobs N); bound (the sum of the processors'
// speeds together, over that fastest one alone); of_bound (speedup over bound).
void BM_Sibdump_EightCells_Speedup(benchmark::State& state) {
  const std::vector<int> cpus = processors();
  std::vector<std::vector<double>> alone(cpus.size()), together(cpus.size());
  std::vector<double> jobs, speedup, bound, of_bound;
  for (auto _ : state) {
    double fastest = 0;
    for (size_t k = 0; k < cpus.size(); k++) {
      const std::vector<double> run = timed_runs(sibdump_jobs(1), {cpus[k]});
      if (run.empty()) {
        state.SkipWithError("sibdump failed (built without capture input?)");
        return;
      }
      alone[k].push_back(run[0]);
      fastest = k == 0 ? run[0] : std::min(fastest, run[0]);
    }
    const std::vector<double> at_once = timed_runs(sibdump_jobs(1), cpus);
    const std::vector<double> all = timed_runs(sibdump_jobs(cpus.size()), {-1});
    if (at_once.empty() || all.empty()) {
      state.SkipWithError("sibdump failed");
      return;
    }
    double speeds = 0;
    for (size_t k = 0; k < cpus.size(); k++) {
      together[k].push_back(at_once[k]);
      speeds += 1 / at_once[k];
    }
    jobs.push_back(all[0]);
    speedup.push_back(fastest / all[0]);
    bound.push_back(fastest * speeds);
    of_bound.push_back(speedup.back() / bound.back());
  }
  for (size_t k = 0; k < cpus.size(); k++) {
    state.counters["ms_alone_cpu" + std::to_string(cpus[k])] = median(alone[k]);
    state.counters["ms_together_cpu" + std::to_string(cpus[k])] = median(together[k]);
  }
  state.counters["ms_jobs" + std::to_string(cpus.size())] = median(jobs);
  state.counters["speedup"] = median(speedup);
  state.counters["bound"] = median(bound);
  state.counters["of_bound"] = median(of_bound);
}
BENCHMARK(BM_Sibdump_EightCells_Speedup)->UseRealTime()->Unit(benchmark::kMillisecond)->Iterations(7);

}  // namespace

BENCHMARK_MAIN();
