#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tests the simulation of scale.py on runs that can be worked out by hand."""
import random
import sys
import unittest

sys.dont_write_bytecode = True
import scale


class Shards(unittest.TestCase):
    def test_largest_first_into_the_smallest(self):
        self.assertEqual(scale.make_shards([1, 5, 3, 4, 2], 2), [8, 7])

    def test_nothing_is_lost(self):
        sizes = scale.repository_sizes(1000, 10, random.Random(3))
        self.assertAlmostEqual(sum(scale.make_shards(sizes, 7)), sum(sizes))

    def test_rates_scale_with_cores(self):
        result = {"about": {"workers": 2}, "counts": {"bytes": 100, "tags bytes": 50},
                  "wall": {"cold, --no-cache": [1, 2, 3], "merge": [5]}}
        rates = scale.Rates.of(result, 8)
        self.assertEqual((rates.read, rates.tags, rates.merge), (200, 0.5, 10))


class Runs(unittest.TestCase):
    def run_of(self, seconds, speeds, lost_at=None, copies=True):
        outcome = scale.simulate(seconds, speeds, lost_at or [None] * len(speeds), copies)
        self.assertEqual(outcome.done, [1] * len(seconds))
        return outcome.seconds, outcome.wasted

    def test_one_machine(self):
        self.assertEqual(self.run_of([3, 2, 1], [1]), (6, 0))

    def test_two_machines_take_the_next_when_idle(self):
        # The first has 3; the second 2, then 1.
        self.assertEqual(self.run_of([3, 2, 1], [1, 1], copies=False), (3, 0))

    def test_a_slow_machine_holds_up_the_end(self):
        # The slow one begins 4 at once and needs 16; the other has done 2 and 1 after 3.
        self.assertEqual(self.run_of([4, 2, 1], [0.25, 1], copies=False), (16, 0))

    def test_a_copy_ends_that(self):
        # The other one begins a copy at 3, which ends at 7; the 7 seconds of the slow one are wasted.
        self.assertEqual(self.run_of([4, 2, 1], [0.25, 1]), (7, 7))

    def test_a_copy_that_loses_is_wasted(self):
        # Idle from 2 on, the second copies what ends at 3 in the first.
        self.assertEqual(self.run_of([3, 2], [1, 1]), (3, 1))

    def test_work_of_a_lost_machine_is_done_again(self):
        # The first is lost at 2, in the shard of 4, which the second reads after its own.
        self.assertEqual(self.run_of([4, 3], [1, 1], [2, None], copies=False), (7, 2))

    def test_an_idle_machine_takes_over_at_once(self):
        self.assertEqual(self.run_of([4, 1], [1, 1], [2, None], copies=False), (6, 2))

    def test_a_copy_survives_the_first_reader(self):
        # The copy begins at 1; the first reader is lost at 2; the copy ends at 5.
        self.assertEqual(self.run_of([4, 1], [1, 1], [2, None]), (5, 2))

    def test_what_was_done_before_a_loss_stays(self):
        # The first begins its second shard at 2 and is lost at 2.5; the other one reads only that again.
        self.assertEqual(self.run_of([2, 2, 1], [1, 1], [2.5, None], copies=False), (3.5, 0.5))

    def test_all_lost(self):
        self.assertIsNone(scale.simulate([4], [1], [2]))

    def test_random_runs_end_and_count_each_shard_once(self):
        numbers = random.Random(5)
        for _ in range(200):
            seconds = [numbers.uniform(0.1, 3) for _ in range(numbers.randrange(1, 30))]
            speeds = [numbers.choice([1, 1, 0.2]) for _ in range(numbers.randrange(1, 8))]
            lost_at = [None] + [numbers.choice([None, numbers.uniform(0, 9)]) for _ in speeds[1:]]
            for copies in (False, True):
                total, _ = self.run_of(seconds, speeds, lost_at, copies)
                self.assertGreaterEqual(total * sum(speeds), sum(seconds) - 1e-6)


if __name__ == "__main__":
    unittest.main()
