"""The screen as a person has it: windows and controls by what they are called, real keys and
clicks. What is seen comes over the accessibility bus, as a screen reader gets it."""

import configparser
import os
import pathlib
import subprocess
import time

import pyatspi
from gi.repository import Atspi, GLib

PATIENCE = 8  # seconds that anything on the screen may take

Atspi.set_timeout(2000, 5000)  # milliseconds: for an answer, and for one of a program that starts
desktop = pyatspi.Registry.getDesktop(0)
desktop.set_cache_mask(Atspi.Cache.NONE)


def wait_for(what, question):
    """The first true answer to a question that is asked again and again."""
    end = time.monotonic() + PATIENCE
    while True:
        try:
            if answer := question():
                return answer
        except (GLib.Error, LookupError):
            pass  # a window went while it was looked at
        if time.monotonic() > end:
            raise AssertionError(f"waited in vain for {what}; on the screen:\n{screen_text()}")
        time.sleep(0.02)


def expect(what, ask, wanted):
    """Waits until the answer is the one wanted, and tells both if it does not come."""
    seen = None

    def same():
        nonlocal seen
        seen = ask()
        return seen == wanted

    try:
        wait_for(what, same)
    except AssertionError as late:
        raise AssertionError(f"{what} is {seen!r}, not {wanted!r}") from late


def keys(*names):
    subprocess.run(["xdotool", "key", "--delay", "15", *names], check=True, timeout=PATIENCE)


def write(text):
    subprocess.run(["xdotool", "type", "--delay", "15", text], check=True, timeout=PATIENCE)


class Control:
    """A control or a window, with what it holds."""

    def __init__(self, node):
        self.node = node

    @property
    def name(self):
        return self.node.name

    @property
    def role(self):
        return self.node.getRoleName()

    @property
    def text(self):
        return self.node.queryText().getText(0, -1)

    def has(self, state):
        return self.node.getState().contains(state)

    @property
    def is_shown(self):
        return self.has(pyatspi.STATE_SHOWING)

    @property
    def is_focused(self):
        return self.has(pyatspi.STATE_FOCUSED)

    @property
    def is_checked(self):
        return self.has(pyatspi.STATE_CHECKED)

    @property
    def place(self):
        box = self.node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return box.x, box.y, box.width, box.height

    def click(self):
        left, top, width, height = self.place
        subprocess.run(["xdotool", "mousemove", str(left + width // 2), str(top + height // 2),
                        "click", "1"], check=True, timeout=PATIENCE)

    def inner(self):
        """All controls in it that are on the screen, in their order."""
        for i in range(self.node.childCount):
            child = self.node.getChildAtIndex(i)
            if child is None:
                continue
            control = Control(child)
            if control.is_shown:
                yield control
            yield from control.inner()

    def all(self, role):
        return [control for control in self.inner() if control.role == role]

    def find(self, role, name):
        found = [control for control in self.all(role) if control.name == name]
        return found[0] if found else None

    def get(self, role, name):
        return wait_for(f"{role} {name!r}", lambda: self.find(role, name))

    def field(self, caption):
        return self.get("text", caption)

    def press(self, caption):
        self.get("push button", caption).click()

    def says(self, text):
        """Whether one of its labels holds the text."""
        return any(text in label.name for label in self.all("label"))


def windows():
    return [Control(window) for program in desktop if program is not None and program.name == "Korvane"
            for window in program if window is not None]


def find_window(title):
    """A window by its title, without the blanks around; those in front come last."""
    found = [w for w in windows() if w.name.strip() == title and w.is_shown]
    return found[-1] if found else None


def window(title):
    return wait_for(f"window {title!r}", lambda: find_window(title))


def active_title():
    return next((w.name.strip() for w in windows() if w.has(pyatspi.STATE_ACTIVE)), None)


def manage(title, *request):
    """Asks the window manager for something about a window, once that one is in front."""
    expect("the window in front", active_title, title)
    wait_for("the window manager", lambda: subprocess.run(
        ["wmctrl", "-r", ":ACTIVE:", *request], timeout=5).returncode == 0)


def screen_text():
    lines = []
    for shown in windows():
        lines.append(f"  window {shown.name!r}")
        lines += [f"    {control.role} {control.name!r}" for control in shown.inner()]
    return "\n".join(lines) or "  nothing"


MAIN = "Kor va ne"  # the main window's title, once its pieces have slid together


class Korvane:
    """Runs of the program with settings of their own in the given folder."""

    def __init__(self, program, folder):
        self.program = os.path.realpath(program)
        self.folder = pathlib.Path(folder)
        self.runtime = self.folder / "runtime"
        self.runtime.mkdir(mode=0o700)
        self.settings_file = self.folder / "config" / "Korvane" / "Korvane.ini"
        self.process = None

    def launch(self, *wrapper):
        """Starts the program, and waits for nothing."""
        environment = dict(os.environ, XDG_CONFIG_HOME=str(self.folder / "config"),
                           XDG_RUNTIME_DIR=str(self.runtime))
        with open(self.folder / "errors", "ab") as errors:
            self.process = subprocess.Popen([*wrapper, self.program], env=environment, stderr=errors,
                                            cwd=self.folder, start_new_session=True)

    def start(self, *wrapper):
        """Starts the program and returns its main window, with the splash window gone."""
        self.launch(*wrapper)
        main = window(MAIN)
        expect("the window in front", active_title, MAIN)
        return main

    def exit_status(self):
        try:
            return self.process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            raise AssertionError(f"the program did not end; on the screen:\n{screen_text()}") from None

    def stop(self):
        if self.process is not None and self.process.poll() is None:
            os.killpg(self.process.pid, 9)
            self.process.wait()
        wait_for("the end of the program", lambda: not windows())

    def settings(self):
        """What the settings file holds, as text by key."""
        reader = configparser.ConfigParser(interpolation=None)
        reader.optionxform = lambda key: key.replace("%20", " ")
        reader.read(self.settings_file)
        return dict(reader["Settings"]) if "Settings" in reader else {}

    def write_settings(self, **values):
        self.settings_file.parent.mkdir(parents=True, exist_ok=True)
        lines = [f"{key}={value}\n" for key, value in values.items()]
        self.settings_file.write_text("[Settings]\n" + "".join(lines))


def menu(*captions):
    """Picks an entry of the main window's menu by the mouse."""
    at = window(MAIN).find("menu bar", "")
    for caption in captions:
        at = at.get("menu item", caption)
        at.click()


def calculator(program):
    """A fresh run with the orifice calculator open and in front."""
    program.start()
    menu("HVAC", "Orifice Flow")
    found = window("Orifice Flow Calculations (Air)")
    expect("the window in front", active_title, found.name.strip())
    return found
