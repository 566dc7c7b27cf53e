"""Plans of the DCT-IV: what they refuse, that they are freed, copied and kept, and that threads may share them."""
import copy
import gc
import pickle
import threading
import tracemalloc
import unittest
import weakref

import numpy as np
import support

import zulgenpx
from zulgenpx import _plans


class Plans(unittest.TestCase):
    def assert_refused(self, error, line, call, *arguments, **options):
        with self.assertRaises(error) as caught:
            call(*arguments, **options)
        self.assertEqual(str(caught.exception), line)

    def test_refusals(self):
        plan = zulgenpx.DCT4Plan
        for length in (-2, 0, 1, 3, 9, 33, 2**26 + 1, 2**27, 2**40):
            says = f"DCT4Plan: the length is {length}; lengths are powers of two from 2 to 2**26 for float64"
            self.assert_refused(ValueError, says, plan, length)
        says = f"DCT4Plan: the length is {2**28}; lengths are powers of two from 2 to 2**27 for float32"
        self.assert_refused(ValueError, says, plan, 2**28, np.float32)
        self.assert_refused(TypeError, "DCT4Plan: the length is 8.0, which is no integer", plan, 8.0)
        for dtype in ("complex64", "int32", "float16", ">f8"):
            self.assert_refused(TypeError, f"DCT4Plan: a plan is of float32 or float64, not of {dtype}", plan, 8, dtype)
        says = "dct4: the plan has 8 points of float64, the array 16 of float64"
        self.assert_refused(ValueError, says, plan(8), np.zeros(16))
        says = "dct4: the plan has 8 points of float64, the array 8 of float32"
        self.assert_refused(ValueError, says, plan(8), np.zeros(8, np.float32))
        self.assert_refused(TypeError, "dct4: plan is of int, which is no DCT4Plan", zulgenpx.dct4, [1, 2], plan=3)

    def test_what_a_plan_says(self):
        plan = zulgenpx.DCT4Plan(np.int16(1024), "float32")
        self.assertEqual((plan.length, plan.dtype, repr(plan)), (1024, np.float32, "DCT4Plan(1024, float32)"))
        self.assertGreaterEqual(plan.nbytes, 8864)
        with self.assertRaises(AttributeError):
            plan.other = 1

    def test_plans_are_freed(self):
        plan = zulgenpx.DCT4Plan(64)
        gone = weakref.ref(plan)
        del plan
        gc.collect()
        self.assertIsNone(gone())
        tracemalloc.start()
        zulgenpx.DCT4Plan(16384)
        before, _ = tracemalloc.get_traced_memory()
        for _ in range(50):
            zulgenpx.DCT4Plan(16384)
        after, most = tracemalloc.get_traced_memory()
        tracemalloc.stop()
        self.assertGreater(most - before, 271424)
        self.assertLess(after - before, 271424)

    def test_copies_are_built_anew(self):
        plan = zulgenpx.DCT4Plan(128)
        x = np.random.default_rng(1).normal(size=(3, 128))
        expected = plan(x)
        for other in (copy.copy(plan), copy.deepcopy(plan), pickle.loads(pickle.dumps(plan))):
            self.assertNotEqual(other._plan.value, plan._plan.value)
            self.assertEqual(other(x).tobytes(), expected.tobytes())

    def test_every_length_up_to_a_million(self):
        for dtype in support.REALS:
            for k in range(1, 21):
                plan = zulgenpx.DCT4Plan(2**k, dtype)
                self.assertEqual(plan._plan.value % 32, 0)
                x = np.zeros(2**k, dtype)
                x[0] = 1
                expected = np.cos(np.pi / 2 * (np.arange(2**k) + 0.5) / 2**k)
                self.assertLess(np.abs(plan(x) - expected).max(), 4 * support.epsilon(dtype))

    def test_kept_plans(self):
        """A thread keeps the plans that it used last, up to a number and a length."""
        built = []
        real = _plans.DCT4Plan

        class Counted(real):
            __slots__ = ()

            def __init__(self, *arguments):
                built.append(arguments[0])
                super().__init__(*arguments)

        def use():
            for length in (2, 4, 2, 4):
                zulgenpx.dct4(np.zeros(length))
            for length in (8, 16, 32, 64, 128, 256, 2, 512):
                zulgenpx.dct4(np.zeros(length))
            zulgenpx.dct4(np.zeros(2))  # is kept
            zulgenpx.dct4(np.zeros(4))  # was the oldest
            for _ in range(2):
                zulgenpx.dct4(np.zeros(131072, np.float32))  # is not kept

        _plans.DCT4Plan = Counted
        try:
            thread = threading.Thread(target=use)  # keeps none yet
            thread.start()
            thread.join()
        finally:
            _plans.DCT4Plan = real
        self.assertEqual(built, [2, 4, 8, 16, 32, 64, 128, 256, 512, 4, 131072, 131072])

    def test_kept_plans_go_with_their_thread(self):
        plans = []

        def use():
            zulgenpx.dct4(np.zeros(64))
            plans.extend(weakref.ref(plan) for plan in _plans._kept.plans.values())

        thread = threading.Thread(target=use)
        thread.start()
        thread.join()
        gc.collect()
        self.assertEqual([plan() for plan in plans], [None])


class Threads(unittest.TestCase):
    def together(self, work, number=4):
        """Runs work(i) in threads; what one of them raises is raised here."""
        faults = []
        start = threading.Barrier(number)

        def run(i):
            try:
                start.wait()
                work(i)
            except BaseException as error:  # noqa: B902
                faults.append(error)

        threads = [threading.Thread(target=run, args=(i,)) for i in range(number)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        for fault in faults:
            raise fault

    def test_one_plan_in_several_threads(self):
        source = np.random.default_rng(2)
        for length in (16, 64, 2048):
            plan = zulgenpx.DCT4Plan(length)
            inputs = [source.normal(size=(200, length)) for _ in range(4)]
            expected = [plan(x).tobytes() for x in inputs]

            def work(i):
                for _ in range(10):
                    self.assertEqual(plan(inputs[i]).tobytes(), expected[i])

            self.together(work)

    def test_all_transforms_in_several_threads(self):
        source = np.random.default_rng(3)
        inputs = [source.normal(size=(300, 64)) for _ in range(4)]
        calls = [zulgenpx.fft, zulgenpx.ifft, zulgenpx.rfft, zulgenpx.hartley, zulgenpx.wht, zulgenpx.dct4,
                 lambda x: zulgenpx.irfft(x, 64), lambda x: zulgenpx.wht(np.tile(x[:20], 8))]
        expected = [[call(x).tobytes() for call in calls] for x in inputs]

        def work(i):
            for _ in range(5):
                for call, right in zip(calls, expected[i]):
                    self.assertEqual(call(inputs[i]).tobytes(), right)

        self.together(work)

    def test_parts_of_one_array(self):
        x = np.random.default_rng(4).normal(size=(64, 400)) + 0j
        out = np.empty_like(x)
        self.together(lambda i: zulgenpx.fft(x[:, i::4], axis=0, out=out[:, i::4]))
        self.assertEqual(out.tobytes(), zulgenpx.fft(x, axis=0).tobytes())


if __name__ == "__main__":
    unittest.main()
