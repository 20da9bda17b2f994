"""figures.py PROGRAM WORLD [TIMES]: what exporting the page costs, against reading and encoding its pictures."""

import base64
import pathlib
import re
import resource
import subprocess
import sys
import time


def taken(work, clock):
    start = clock()
    work()
    return clock() - start


def time_of_children():
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


def main():
    program, world = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()
    times = int(sys.argv[3]) if len(sys.argv) > 3 else 20

    def export():
        return subprocess.run([program, "export", "--world", world, "--format", "html"],
                              stdout=subprocess.PIPE, check=True).stdout

    page = export()
    wanted = [base64.b64decode(data) for data in re.findall(rb";base64,([^<]+)</script>", page)]
    files = {path.read_bytes(): path for path in world.rglob("*") if path.suffix in (".jpg", ".png", ".gif")}
    pictures = [files[data] for data in wanted]
    size = sum(map(len, wanted))

    def encode():
        return b"".join(base64.b64encode(picture.read_bytes()) for picture in pictures)

    # Processor time: what else runs on the machine hardly changes it.
    rounds = [(taken(export, time_of_children), taken(encode, time.process_time)) for _ in range(times)]
    exporting, encoding = (min(column) for column in zip(*rounds))
    print(f"{len(pictures)} pictures of {size} bytes; page {len(page)} bytes, ratio {len(page) / size:.2f} (at most 1.45)")
    print(f"export {exporting * 1000:.0f} ms, reading and encoding {encoding * 1000:.0f} ms, "
          f"ratio {exporting / encoding:.2f} (at most 3)")
    sys.exit(len(page) > 1.45 * size or exporting > 3 * encoding)


main()
