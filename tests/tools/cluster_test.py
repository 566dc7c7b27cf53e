# Tests of zulspectrum-mpi: python3 cluster_test.py FOLDER-OF-THE-PROGRAMS SOURCE-TREE
# Outputs of any number of ranks are those of one process; damaged inputs and lost ranks are survived. The files for
# clusters are checked as far as that goes without one.
import filecmp
import json
import os
import pathlib
import random
import signal
import subprocess
import sys
import tempfile
import time
import unittest

import jsonschema
import yaml

sys.dont_write_bytecode = True  # the tree stays clean
import sound_files

PROGRAMS, SOURCE = pathlib.Path(), pathlib.Path()
OPTIONS = ["--family", "real", "--length", "15", "--hop", "10", "--window", "hann"]


def mpirun(ranks):
    return ["mpirun", "--allow-run-as-root", "--oversubscribe", "-n", str(ranks), str(PROGRAMS / "zulspectrum-mpi")]


def run(command, **more):
    return subprocess.run(list(map(str, command)), stdin=subprocess.DEVNULL, capture_output=True, timeout=100, **more)


def files_of(folder):
    return {str(path.relative_to(folder)): path for path in folder.rglob("*")
            if path.is_file() and path.name != ".zulspectrum-batch.jsonl"}


def summary_of(done):
    """The object that a run prints. A run without one fails with all that it says, since that may not come again."""
    try:
        return json.JSONDecoder().raw_decode(done.stdout.decode())[0]
    except json.JSONDecodeError as error:
        raise AssertionError(f"{done.args}\nends with {done.returncode}, prints {done.stdout!r} and says\n"
                             f"{done.stderr.decode(errors='replace')}") from error


class Cluster(unittest.TestCase):
    def setUp(self):
        # The launcher keeps its sockets here, and a path of them may not be long.
        folder = tempfile.TemporaryDirectory(prefix="c")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def corpus(self, files, length):
        source, folder = random.Random(1), self.folder / "in"
        folder.mkdir()
        for i in range(files):
            samples = [source.randrange(-9000, 9000) for _ in range(length)]
            if i % 5 == 4:
                (folder / f"{i}.txt").write_text("\n".join(map(str, samples)), encoding="ascii")
            elif i % 5 == 3:
                (folder / f"{i}.flac").write_bytes(sound_files.flac(samples[:length // 256 * 256][:32512]))
            else:
                (folder / f"{i}.wav").write_bytes(sound_files.wav([samples]))
        whole = (folder / "0.wav").read_bytes()
        (folder / "cut.wav").write_bytes(whole[:len(whole) // 2])
        return folder

    def expect_same(self, one, other):
        ours, theirs = files_of(one), files_of(other)
        self.assertEqual(sorted(ours), sorted(theirs))
        for name, path in ours.items():
            self.assertTrue(filecmp.cmp(path, theirs[name], shallow=False), name)

    def test_ranks_give_the_bytes_of_one_process(self):
        inputs = self.corpus(10, 20000)
        for kind in ("png", "csv", "npy", "json"):
            alone, ranks = self.folder / f"alone-{kind}", self.folder / f"ranks-{kind}"
            done = run([PROGRAMS / "zulspectrum", "batch", inputs, "--into", alone, "--format", kind, *OPTIONS])
            self.assertEqual(done.returncode, 3)  # the only failure is a damaged file
            for count in (1, 4):
                done = run([*mpirun(count), inputs, "--into", ranks, "--format", kind, "--split", 3000, "--json",
                            "--again", *OPTIONS])
                summary = summary_of(done)
                self.assertEqual((done.returncode, summary["files"], summary["done"]), (3, 11, 10))
                self.assertEqual([(one["file"], one["status"]) for one in summary["failed"]], [("cut.wav", 3)])
                self.assertIn("samples that are good: 9989", summary["failed"][0]["message"])
                self.expect_same(alone, ranks)
        done = run([*mpirun(2), inputs, "--into", ranks, "--format", kind, "--split", 3000, "--json", *OPTIONS])
        self.assertEqual(summary_of(done)["done_before"], 10)

    def test_ranks_that_open_many_files_print_their_summary(self):
        inputs = self.folder / "in"
        inputs.mkdir()
        for i in range(300):
            (inputs / f"{i}.wav").write_bytes(sound_files.wav([[1, 2, 3, 4, 5, 6, 7, 8]]))
        command = [*mpirun(4), inputs, "--into", self.folder / "out", "--format", "csv", "--length", "4", "--again"]
        for _ in range(3):
            self.assertEqual(summary_of(run([*command, "--json"]))["done"], 300)

    def test_each_channel_is_split_by_itself(self):
        source, folder = random.Random(2), self.folder / "in"
        folder.mkdir()
        for i in range(3):
            channels = [[source.randrange(-9000, 9000) for _ in range(9000)] for _ in range(i + 1)]
            (folder / f"{i}.wav").write_bytes(sound_files.wav(channels))
        alone, ranks = self.folder / "alone", self.folder / "ranks"
        options = ["--format", "csv", "--channel", "each", *OPTIONS]
        self.assertEqual(run([PROGRAMS / "zulspectrum", "batch", folder, "--into", alone, *options]).returncode, 0)
        self.assertEqual(run([*mpirun(3), folder, "--into", ranks, "--split", 3000, *options]).returncode, 0)
        self.assertEqual(len(files_of(alone)), 6)
        self.expect_same(alone, ranks)

    def test_a_damaged_recording_that_is_split(self):
        inputs = self.folder / "in"
        inputs.mkdir()
        data = bytearray(sound_files.flac([i * i % 9973 for i in range(32512)]))
        data[len(data) // 2] ^= 1
        (inputs / "flipped.flac").write_bytes(data)
        alone = run([PROGRAMS / "zulspectrum", "batch", inputs, "--into", self.folder / "a", *OPTIONS, "--json"])
        ranks = run([*mpirun(3), inputs, "--into", self.folder / "b", "--split", 2000, *OPTIONS, "--json"])
        failed = [summary_of(done)["failed"] for done in (alone, ranks)]
        self.assertEqual(failed[0], failed[1])
        self.assertEqual(failed[0][0]["status"], 3)
        self.assertEqual(files_of(self.folder / "b"), {})

    def test_a_lost_rank_ends_the_run_and_the_next_goes_on(self):
        inputs, ranks, alone = self.corpus(60, 30000), self.folder / "ranks", self.folder / "alone"
        command = [*mpirun(4), str(inputs), "--into", str(ranks), "--format", "csv", "--split", "8000", *OPTIONS]
        stopped = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        while not ranks.is_dir() or len(files_of(ranks)) < 5:
            self.assertIsNone(stopped.poll())
            time.sleep(0.01)
        children = run(["pgrep", "-P", stopped.pid, "-x", "zulspectrum-mpi"[:15]]).stdout.split()
        os.kill(int(children[-1]), signal.SIGKILL)
        said = stopped.communicate(timeout=60)[1].decode()
        self.assertNotEqual(stopped.returncode, 0)
        self.assertIn("signal 9", said)
        self.assertIn("started again, it goes on where it was", said)
        done = run([*command, "--json"])
        summary = summary_of(done)
        self.assertGreater(summary["done_before"], 0)
        self.assertEqual(summary["done"] + summary["done_before"], 60)
        run([PROGRAMS / "zulspectrum", "batch", inputs, "--into", alone, "--format", "csv", *OPTIONS])
        self.expect_same(alone, ranks)

    def test_wrong_words_are_said_once(self):
        for words, says in ((["--lenght", "5"], "--lenght: there is no such option; perhaps --length"),
                            ([], "FILE-OR-FOLDER is required"), (["x", "--into", "y", "--split", "no"], "--split no"),
                            (["x", "--into", self.folder / "y"], "cannot read x: No such file")):
            done = run([*mpirun(3), *words])
            self.assertNotEqual(done.returncode, 0)
            lines = [line for line in done.stderr.decode().splitlines() if line.startswith("zulspectrum-mpi: ")]
            self.assertEqual(len(lines), 1, done.stderr)
            self.assertIn(says, lines[0])

    def test_probe(self):
        done = run([*mpirun(2), "--probe"])
        self.assertEqual(done.returncode, 0)
        costs = json.loads(done.stdout)
        self.assertTrue(all(cost > 0 for cost in costs.values()) and len(costs) == 2, costs)


class Deployment(unittest.TestCase):
    def test_slurm_script(self):
        path = SOURCE / "deploy/zulspectrum.sbatch"
        self.assertEqual(run(["bash", "-n", path]).returncode, 0)
        lines = [line.split()[1] for line in path.read_text().splitlines() if line.startswith("#SBATCH")]
        known = {"--job-name", "--nodes", "--ntasks-per-node", "--cpus-per-task", "--mem-per-cpu", "--time",
                 "--requeue"}
        self.assertLessEqual({line.partition("=")[0] for line in lines}, known)
        # A stand-in for srun shows the command.
        with tempfile.TemporaryDirectory() as folder:
            fake = pathlib.Path(folder) / "srun"
            fake.write_text('#!/bin/sh\nprintf "%s|" "$@"\n')
            fake.chmod(0o755)
            done = run(["bash", path, "in put", "out", "--length", "60"],
                       env=dict(os.environ, PATH=folder + os.pathsep + os.environ["PATH"]))
        self.assertEqual(done.stdout.decode(), "--mpi=pmix|zulspectrum-mpi|in put|--into|out|--length|60|")
        self.assertNotEqual(run(["bash", path]).returncode, 0)

    def test_kubernetes_file(self):
        schema = json.loads((SOURCE / "deploy/kubernetes.schema.json").read_text())
        job = yaml.safe_load((SOURCE / "deploy/kubernetes.yaml").read_text())
        jsonschema.validate(job, schema)
        specs = job["spec"]["mpiReplicaSpecs"]
        command = specs["Launcher"]["template"]["spec"]["containers"][0]["command"]
        ranks = int(command[command.index("-n") + 1])
        self.assertEqual(ranks, job["spec"]["slotsPerWorker"] * specs["Worker"]["replicas"])
        for change in (lambda: job["spec"].pop("mpiReplicaSpecs"), lambda: job["spec"].update(slots=3)):
            change()
            with self.assertRaises(jsonschema.ValidationError):
                jsonschema.validate(job, schema)


if __name__ == "__main__":
    SOURCE = pathlib.Path(sys.argv.pop()).resolve()
    PROGRAMS = pathlib.Path(sys.argv.pop()).resolve()
    unittest.main()
