"""faults.py PROGRAM WORLD COUNT [FIRST]: runs the program, which drives itself, in COUNT worlds with
broken files. It may neither crash nor hang nor lose a line of the settings, and may refuse to start
only where a region's file is missing. Then the companion, built beside it, reads each of these worlds:
it may neither crash nor hang nor change anything."""

import os
import random
import resource
import shutil
import subprocess
import sys
import tempfile

from worlds import World, spoil

FILE_MISSING = 1
# The sanitizers' own code is that of a missing file.
SANITIZER = 99
PATIENCE = 600
STEPS = 400
COMPANION = os.path.join(os.path.dirname(sys.argv[1]), "..", "..", "bin", "orvalis-world")
# Of processor time: 3 are ample, but not where sanitizers make everything twenty times as slow.
COMPANION_SECONDS = 60
QUESTIONS = (("check",), ("find", "a"), ("export", "--format", "csv"))
COMPANION_CODES = (0, 1, 2)


def run(world, command, limits, seed):
    """The exit code of the command, none if it never ended, and what it said."""
    environment = {**world.environment(), "ORVALIS_DRIVER_SEED": str(seed),
                   "ORVALIS_DRIVER_STEPS": str(STEPS),
                   "ASAN_OPTIONS": f"detect_leaks=0:allocator_may_return_null=0:exitcode={SANITIZER}",
                   "UBSAN_OPTIONS": f"exitcode={SANITIZER}"}
    try:
        # Python ignores the signal of a full disk, and the program is to see the failed call instead.
        ended = subprocess.run(command, env=environment, timeout=PATIENCE,
                               restore_signals=False, stdin=subprocess.DEVNULL,
                               stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                               preexec_fn=lambda: [resource.setrlimit(what, (most, most))
                                                   for what, most in limits.items()],
                               **world.user)
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


def ask_companion(companion, world, limits, seed):
    """What is wrong with the companion's answers, if anything, and what it said."""
    for question in QUESTIONS:
        before = world.state()
        code, output = run(world, [companion, *question, "--world", world.folder],
                           {**limits, resource.RLIMIT_CPU: COMPANION_SECONDS}, seed)
        if code not in COMPANION_CODES:
            return f"{question[0]}: exit code {code}", output
        if world.state() != before:
            return f"{question[0]} changes the world", output
    return None, b""


def trial(program, companion, source, seed):
    """The exit code of a run that did as it should, else none."""
    chance = random.Random(seed)
    world = World(program, source)
    done = [spoil(chance, world) for _ in range(chance.randint(1, 4))]
    limits = {resource.RLIMIT_FSIZE: 0} if chance.random() < 0.15 else {}
    settings = world.settings()
    world.hand_over()
    code, output = run(world, [world.program], limits, seed)
    failure = judge(world, code, settings)
    if not failure:
        failure, output = ask_companion(companion, world, limits, seed)
    if failure:
        print(f"seed {seed}: {failure}; {', '.join(done)}{', disk full' if limits else ''}\n"
              f"{output.decode('utf-8', 'replace')[-3000:]}\nkept in {world.folder}", flush=True)
        return None
    world.remove()
    return code


def main():
    program, source, count = sys.argv[1], sys.argv[2], int(sys.argv[3])
    first = int(sys.argv[4]) if len(sys.argv) > 4 else 1
    with tempfile.TemporaryDirectory() as folder:
        # The user of the worlds may not reach where it was built.
        os.chmod(folder, 0o755)
        companion = shutil.copy(COMPANION, folder)
        codes = [trial(program, companion, source, seed) for seed in range(first, first + count)]
    failed = codes.count(None)
    print(f"{count} broken worlds, {codes.count(FILE_MISSING)} of them without a region's file, "
          f"{failed} failures")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
