"""faults.py PROGRAM WORLD COUNT [FIRST]: runs the program, which drives itself, in COUNT worlds with
broken files. It may neither crash nor hang nor lose a line of the settings, and may refuse to start
only where a region's file is missing."""

import os
import random
import resource
import subprocess
import sys

from worlds import World, spoil

FILE_MISSING = 1
# The sanitizers' own code is that of a missing file.
SANITIZER = 99
PATIENCE = 600
STEPS = 400


def forbid_writing():
    resource.setrlimit(resource.RLIMIT_FSIZE, (0, 0))


def run(world, seed, disk_full):
    """The program's exit code, none if it never ended, and what it said."""
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "LANG": "de_DE.UTF-8",
                   "LC_ALL": "de_DE.UTF-8", "HOME": world.folder, "PATH": "",
                   "ORVALIS_DRIVER_SEED": str(seed), "ORVALIS_DRIVER_STEPS": str(STEPS),
                   "ASAN_OPTIONS": f"detect_leaks=0:allocator_may_return_null=0:exitcode={SANITIZER}",
                   "UBSAN_OPTIONS": f"exitcode={SANITIZER}"}
    try:
        # Python ignores the signal of a full disk, and the program is to see the failed call instead.
        ended = subprocess.run([world.program], env=environment, timeout=PATIENCE,
                               restore_signals=False, stdin=subprocess.DEVNULL,
                               stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                               preexec_fn=forbid_writing if disk_full else None, **world.user)
    except subprocess.TimeoutExpired as late:
        return None, late.output or b""
    return ended.returncode, ended.stdout


def judge(world, code, settings):
    """What is wrong with this end of the program, if anything."""
    if code is None:
        return "never ends"
    if code == FILE_MISSING and not world.missing_files():
        return "refuses to start with all files there"
    if code not in (0, FILE_MISSING):
        return f"exit code {code}"
    lost = world.lost_settings(settings)
    return f"lost {[line[:80] for line in lost[:3]]}" if lost else None


def trial(program, source, seed):
    """The exit code of a run that did as it should, else none."""
    chance = random.Random(seed)
    world = World(program, source)
    done = [spoil(chance, world) for _ in range(chance.randint(1, 4))]
    disk_full = chance.random() < 0.15
    settings = world.settings()
    world.hand_over()
    code, output = run(world, seed, disk_full)
    failure = judge(world, code, settings)
    if failure:
        print(f"seed {seed}: {failure}; {', '.join(done)}{', disk full' if disk_full else ''}\n"
              f"{output.decode('utf-8', 'replace')[-3000:]}\nkept in {world.folder}", flush=True)
        return None
    world.remove()
    return code


def main():
    program, source, count = sys.argv[1], sys.argv[2], int(sys.argv[3])
    first = int(sys.argv[4]) if len(sys.argv) > 4 else 1
    codes = [trial(program, source, seed) for seed in range(first, first + count)]
    failed = codes.count(None)
    print(f"{count} broken worlds, {codes.count(FILE_MISSING)} of them without a region's file, "
          f"{failed} failures")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
