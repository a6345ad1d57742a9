# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Pictures of windows, and where they are kept."""

import dataclasses
import hashlib
import subprocess
from pathlib import Path

# A window that is not drawn yet is of few colours.
FEWEST_COLOURS = 16
# In seconds.
LONGEST = 40


class Failure(Exception):
    """A picture could not be made."""


@dataclasses.dataclass
class Picture:
    """What a window shows."""
    width: int
    height: int
    pixels: bytes

    def is_drawn(self) -> bool:
        step = 3 * max(1, len(self.pixels) // 60000)
        return len({self.pixels[i:i + 3] for i in range(0, len(self.pixels), step)}) > FEWEST_COLOURS


class Gallery:
    """Where the pictures of one run are kept; no two of them may be the same."""

    def __init__(self, folder: Path, suffix: str):
        self.folder = folder
        self.suffix = suffix
        self.names = {}

    def keep(self, name: str, picture: Picture):
        same = self.names.setdefault(hashlib.sha256(picture.pixels).hexdigest(), name)
        if same != name or list(self.names.values()).count(name) > 1:
            raise Failure(f"{name} looks the same as {same}, or was taken twice")
        file = self.folder / f"{name}-{self.suffix}.png"
        subprocess.run(["convert", "-size", f"{picture.width}x{picture.height}", "-depth", "8", "rgb:-", "-strip",
                        f"png24:{file}"], input=picture.pixels, check=True, timeout=LONGEST)
        if not file.stat().st_size:
            raise Failure(f"{file} is empty")
        print(f"  {name}", flush=True)


class Unseen:
    """Takes the pictures of a way that has been gone before, and keeps none."""

    def keep(self, *_):
        pass
