# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The application on a made-up machine, its keyboard, and pictures of its windows."""

import contextlib
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from gallery import LONGEST, Failure, Gallery, Picture

HERE = Path(__file__).resolve().parent
# As the person at the machine is called.
HOME = "/home/ada"
COLOURS = {"light": ("246,246,248", "29,29,31"), "dark": ("28,28,31", "245,245,247")}
# What the machine must not have unless the picture is of one that does.
HIDDEN_TOOLS = {"tracker3", "balooctl", "balooctl6"}
DEVICE_TOOLS = {"idevice_id", "ideviceinfo", "afcclient"}
# In seconds, between two looks.
LOOK = 0.25


def output(*command: str) -> bytes:
    return subprocess.run(command, check=True, capture_output=True, timeout=LONGEST).stdout


class Machine:
    """A place with a home, programs and stand-ins; the application runs on it between `with`."""

    def __init__(self, settings, scheme: str, gallery: Gallery, home=("demo",), tools=(), full=False, bare=False,
                 trayed=False, prepare=None, running=None):
        self.settings = settings
        self.scheme = scheme
        self.gallery = gallery
        self.room = "full" if full else "roomy"
        self.bare = bare
        self.trayed = trayed
        self.running = running
        self.processes = []
        self.place = Path(tempfile.mkdtemp(prefix="korvane-pictures."))
        self.home = self.place / "home"
        self.stand_ins = self.place / "stand-ins"
        self.stand_ins.mkdir()
        self.application = None
        self.last = None
        self.other = ""
        try:
            self.furnish(home, set(tools))
            if prepare:
                prepare(self)
        except BaseException:
            self.clear()
            raise

    def furnish(self, home, tools: set):
        if "demo" in home:
            subprocess.run([HERE.parent / "demo-home", self.home], check=True)
        (self.home / ".config").mkdir(parents=True, exist_ok=True)
        (self.home / "tmp").mkdir(exist_ok=True)
        for folder, name in ((self.home / ".config", "Larkpost"), (self.stand_ins / "xdg", "Harbour Sync")):
            (folder / "autostart").mkdir(parents=True)
            (folder / f"autostart/{name}.desktop").write_text(
                f"[Desktop Entry]\nType=Application\nName={name}\nExec=/usr/bin/{name.split()[0].lower()} --hidden\n")
        window, text = COLOURS[self.scheme]
        # Qt takes the colours of the desktop from here, and that the cursor of a text does not blink.
        (self.home / ".config/kdeglobals").write_text("[KDE]\nCursorBlinkRate=0\n\n" + "\n".join(
            f"[Colors:{group}]\nBackgroundNormal={window}\nForegroundNormal={text}\n"
            for group in ("Window", "View", "Button", "Tooltip", "Selection")))
        programs = self.place / "bin"
        programs.mkdir()
        made = {file.name for file in (HERE / "tools").iterdir()}
        own = made & tools if self.bare else made - (DEVICE_TOOLS - tools)
        for name in os.listdir("/usr/bin"):
            if name not in made and name not in HIDDEN_TOOLS:
                (programs / name).symlink_to(self.place / "usr-bin" / name)
        for name in own:
            shutil.copy(HERE / "tools" / name, programs / name)

    def __enter__(self):
        try:
            self.start()
        except BaseException:
            self.clear()
            raise
        return self

    def __exit__(self, *_):
        self.clear()

    def clear(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait(timeout=LONGEST)
            if process is self.application:
                # What it has started, and what stands in for another application.
                with contextlib.suppress(ProcessLookupError):
                    os.killpg(process.pid, signal.SIGTERM)
        shutil.rmtree(self.place)

    def environment(self) -> dict:
        kept = ("PATH", "DISPLAY", "XAUTHORITY", "QT_QUICK_BACKEND", "LIBGL_ALWAYS_SOFTWARE")
        result = {name: os.environ[name] for name in kept if name in os.environ}
        result.update({
            "HOME": HOME, "TMPDIR": f"{HOME}/tmp", "QT_QPA_PLATFORM": "xcb", "MESA_SHADER_CACHE_DISABLE": "true",
            "XDG_RUNTIME_DIR": str(self.place), "XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5",
            "XDG_CONFIG_DIRS": str(self.stand_ins / "xdg"), "LANG": "C.UTF-8",
            "STAND_INS": str(self.stand_ins), "LD_PRELOAD": str(self.settings.brake),
            "BRAKE_READING": str(self.stand_ins / "hold-reading"), "BRAKE_MOVING": str(self.stand_ins / "hold-moving"),
        })
        if self.settings.language:
            result.update({"LANGUAGE": self.settings.language, "LANG": self.settings.locale})
        return result

    def start(self):
        if self.trayed:
            self.processes.append(subprocess.Popen(
                ["trayer", "--edge", "top", "--align", "right", "--widthtype", "request", "--height", "24"]))
        command = [str(self.settings.program)]
        if self.running:
            # Not a shell's job: a stand-in for an application that the user has open.
            shutil.copy("/usr/bin/sleep", self.home / self.running)
            command = ["sh", "-c", '"$1" 1000 & shift; exec "$@"', "sh", f"{HOME}/{self.running}", *command]
        self.application = subprocess.Popen(
            ["unshare", "--mount", *self.settings.ordinary, HERE / "machine.sh", self.place, HOME, self.room, *command],
            env=self.environment(), stderr=sys.stderr, start_new_session=True)
        self.processes.append(self.application)
        self.known = set()
        self.window = self.new_window()
        width, height = self.settings.size
        output("xdotool", "windowsize", "--sync", self.window, str(width), str(height))
        output("xdotool", "windowmove", self.window, "40", "60")
        output("xdotool", "windowactivate", "--sync", self.window)
        self.park()

    def windows(self) -> set:
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(self.application.pid)],
                               capture_output=True, text=True, timeout=LONGEST, check=False)
        return set(found.stdout.split())

    def new_window(self) -> str:
        """The window of the application that has come since."""
        def look():
            if self.application.poll() is not None:
                raise Failure(f"the application ended with {self.application.returncode}")
            return self.windows() - self.known
        found = self.wait_for(look, "a window")
        window = min(found, key=int)
        self.known.add(window)
        return window

    def wait_for(self, question, what: str):
        end = time.monotonic() + LONGEST
        while time.monotonic() < end:
            answer = question()
            if answer:
                return answer
            time.sleep(LOOK)
        raise Failure(f"waited in vain for {what}")

    # What a person does.

    def press(self, *keys: str, times: int = 1):
        output("xdotool", "key", "--delay", "30", *(keys * times))
        time.sleep(0.1)

    def write(self, text: str):
        output("xdotool", "type", "--delay", "30", text)

    def park(self):
        """Takes the pointer to where it is over nothing."""
        output("xdotool", "mousemove", "0", str(self.settings.screen[1] - 1))

    def make_room(self):
        """Takes the window from where another comes: that shows what lies beneath it until it is drawn."""
        width, height = self.settings.screen
        output("xdotool", "windowmove", self.window, str(width - 10), str(height - 10))

    def open_settings(self) -> str:
        self.make_room()
        self.press("ctrl+comma")
        window = self.new_window()
        output("xdotool", "windowmove", "--sync", window, "40", "60")
        return window

    def click_icon(self):
        """The application's own among the icons of the machine."""
        self.make_room()
        icon = min(self.wait_for(lambda: self.windows() - {self.window}, "an icon"), key=int)
        self.known.add(icon)
        output("xdotool", "mousemove", "--window", icon, "8", "8", "click", "1")

    def put_keyboard_away(self):
        """Another window has the keyboard from now on, so that nothing shows where it was."""
        if not self.other:
            self.processes.insert(0, subprocess.Popen(["display", "-size", "8x8", "-geometry", "+0+0", "xc:gray"]))
            found = output("xdotool", "search", "--sync", "--onlyvisible", "--class", "display")
            self.other = found.decode().split()[0]
        output("xdotool", "windowactivate", "--sync", self.other)

    def take_keyboard(self):
        output("xdotool", "windowactivate", "--sync", self.window)

    def vanish(self, paths):
        """Takes away what the application has found."""
        for path in paths:
            file = self.home / path
            if file.is_dir():
                shutil.rmtree(file)
            else:
                file.unlink()

    # What keeps a moment.

    def hold(self, name: str, number: int = 0):
        (self.stand_ins / f"hold-{name}").write_text(str(number))

    def let_go(self, name: str):
        (self.stand_ins / f"hold-{name}").unlink()

    # The pictures.

    def look(self, window: str):
        shell = output("xdotool", "getwindowgeometry", "--shell", window).decode()
        place = dict(line.split("=") for line in shell.split())
        picture = Picture(int(place["WIDTH"]), int(place["HEIGHT"]),
                          output("import", "-silent", "-window", window, "-depth", "8", "rgb:-"))
        return picture if len(picture.pixels) == 3 * picture.width * picture.height else None

    def shoot_unfocused(self, name: str, moving: bool = False):
        self.put_keyboard_away()
        self.shoot(name, moving=moving)
        self.take_keyboard()

    def shoot(self, name: str, window: str = "", moving: bool = False):
        """Keeps what a window shows once that is another picture than the last and does not change any more; of what
        moves for ever, what it shows once it is another one for a second."""
        try:
            self.settle(window, moving)
        except Failure as failure:
            raise Failure(f"{name}: {failure}") from None
        self.gallery.keep(name, self.last)

    def settle(self, window: str = "", moving: bool = False):
        """Waits until there is something to be kept."""
        before = None
        since = time.monotonic()
        end = since + LONGEST
        same = 0
        while time.monotonic() < end:
            time.sleep(LOOK)
            now = self.look(window or self.window)
            is_new = now is not None and now != self.last and now.is_drawn()
            same = same + 1 if is_new and now == before else 0
            if not is_new:
                since = time.monotonic()
            elif (moving and time.monotonic() - since > 1) or (not moving and same >= 2):
                self.last = now
                return
            before = now
        raise Failure("nothing changed" if self.last == before else "it never came to rest")

