"""Which machine a shared library is for. The build backend reads this file too, so that it imports nothing of ours."""

from __future__ import annotations

import struct
from typing import Optional


def machine_of(path: str) -> Optional[tuple[str, int, int]]:
    """The kind of file, the machine that it is for, and the width of addresses; None if it is no ELF or PE file.

    The width is 0 for a PE file, whose machine tells it.
    """
    with open(path, "rb") as file:
        head = file.read(4096)
    if len(head) >= 20 and head[:4] == b"\x7fELF":
        order = ">" if head[5] == 2 else "<"
        return "ELF", struct.unpack_from(order + "H", head, 18)[0], 64 if head[4] == 2 else 32
    if len(head) >= 64 and head[:2] == b"MZ":
        at = struct.unpack_from("<I", head, 60)[0]
        if head[at : at + 4] == b"PE\0\0" and len(head) >= at + 6:
            return "PE", struct.unpack_from("<H", head, at + 4)[0], 0
    return None
