"""longuse.py PROGRAM WORLD MINUTES: lets the program drive itself with random commands that long; the
memory that it uses must have stopped to grow."""

import os
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "faults"))
from worlds import World  # noqa: E402

ENDLESS = 2_000_000_000
# Caches of fonts and pictures come and go by this much.
SWING = 1.1


def resident(line):
    return int(line.split()[1]) if line.startswith("resident") else None


def main():
    program, source, minutes = sys.argv[1], sys.argv[2], float(sys.argv[3])
    world = World(program, source)
    environment = {**world.environment(), "ORVALIS_DRIVER_STEPS": str(ENDLESS)}
    process = subprocess.Popen([world.program], env=environment, stdout=subprocess.PIPE, text=True,
                               stderr=subprocess.DEVNULL)
    sizes = []
    end = time.time() + minutes * 60
    for line in process.stdout:
        size = resident(line)
        if size:
            sizes.append(size)
        else:
            print(line, end="")
        if time.time() > end:
            process.kill()
            break
    code = process.wait()
    world.remove()
    third = len(sizes) // 3
    if third == 0 or code != -9:
        print(f"ended early with {code} after {len(sizes)} hundred steps")
        return 1
    middle, last = max(sizes[third:2 * third]), max(sizes[2 * third:])
    print(f"{len(sizes)} hundred steps; KiB resident: {sizes[0]} at first, at most {middle} in the "
          f"second third and {last} in the last")
    return 0 if last <= middle * SWING else 1


if __name__ == "__main__":
    sys.exit(main())
