#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The command line tool under hard use, with figures: imports that are killed, writers beside readers, round trips.

    tests/soak/long_run.py build/release/bin/gfpdb [--kills 500] [--writers 2 8] [--trips 50]

Ends with an error as soon as something is lost. docs/quality.md has the figures of the last run.
"""
import argparse
import json
import os
import pathlib
import random
import signal
import subprocess
import sys
import tempfile
import time

SAMPLE = pathlib.Path(__file__).resolve().parents[1] / "fuzz/corpus/record_file/whole"
RECORDS_IN_AN_IMPORT = 40
SAVES_OF_A_WRITER = 40
READERS = 2


class Tool:
    def __init__(self, program, directory):
        self.program = os.path.abspath(program)
        self.directory = directory
        self.environment = dict(os.environ, GFPDB_SETTINGS=os.path.join(directory, "settings.ini"), LC_ALL="C.UTF-8")
        pathlib.Path(directory, "settings.ini").write_text("[database]\nbusy_timeout=60000\n")

    def start(self, command, *arguments):
        return subprocess.Popen([self.program, command, "--dir", self.directory, *arguments], env=self.environment,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def run(self, command, *arguments):
        process = self.start(command, *arguments)
        out, err = process.communicate()
        if process.returncode != 0:
            sys.exit(f"gfpdb {command} {arguments}: {process.returncode}: {err.decode()}")
        return out

    def state(self):
        return [(device["name"], device["density"]) for device in json.loads(self.run("export"))["devices"]]


def write_records(path, names, density):
    text = SAMPLE.read_bytes()
    document = json.loads(text[text.index(b"{"):])
    device = dict(document["devices"][0], total_die=1, density=density)
    for flows in ("single_flows", "quad_flows"):
        device[flows] = device[flows][:1]
    document.update(devices=[dict(device, name=name) for name in names], templates=[])
    pathlib.Path(path).write_text(json.dumps(document))
    return str(path)


def usual_time(act, times=10):
    """The median; of an even number of acts, so that the last one leaves what was there before."""
    taken = []
    for at in range(times):
        started = time.monotonic()
        act(at)
        taken.append(time.monotonic() - started)
    return sorted(taken)[times // 2]


def kill_imports(tool, scratch, count):
    names = [f"Device {i:03}" for i in range(RECORDS_IN_AN_IMPORT)]
    files = {density: write_records(scratch / f"{density}.json", names, density) for density in ("128Mb", "256Mb")}
    tool.run("import", files["128Mb"])
    usual = usual_time(lambda at: tool.run("import", "--replace", files[("256Mb", "128Mb")[at % 2]]))
    present, killed, stored = "128Mb", 0, 0
    while killed < count:
        target = "256Mb" if present == "128Mb" else "128Mb"
        process = tool.start("import", "--replace", files[target])
        time.sleep(random.uniform(0, usual))
        process.send_signal(signal.SIGKILL)
        process.communicate()
        state = tool.state()
        densities = {density for _, density in state}
        if [name for name, _ in state] != names or len(densities) != 1:
            sys.exit(f"after {killed} kills: {state}")
        if process.returncode == 0 and densities != {target}:
            sys.exit("an import that ended well is not there")
        killed += process.returncode == -signal.SIGKILL
        stored += densities == {target}
        present = densities.pop()
    tool.run("check")
    print(f"{killed} imports of {RECORDS_IN_AN_IMPORT} records killed, {stored} were whole by then: nothing lost")


def run_writers(tool, scratch, writers):
    def next_process(writer, turn):
        path = write_records(scratch / f"{writer}.json", [f"Writer {writers}-{writer} {turn}"], "256Mb")
        return tool.start("import", path)

    started = time.monotonic()
    turns = [0] * writers
    running = [next_process(writer, 0) for writer in range(writers)]
    readers = [tool.start("list", "--json") for _ in range(READERS)]
    reads = 0
    while any(running):
        for writer, process in enumerate(running):
            if process is None or process.poll() is None:
                continue
            if process.returncode != 0:
                sys.exit(f"a writer was refused: {process.communicate()[1].decode()}")
            turns[writer] += 1
            running[writer] = next_process(writer, turns[writer]) if turns[writer] < SAVES_OF_A_WRITER else None
        for at, reader in enumerate(readers):
            try:
                out, err = reader.communicate(timeout=0.001)
            except subprocess.TimeoutExpired:
                continue
            if reader.returncode != 0:
                sys.exit(f"a reader was refused: {err.decode()}")
            json.loads(out)
            reads += 1
            readers[at] = tool.start("list", "--json")
    for reader in readers:
        reader.communicate()
    found = sum(name.startswith(f"Writer {writers}-") for name, _ in tool.state())
    if found != writers * SAVES_OF_A_WRITER:
        sys.exit(f"{found} of {writers * SAVES_OF_A_WRITER} records are there")
    print(f"{writers} writers: {found} records in {time.monotonic() - started:.0f} s beside {reads} reads: "
          "none refused, none lost")


def run_trips(tool, program, scratch, count):
    text = tool.run("export")
    peaks = []
    for trip in range(count):
        path = scratch / "trip.json"
        path.write_bytes(text)
        with tempfile.TemporaryDirectory() as directory:
            other = Tool(program, directory)
            process = other.start("import", str(path))
            out = process.stdout.read() + process.stderr.read()
            _, status, usage = os.wait4(process.pid, 0)
            process.returncode = os.waitstatus_to_exitcode(status)
            if process.returncode != 0 or other.run("export") != text:
                sys.exit(f"trip {trip}: other bytes: {out.decode()}")
        peaks.append(usage.ru_maxrss)
    print(f"{count} round trips of {len(text)} bytes: the same bytes each time; the import takes {min(peaks)} to "
          f"{max(peaks)} KiB, {peaks[0]} the first time and {peaks[-1]} the last")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("--kills", type=int, default=500)
    parser.add_argument("--writers", type=int, nargs="*", default=[2, 8])
    parser.add_argument("--trips", type=int, default=50)
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as directory, tempfile.TemporaryDirectory() as scratch:
        tool = Tool(arguments.program, directory)
        scratch = pathlib.Path(scratch)
        if arguments.kills:
            kill_imports(tool, scratch, arguments.kills)
        for writers in arguments.writers:
            run_writers(tool, scratch, writers)
        if arguments.trips:
            run_trips(tool, arguments.program, scratch, arguments.trips)


if __name__ == "__main__":
    main()
