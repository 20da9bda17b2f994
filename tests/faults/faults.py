"""faults.py PROGRAM WORLD COUNT [FIRST]: runs the program, which drives itself, in COUNT worlds with
broken files. It may neither crash nor hang nor lose a line of the settings."""

import os
import random
import resource
import subprocess
import sys
import tempfile

from worlds import World, spoil

FILE_MISSING = 1
PATIENCE = 120


def forbid_writing():
    resource.setrlimit(resource.RLIMIT_FSIZE, (0, 0))


def run(world, seed, steps, disk_full):
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "LANG": "de_DE.UTF-8",
                   "LC_ALL": "de_DE.UTF-8", "HOME": world.folder, "PATH": "",
                   "ORVALIS_DRIVER_SEED": str(seed), "ORVALIS_DRIVER_STEPS": str(steps),
                   "ASAN_OPTIONS": "detect_leaks=0:allocator_may_return_null=0"}
    # Python ignores the signal of a full disk, and the program is to see the failed call instead.
    with tempfile.TemporaryFile() as output:
        try:
            code = subprocess.run([world.program], env=environment, timeout=PATIENCE,
                                  restore_signals=False, stdin=subprocess.DEVNULL,
                                  stdout=subprocess.PIPE if disk_full else output,
                                  stderr=subprocess.STDOUT,
                                  preexec_fn=forbid_writing if disk_full else None).returncode
        except subprocess.TimeoutExpired:
            return "hangs", ""
        output.seek(0)
        text = output.read().decode("utf-8", "replace")
    return None if code in (0, FILE_MISSING) else f"exit code {code}", text


def trial(program, source, seed):
    chance = random.Random(seed)
    world = World(program, source)
    settings_spoiled = False
    done = []
    for _ in range(chance.randint(1, 4)):
        done.append(spoil(chance, world))
        settings_spoiled = settings_spoiled or "orvalis.ini" in done[-1]
    disk_full = chance.random() < 0.15
    failure, text = run(world, seed, 60, disk_full)
    if not failure and not settings_spoiled and world.lost_settings():
        failure = f"lost {world.lost_settings()}"
    if failure:
        print(f"seed {seed}: {failure}; {', '.join(done)}{', disk full' if disk_full else ''}\n"
              f"{text[-3000:]}\nkept in {world.folder}", flush=True)
        return False
    world.remove()
    return True


def main():
    program, source, count = sys.argv[1], sys.argv[2], int(sys.argv[3])
    first = int(sys.argv[4]) if len(sys.argv) > 4 else 1
    failed = sum(not trial(program, source, seed) for seed in range(first, first + count))
    print(f"{count} broken worlds, {failed} failures")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
