#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Simulates indexing many repositories on many machines, some of them slow and some lost.

  scale.py [--repositories 100000] [--machines 20] [--slow 0.05] [--lost 0.1] [--seed 1]

Repositories of random size are put into shards, largest first. Each machine reads one shard after the
other with all its cores; the tags of a shard count only once they are complete. When no shard is left,
idle machines may read those again that still run elsewhere; the first copy counts. The rates come from
a result of tree.py (--rates). Everything is drawn from the seed: the same call prints the same numbers.
"""
import argparse
import heapq
import json
import os
import random
import statistics
import sys

HERE = os.path.dirname(os.path.abspath(__file__))


class Rates:
    """What one machine does: bytes of source per second, on all its cores; bytes of tags per byte of
    source; bytes of tags per second that one process merges."""

    def __init__(self, read, tags, merge):
        self.read, self.tags, self.merge = read, tags, merge

    @staticmethod
    def of(result, cores):
        """From a saved result. A machine with more or fewer cores than the measured one is taken to be
        as many times faster."""
        counts, wall = result["counts"], result["wall"]
        read = counts["bytes"] / statistics.median(wall["cold, --no-cache"])
        return Rates(read * cores / result["about"]["workers"], counts["tags bytes"] / counts["bytes"],
                     counts["tags bytes"] / statistics.median(wall["merge"]))


def repository_sizes(count, median, random_numbers):
    """Sizes in bytes, log-normally distributed: half are below the median, one in a thousand is two
    hundred times larger."""
    return [random_numbers.lognormvariate(0, 1.7) * median for _ in range(count)]


def make_shards(sizes, count):
    """Puts each repository, largest first, into the smallest shard. Returns the shards' sizes."""
    shards = [0.0] * count
    for size in sorted(sizes, reverse=True):
        heapq.heapreplace(shards, shards[0] + size)
    return sorted(shards, reverse=True)


class Outcome:
    """What a simulated run gave: the seconds until all shards were done, the machine seconds that were
    of no use, and how often each shard was completed and counted."""

    def __init__(self, shards):
        self.seconds, self.wasted = 0.0, 0.0
        self.done = [0] * shards


def simulate(seconds, speeds, lost_at, copies=True):
    """Simulates one run. `seconds` is the time of each shard on a machine of speed 1, `speeds` the speed
    of each machine, `lost_at` the second at which each is lost, or None. `copies` lets idle machines
    read again what runs elsewhere. Returns an Outcome, or None if all machines are lost too early."""
    outcome = Outcome(len(seconds))
    waiting = list(range(len(seconds) - 1, -1, -1))  # The next one is the last.
    running = {}  # Machine: (shard, start, end).
    events = [(0.0, 1, machine) for machine in range(len(speeds))]  # Lost before idle.
    events += [(at, 0, machine) for machine, at in enumerate(lost_at) if at is not None]
    heapq.heapify(events)
    idle, lost = set(), set()

    def start(machine, now):
        shard = next_shard(now)
        if shard is None:
            idle.add(machine)
            return
        idle.discard(machine)
        end = now + seconds[shard] / speeds[machine]
        running[machine] = (shard, now, end)
        heapq.heappush(events, (end, 1, machine))

    def next_shard(now):
        if waiting:
            return waiting.pop()
        if not copies or not running:
            return None
        # What would end last, unless it has two readers already.
        readers = [shard for shard, _, _ in running.values()]
        late = [(end, shard) for shard, _, end in running.values()
                if readers.count(shard) == 1 and end > now]
        return max(late)[1] if late else None

    while events and not all(outcome.done):
        now, kind, machine = heapq.heappop(events)
        if machine in lost:
            continue
        if kind == 0:
            lost.add(machine)
            idle.discard(machine)
            if machine in running:
                shard, began, _ = running.pop(machine)
                outcome.wasted += now - began
                if not outcome.done[shard] and all(s != shard for s, _, _ in running.values()):
                    waiting.append(shard)
                for other in list(idle):
                    start(other, now)
            continue
        if machine in running:
            shard, began, end = running[machine]
            if end != now:
                continue  # An event of a copy that was stopped.
            del running[machine]
            outcome.done[shard] += 1
            outcome.seconds = now
            for other in [m for m, (s, _, _) in running.items() if s == shard]:
                outcome.wasted += now - running.pop(other)[1]
                start(other, now)
        start(machine, now)
    return outcome if all(outcome.done) else None


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--rates", default=os.path.join(HERE, "results", "tree-debian12.json"),
                        metavar="FILE", help="a result that tree.py saved")
    parser.add_argument("--repositories", type=int, default=100000)
    parser.add_argument("--median-mb", type=float, default=1.0, help="size of a repository's sources")
    parser.add_argument("--machines", type=int, default=20)
    parser.add_argument("--cores", type=int, default=16, help="of each machine")
    parser.add_argument("--shards", type=int, default=1000)
    parser.add_argument("--slow", type=float, default=0.05, help="share of slow machines")
    parser.add_argument("--slowness", type=float, default=5, help="how many times slower they are")
    parser.add_argument("--lost", type=float, default=0.1, help="share of machines lost during the run")
    parser.add_argument("--runs", type=int, default=20)
    parser.add_argument("--seed", type=int, default=1)
    options = parser.parse_args()
    with open(options.rates, encoding="utf-8") as file:
        rates = Rates.of(json.load(file), options.cores)
    numbers = random.Random(options.seed)
    sizes = repository_sizes(options.repositories, options.median_mb * 1e6, numbers)
    seconds = [size / rates.read for size in make_shards(sizes, options.shards)]
    ideal = sum(seconds) / options.machines
    print("%d repositories, %.0f GB of sources, %d shards; %d machines of %d cores, %.0f MB/s each" % (
        options.repositories, sum(sizes) / 1e9, options.shards, options.machines, options.cores,
        rates.read / 1e6))
    print("one machine: %.1f minutes; all machines, never slow or lost: %.2f minutes" % (
        sum(seconds) / 60, ideal / 60))
    print("tags: %.0f GB; merging all in one process: %.1f minutes" % (
        rates.tags * sum(sizes) / 1e9, rates.tags * sum(sizes) / rates.merge / 60))
    print("\n| machines | copies | minutes, median | worst | of ideal | wasted |\n"
          "|---|---|---:|---:|---:|---:|")
    for title, slow, lost in (("all good", 0, 0), ("some slow", options.slow, 0),
                              ("some lost", 0, options.lost),
                              ("some slow, some lost", options.slow, options.lost)):
        plans = []
        for _ in range(options.runs):
            speeds = [1 / options.slowness if numbers.random() < slow else 1.0
                      for _ in range(options.machines)]
            lost_at = [numbers.random() * ideal if numbers.random() < lost else None
                       for _ in range(options.machines)]
            plans.append((speeds, lost_at))
        for copies in (False, True):
            outcomes = [simulate(seconds, *plan, copies=copies) for plan in plans]
            outcomes = [outcome for outcome in outcomes if outcome is not None]
            if not outcomes:
                sys.exit("all machines were lost in all runs")
            times = [outcome.seconds for outcome in outcomes]
            print("| %s | %s | %.2f | %.2f | %.2fx | %.1f %% |" % (
                title, "yes" if copies else "no", statistics.median(times) / 60, max(times) / 60,
                statistics.median(times) / ideal,
                100 * statistics.median(outcome.wasted for outcome in outcomes) / sum(seconds)))


if __name__ == "__main__":
    main()
