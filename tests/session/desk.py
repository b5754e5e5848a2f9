# SPDX-FileCopyrightText: 2026 The KorDaoUC authors
# SPDX-License-Identifier: MIT
"""The desk of a clerk who has a keyboard and a screen, and nothing else."""
import contextlib
import os
import re
import subprocess
import sys
import time

import screen

PATIENCE = 60  # seconds for what should come at once, on a machine that may be busy


class Desk:
    """One program in a home folder of its own, under with-x-server. It is waited for by what it shows: the title of the
    window that has the keyboard, a file, its end. Each step leaves its picture, also the one that fails."""

    def __init__(self, command, home, pictures):
        self.command = command
        self.home = home
        self.pictures = pictures
        self.process = None
        self.steps = 0
        self.documents = home / "Documents"
        self.documents.mkdir(parents=True)
        pictures.mkdir(parents=True, exist_ok=True)
        for old in pictures.glob("*.png"):
            old.unlink()
        # The keys of a Polish keyboard, with the letters behind AltGr. The mouse lies aside.
        subprocess.run(["setxkbmap", "pl"], check=True)
        self.xdotool("mousemove", "1279", "1023")

    @staticmethod
    def xdotool(*words):
        subprocess.run(["xdotool", *words], check=True)

    # --- the program

    def start(self):
        environment = {name: value for name, value in os.environ.items()
                       if not name.startswith(("XDG_", "QT_QPA_PLATFORMTHEME", "DBUS_"))}
        runtime = self.home / "run"
        runtime.mkdir(mode=0o700, exist_ok=True)
        environment |= {"HOME": str(self.home), "XDG_RUNTIME_DIR": str(runtime)}
        self.process = subprocess.Popen(self.command, env=environment, cwd=self.home, stderr=subprocess.PIPE, text=True)

    def await_end(self, failed=False):
        """Until the program has ended by itself: in silence, or with a failure that it has told of."""
        said = self.process.communicate(timeout=PATIENCE)[1]
        ended = self.process.returncode
        self.process = None
        if (ended, bool(said)) != ((1, True) if failed else (0, False)):
            raise RuntimeError(f"the program ended with {ended} and said: {said}")

    def kill(self):
        self.process.kill()
        self.process.communicate()
        self.process = None

    # --- the keyboard

    def press(self, *keys):
        self.xdotool("key", *keys)

    def write(self, text):
        self.xdotool("type", "--delay", "5", text)

    # --- the screen

    def focused(self):
        """The title of the window that has the keyboard; "" while none has it."""
        return subprocess.run(["xdotool", "getwindowfocus", "getwindowname"], capture_output=True, text=True,
                              check=False).stdout.strip()

    def await_window(self, title):
        """Until the keyboard is in the window of that title (a pattern)."""
        self.await_state(lambda: re.fullmatch(title, self.focused()), lambda: f"{title} not, but {self.focused()}")

    def await_file(self, name):
        self.await_state((self.documents / name).exists, lambda: f"no {name}")
        return self.documents / name

    def await_rest(self):
        """Until all that was typed has arrived, and is shown."""
        server, manager = os.environ["KOR_TEST_SERVERS"].split()
        self.await_state(lambda: screen.rests(server, [manager, self.process.pid]),
                         lambda: "the program does not come to rest")

    def await_state(self, has_come, complaint):
        end = time.monotonic() + PATIENCE
        while not has_come():
            if self.process.poll() is not None:
                raise RuntimeError(f"the program has ended with {self.process.returncode}: "
                                   + self.process.stderr.read())
            if time.monotonic() > end:
                raise RuntimeError(complaint())
            time.sleep(0.01)

    def picture(self, name):
        if self.process:
            self.await_rest()
        self.draw(name)

    def draw(self, name):
        screen.picture(os.environ["KOR_TEST_SCREEN"], self.pictures / f"{self.steps:02}-{name.replace(' ', '-')}.png")

    # --- the story

    @contextlib.contextmanager
    def step(self, name):
        self.steps += 1
        try:
            yield
            self.picture(name)
        except Exception as error:
            self.draw(f"FAILED {name}")
            if self.process:
                self.kill()
            sys.exit(f"step {self.steps}, {name}: {error}\n(pictures in {self.pictures})")
