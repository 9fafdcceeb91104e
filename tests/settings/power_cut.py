#!/usr/bin/python3
"""Cuts the power under the store: a file system that stops at once, with nothing more written out, while settings are
being written to it each millisecond. After the next start the file must be whole, and no older than two seconds.

power_cut.py WRITER READER [--rounds N] [--system ext4|xfs|btrfs] [--options mount,options] [--size bytes]
             [--plain]   write and rename without any care, to see that the test notices

Needs root, loop devices and the file system's mkfs; without them it says so and ends with 77.
"""

import argparse
import ctypes
import fcntl
import os
import pathlib
import random
import shutil
import struct
import subprocess
import sys
import tempfile
import threading
import time

SHUTDOWN = 0x8004587D  # "going down" of ext4 and XFS
WITHOUT_LOG_FLUSH = struct.pack("I", 2)
KEYS = 40
OLDEST = 2.0  # seconds; the store promises one, a loaded machine may take longer
CLONE_NEWNS = 0x00020000


def skip(why):
    print(f"skipped: {why}")
    sys.exit(77)


def run(*command, **options):
    return subprocess.run(command, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options)


def first_content(size):
    """The file before the first write, padded to a size with rows that nobody changes."""
    rows = "".join(f"[Row {i}]\r\nPath=/srv/clips/morning/clip {i}.avi\r\n" for i in range(size // 50))
    keys = "".join(f"Key{n % KEYS}={n}\r\n" for n in range(1, KEYS + 1))
    return f"[Playlist]\r\n{keys}{rows}[Output]\r\nShow=True\r\n".encode()


class PlainWriter:
    """What most programs do: write beside, rename, no flush."""

    def __init__(self, path, first):
        self.reports = []
        self.path, self.number, self.ending = path, first, False
        self.thread = threading.Thread(target=self.work)
        self.thread.start()

    def work(self):
        content = self.path.read_bytes()
        beside = self.path.with_name("new")
        while not self.ending:
            key = f"\r\nKey{self.number % KEYS}=".encode()
            start = content.index(key) + len(key)
            content = content[:start] + str(self.number).encode() + content[content.index(b"\r\n", start):]
            try:
                beside.write_bytes(content)
                beside.rename(self.path)
            except OSError:
                return
            self.reports.append((time.monotonic(), self.number))
            self.number += 1
            time.sleep(0.001)

    def end(self):
        self.ending = True
        self.thread.join()


class StoreWriter:
    def __init__(self, program, path, first):
        self.reports = []
        self.process = subprocess.Popen([program, path, str(first)], stdout=subprocess.PIPE)
        self.thread = threading.Thread(target=self.listen)
        self.thread.start()

    def listen(self):
        while report := os.read(self.process.stdout.fileno(), 8):
            self.reports.append((time.monotonic(), struct.unpack("Q", report)[0]))

    def end(self):
        self.process.kill()
        self.process.wait()
        self.thread.join()
        self.process.stdout.close()


class Neighbour:
    """Another program that flushes a file of its own again and again, so that the journal commits at any moment."""

    def __init__(self, path):
        self.ending = False
        self.thread = threading.Thread(target=self.work, args=[path])
        self.thread.start()

    def work(self, path):
        with open(path, "wb", buffering=0) as file:
            while not self.ending:
                try:
                    file.write(b"x")
                    os.fsync(file.fileno())
                except OSError:
                    return
                time.sleep(0.02)

    def end(self):
        self.ending = True
        self.thread.join()


def fault_of(content, expected_rest, oldest):
    """What is wrong with the file after the cut; empty when nothing is."""
    if not content:
        return "empty"
    if b"\0" in content:
        return "holds zeros"
    numbers = []
    for key in range(KEYS):
        name = f"\r\nKey{key}=".encode()
        if content.count(name) != 1:
            return f"Key{key} is there {content.count(name)} times"
        start = content.index(name) + len(name)
        numbers.append(int(content[start:content.index(b"\r\n", start)]))
    newest = max(numbers)
    if sorted(numbers) != list(range(newest - KEYS + 1, newest + 1)):
        return f"a mixture of versions: {sorted(numbers)}"
    if not content.endswith(expected_rest):
        return "torn behind the keys"
    return f"as old as write {newest}, {oldest} was to be there" if newest < oldest else ""


def one_round(arguments, folder, image, random_moments):
    mount = pathlib.Path(folder, "mount")
    station = mount / "station"
    path = station / "Settings.ini"
    options = ",".join(filter(None, ["loop", arguments.options]))
    run("mount", "-t", arguments.system, "-o", options, image, mount)
    content = first_content(arguments.size)
    station.mkdir(exist_ok=True)
    path.write_bytes(content)
    os.sync()
    writer = PlainWriter(path, KEYS + 1) if arguments.plain else StoreWriter(arguments.writer, path, KEYS + 1)
    neighbour = Neighbour(mount / "neighbour")
    time.sleep(random_moments.uniform(0.1, 4.0))
    handle = os.open(mount, os.O_RDONLY)
    cut = time.monotonic()
    fcntl.ioctl(handle, SHUTDOWN, WITHOUT_LOG_FLUSH)
    os.close(handle)
    writer.end()
    neighbour.end()
    run("umount", mount)

    run("mount", "-t", arguments.system, "-o", options, image, mount)
    old_enough = [number for at, number in writer.reports if at < cut - OLDEST]
    if arguments.plain:
        found = path.read_bytes() if path.exists() else b""
    else:
        found = subprocess.run([arguments.reader, path], stdout=subprocess.PIPE).stdout
    fault = fault_of(found, content[content.index(b"[Row" if arguments.size else b"[Output]"):], max(old_enough, default=0))
    left = [name for name in os.listdir(station) if name != "Settings.ini"]
    if not fault and left and not arguments.plain:
        fault = f"left behind: {left}"
    shutil.rmtree(station)
    run("umount", mount)
    return fault, len(writer.reports)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("writer")
    parser.add_argument("reader")
    parser.add_argument("--rounds", type=int, default=8)
    parser.add_argument("--system", default="ext4")
    parser.add_argument("--options", default="")
    parser.add_argument("--size", type=int, default=0)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--plain", action="store_true")
    arguments = parser.parse_args()
    if os.geteuid() != 0 or not os.path.exists("/dev/loop-control"):
        skip("needs root and loop devices")
    if shutil.which(f"mkfs.{arguments.system}") is None:
        skip(f"needs mkfs.{arguments.system}")
    # A mount name space of its own: whatever happens, the mounts go with this process.
    if ctypes.CDLL(None).unshare(CLONE_NEWNS) != 0:
        skip("may not make a mount name space")
    random_moments = random.Random(arguments.seed)
    faults = []
    writes = 0
    with tempfile.TemporaryDirectory() as folder:
        image = pathlib.Path(folder, "image")
        with open(image, "wb") as file:
            file.truncate(400 << 20)
        run(f"mkfs.{arguments.system}", image)
        pathlib.Path(folder, "mount").mkdir()
        try:
            run("mount", "--make-rprivate", "/")
            run("mount", "-t", arguments.system, image, pathlib.Path(folder, "mount"))
            run("umount", pathlib.Path(folder, "mount"))
        except subprocess.CalledProcessError:
            skip("may not mount here")
        for number in range(1, arguments.rounds + 1):
            fault, reported = one_round(arguments, folder, image, random_moments)
            writes += reported
            if fault:
                faults.append(fault)
                print(f"round {number}: {fault}", flush=True)
    print(f"{arguments.rounds} cuts, {writes} writes, {len(faults)} faults")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
