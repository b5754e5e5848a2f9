# SPDX-FileCopyrightText: 2026 The KorDaoUC authors
# SPDX-License-Identifier: MIT
"""What stands on the screen of with-x-server, and whether anything is still at work on it."""
import pathlib
import struct
import zlib


def picture(screen, to):
    """Writes the screen, which its server keeps in a file in the format of xwd, as PNG."""
    dump = pathlib.Path(screen).read_bytes()
    header = struct.unpack(">25I", dump[:100])
    size, width, height, bits, stride, colours = (header[at] for at in (0, 4, 5, 11, 12, 19))
    if bits != 32:
        raise RuntimeError(f"a screen of {bits} bits a dot")
    start = size + colours * 12
    lines = bytearray()
    for line in range(height):
        dots = dump[start + line * stride:][:4 * width]
        row = bytearray(3 * width)
        row[0::3], row[1::3], row[2::3] = dots[2::4], dots[1::4], dots[0::4]
        lines += b"\0" + row

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    to.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">2I5B", width, height, 8, 2, 0, 0, 0))
                   + chunk(b"IDAT", zlib.compress(bytes(lines), 6)) + chunk(b"IEND", b""))


def doings(processes):
    """What the threads of some processes have done so far: {thread: times that it went to sleep}, or None while one of
    them is at work."""
    slept = {}
    for process in processes:
        for thread in pathlib.Path(f"/proc/{process}/task").glob("*"):
            try:
                status = dict(line.split(":\t", 1) for line in (thread / "status").read_text().splitlines()
                              if ":\t" in line)
            except (FileNotFoundError, ProcessLookupError):
                return None
            if not status["State"].startswith("S"):
                return None
            slept[thread.name] = status["voluntary_ctxt_switches"], status["nonvoluntary_ctxt_switches"]
    return slept


def rests(server, others):
    """Whether all that was typed has arrived, and is shown: the server has nothing to do, at a moment in which nobody
    who could give it something has done anything. What it has done itself does not count, since its clock may tick on
    while it is idle."""
    before = doings(others)
    return before is not None and doings([server]) is not None and doings(others) == before
