"""The archive of captures on a local Dask cluster: files/s and blocks/s with 1 and 2 workers,
and the cluster's cost per task against decoding the same files in one process.

    python3 bench/archive_bench.py [--files 200] [--cycles 10] [--dir DIR]

Writes DIR (default: a temporary folder) with FILES captures of 8 cells each (mkarchive.py,
the project's capture writer; each cell's cycle CYCLES times), then times:
  one process   decode_file() of every file in a loop, the archive's task without a cluster
  1 worker      the archive's tasks on a local cluster of one worker process
  2 workers     the same with two
The cluster times run from the first task submitted to the last result received; starting the
cluster is shown apart. Processor time per file counts this process and its children (the
cluster's worker processes, and sibdump runs where libsibdump.so is not found), less that of a run of no file on a cluster of
the same size; it holds however busy the machine is, where the times do not. Needs the build tree's sibdump and mkcaptures (or SIBDUMP, MKCAPTURES).
First it runs the task over 20 of the files on each processor alone, then on every processor
at once, each process held on a processor of its own: the processors of a virtual machine need
not be equal, nor as fast busy together as alone, and what N workers can do at most is the sum
of their speeds at once, against 1 worker on the fastest alone.
"""
import argparse
import os
import resource
import sys
import tempfile
import time
from pathlib import Path

REPO = Path(__file__).resolve().parents[1]
sys.path.insert(0, str(REPO / "python"))
sys.path.insert(0, str(REPO / "tools" / "sibdump"))
import mkarchive  # noqa: E402
os.environ.setdefault("SIBDUMP", str(mkarchive.SIBDUMP))
from sibdecoder_umts import archive  # noqa: E402


def cpu_seconds():
    """Processor time of this process and of its children that have ended (the cluster's
    worker processes once it is closed, the sibdump runs)."""
    return sum(r.ru_utime + r.ru_stime for r in (resource.getrusage(resource.RUSAGE_SELF),
                                                  resource.getrusage(resource.RUSAGE_CHILDREN)))


def _files_per_second_on(cpu, files, queue):
    os.sched_setaffinity(0, {cpu})  # sibdump, started from here, stays there too
    start = time.perf_counter()
    for f in files:
        archive.decode_file(f)
    queue.put((cpu, len(files) / (time.perf_counter() - start)))


def processor_speeds(files, cpus):
    """Files/s of the task on each of `cpus`, all of them busy at once."""
    import multiprocessing
    ctx = multiprocessing.get_context("fork")
    queue = ctx.Queue()
    runs = [ctx.Process(target=_files_per_second_on, args=(cpu, files, queue)) for cpu in cpus]
    for r in runs:
        r.start()
    speeds = dict(queue.get() for _ in runs)
    for r in runs:
        r.join()
    return speeds


def empty_task(x):
    return x


def dask_cost_per_task(count):
    """Processor seconds of the client and the one worker per task that does nothing."""
    import logging
    from dask.distributed import Client, LocalCluster
    with LocalCluster(n_workers=1, threads_per_worker=1, processes=True, dashboard_address=None,
                      silence_logs=logging.CRITICAL) as cluster, Client(cluster) as client:
        before, mine = client.run(cpu_seconds), cpu_seconds()
        client.gather([client.submit(empty_task, i, pure=False) for i in range(count)])
        after = client.run(cpu_seconds)
        return (cpu_seconds() - mine + sum(after[w] - before[w] for w in after)) / count


def main():
    p = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    p.add_argument("--files", type=int, default=200)
    p.add_argument("--cycles", type=int, default=10)
    p.add_argument("--dir")
    args = p.parse_args()
    with tempfile.TemporaryDirectory() as tmp:
        folder = Path(args.dir or tmp) / "captures"
        if not folder.is_dir():
            mkarchive.bench_folder(folder, args.files, args.cycles)
        files = archive.find_files([str(folder)])
        print(f"{os.cpu_count()} processors, load average {os.getloadavg()[0]:.1f} before the runs")
        cpus = sorted(os.sched_getaffinity(0))
        single = {}
        for cpu in cpus:
            single.update(processor_speeds(files[:20], [cpu]))
        together = processor_speeds(files[:20], cpus)
        print("the task on each processor alone: " + ", ".join(f"{cpu}: {single[cpu]:.1f}" for cpu in cpus) +
              " files/s; on all at once: " + ", ".join(f"{cpu}: {together[cpu]:.1f}" for cpu in cpus) +
              f" files/s; {len(cpus)} workers do at most {sum(together.values()) / max(single.values()):.2f}x"
              " 1 worker on the fastest alone")
        start, cpu = time.perf_counter(), cpu_seconds()
        blocks = sum(archive.decode_file(f)["blocks"] for f in files)
        alone = time.perf_counter() - start
        cpu_alone = cpu_seconds() - cpu
        print(f"{len(files)} files of 8 cells, {blocks} blocks ({blocks // len(files)} per file)")
        print(f"{'':12} {'seconds':>8} {'files/s':>8} {'blocks/s':>9} {'speed-up':>8} {'CPU ms/file':>11}  cluster start")
        print(f"{'one process':12} {alone:8.2f} {len(files) / alone:8.1f} {blocks / alone:9.0f} {'':8} "
              f"{cpu_alone / len(files) * 1000:11.1f}")
        seconds, cpu_per_file = {}, {}
        for workers in (1, 2):
            cpu = cpu_seconds()  # the cluster's start and end alone: a run of no file
            (Path(tmp) / "empty").mkdir(exist_ok=True)
            archive.run([str(Path(tmp) / "empty")], out=str(Path(tmp) / "out0"), workers=workers, quiet=True)
            fixed = cpu_seconds() - cpu
            stats = {}
            cpu = cpu_seconds()
            archive.run([str(folder)], out=str(Path(tmp) / f"out{workers}"), workers=workers, quiet=True, stats=stats)
            seconds[workers] = stats["tasks_seconds"]
            cpu_per_file[workers] = (cpu_seconds() - cpu - fixed) / len(files)
            print(f"{workers} worker{'s' if workers > 1 else ' '}    {seconds[workers]:8.2f} "
                  f"{len(files) / seconds[workers]:8.1f} {stats['blocks'] / seconds[workers]:9.0f} "
                  f"{seconds[1] / seconds[workers]:7.2f}x {cpu_per_file[workers] * 1000:11.1f}  "
                  f"{stats['cluster_start']:.2f} s")
        print(f"cluster cost per task, 1 worker against one process: {(seconds[1] - alone) / len(files) * 1000:.1f} ms "
              f"of time, {(cpu_per_file[1] - cpu_alone / len(files)) * 1000:.1f} ms of processor")
        print(f"Dask's own cost per task (tasks that do nothing, client and worker): "
              f"{dask_cost_per_task(len(files)) * 1000:.1f} ms of processor")
        print(f"load average {os.getloadavg()[0]:.1f} after the runs")


if __name__ == "__main__":
    main()
