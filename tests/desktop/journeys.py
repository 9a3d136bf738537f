"""Journeys of a person at the real program, each in a run with fresh settings:
journeys.py PROGRAM [JOURNEY ...]; tests/desktop/run gives it a display."""

import pathlib
import signal
import subprocess
import sys
import tempfile
import time
import traceback
import unittest

import pyatspi

from screen import (Korvane, MAIN, active_title, calculator, expect, find_window, keys, manage,
                    menu, wait_for, window, write)

TIME_LIMIT = 30  # seconds for a journey
CALCULATOR = "Orifice Flow Calculations (Air)"


# ---- Start and end ----

def first_start(korvane):
    """The splash window, then the main window; the settings are made."""
    korvane.launch()
    splash = wait_for("the splash window", lambda: find_window("Korvane"))
    wait_for("the version", lambda: splash.says("Version 2.0.5"))
    window(MAIN)
    wait_for("the end of the splash window", lambda: find_window("Korvane") is None)
    folder = str(pathlib.Path(korvane.program).parent) + "/"
    expect("the settings", korvane.settings, {"Data Path": folder, "Units": "US"})
    menu("File", "Exit")
    expect("the exit status", korvane.exit_status, 0)
    for key, value in {"Top": "0", "Left": "0", "Height": "870", "Width": "8715"}.items():
        expect(f"the setting {key}", lambda: korvane.settings().get(key), value)


def bad_setting(korvane):
    """A stored place that is no number: the error box, and the end with status 1."""
    korvane.write_settings(Top="abc")
    korvane.launch()
    box = window("Korvane")
    wait_for("the failure's text", lambda: box.says("Type mismatch"))
    keys("Return")
    expect("the exit status", korvane.exit_status, 1)


def geometry_is_kept(korvane):
    """A main window that is moved and resized opens there and so at the next start."""
    main = korvane.start()
    manage(MAIN, "-e", "0,200,150,700,90")
    expect("the size", lambda: main.place[2:], (700, 90))
    placed = main.place
    menu("File", "Exit")
    expect("the exit status", korvane.exit_status, 0)
    stored = {key: float(value) for key, value in korvane.settings().items()
              if key in ("Left", "Top", "Width", "Height")}
    # Stored is the window with its frame, whose parts are but some pixels thick, at 15 twips a pixel.
    for key, inner in {"Left": 200, "Top": 150, "Width": 700, "Height": 90}.items():
        assert 0 <= abs(stored[key] - inner * 15) <= 60 * 15, stored
    main = korvane.start()
    expect("the place", lambda: main.place, placed)


def exit_while_maximized(korvane):
    """The default place is stored, not the maximized one."""
    main = korvane.start()
    width = main.place[2]
    manage(MAIN, "-b", "add,maximized_vert,maximized_horz")
    wait_for("the large window", lambda: main.place[2] > width)
    menu("File", "Exit")
    expect("the exit status", korvane.exit_status, 0)
    for key, value in {"Top": "0", "Left": "0", "Height": "870", "Width": "8715"}.items():
        assert korvane.settings().get(key) == value, korvane.settings()


def exit_with_calculator_open(korvane):
    """The calculator lives on without a main window, and the program ends with it."""
    orifice = calculator(korvane)
    menu("File", "Exit")
    wait_for("the end of the main window", lambda: find_window(MAIN) is None)
    enter(orifice, "Diameter (in)", "1")
    expect("the area", lambda: orifice.field("Area (in2)").text, ".785398")
    assert korvane.process.poll() is None
    orifice.press("Exit")
    expect("the exit status", korvane.exit_status, 0)


def beam_palette(korvane):
    """A case from the palette, which hides then, and keeps the program from ending no longer."""
    korvane.start()
    menu("Mechanical", "Stress and Deflection", "Beams II")
    beams = window("Stress and Deflection of Beams")
    beams.press("Select Case...")
    palette = window("Select Beam Type and Loading Geometry")
    palette.press("Fixed ends, concentrated load (P) at any point")
    wait_for("the end of the palette",
             lambda: find_window("Select Beam Type and Loading Geometry") is None)
    wait_for("the case", lambda: beams.says("Fixed ends, concentrated load (P) at any point"))
    beams.press("Exit")
    menu("File", "Exit")
    expect("the exit status", korvane.exit_status, 0)


def about(korvane):
    """The main window hides behind the About window, whose Disagree ends the program at once."""
    orifice = calculator(korvane)
    menu("Help", "About...")
    splash = window("Korvane")
    assert find_window(MAIN) is None and orifice.is_shown
    splash.press("Read the Disclaimer")
    box = window("Korvane  -  D I S C L A I M E R")
    assert box.says("You must accept these terms if you wish to use the software.")
    keys("Return")
    splash.press("Agree")
    window(MAIN)
    menu("Help", "About...")
    window("Korvane").press("Disagree")
    expect("the exit status", korvane.exit_status, 0)


# ---- A calculator by the keyboard ----

def enter(where, caption, text):
    """Types a text in the place of the old one, and Enter."""
    where.field(caption).click()
    keys("ctrl+a")
    write(text)
    keys("Return")


def keyboard_alone(korvane):
    """From the menu to the result without the mouse."""
    main = korvane.start()
    keys("Alt_L")
    walk_to("Right", main, "HVAC")
    keys("Down")
    walk_to("Down", main, "Orifice Flow")
    keys("Return")
    orifice = window(CALCULATOR)
    wait_for("the focus", lambda: orifice.field("Diameter (in)").is_focused)
    keys("ctrl+a", "1", "Return", "Tab", "Tab", "ctrl+a", "1", "Return")
    expect("the flow", lambda: orifice.field("Flow Rate (CFM)").text, "21.843882")
    assert orifice.field("Pressure (in WC)").is_focused
    keys("shift+Tab", "shift+Tab", "ctrl+a", "2", "Return")
    expect("the area", lambda: orifice.field("Area (in2)").text, "3.141593")


def walk_to(key, main, caption):
    """Presses an arrow key until the menu entry is the current one."""
    entry = main.get("menu item", caption)
    for _ in range(50):
        if entry.is_focused:
            return
        keys(key)
    raise AssertionError(f"the key {key} does not reach {caption}")


def tab_order(korvane):
    """Tab stops once at each control, as the eye goes, and comes back; Shift+Tab walks back."""
    orifice = calculator(korvane)
    stops = ["Diameter (in)", "Area (in2)", "Pressure (in WC)", "Flow Rate (CFM)", "Ideal",
             "Discharge Coefficient", "Calculate", "Load", "Save", "Help", "Exit"]
    if orifice.get("push button", "Print").has(pyatspi.STATE_ENABLED):
        stops.insert(-2, "Print")
    for key, order in (("Tab", stops[1:] + stops[:1]), ("shift+Tab", stops[::-1])):
        for stop in order:
            keys(key)
            expect("the control in focus", lambda: focused(orifice), stop)


def focused(where):
    return next((control.name for control in where.inner() if control.is_focused), None)


def option_group(korvane):
    """The arrow keys walk the options, each of which computes; Tab leaves the group."""
    orifice = calculator(korvane)
    enter(orifice, "Diameter (in)", "1")
    enter(orifice, "Pressure (in WC)", "1")
    keys("Tab", "Tab")
    expect("the control in focus", lambda: focused(orifice), "Ideal")
    coefficient = orifice.field("Discharge Coefficient")
    options = [("Sharp Edge", "0.6"), ("Re-entrant", "0.72"), ("Square Edge", "0.82"),
               ("Round Edge", "0.97"), ("Ideal", "1")]
    for key, steps in (("Down", options), ("Up", options[-2::-1])):
        for option, value in steps:
            keys(key)
            expect("the coefficient", lambda: coefficient.text, value)
            on = [button.name for button in orifice.all("radio button") if button.is_checked]
            assert on == [option] and focused(orifice) == option, (on, focused(orifice))
    expect("the flow", lambda: orifice.field("Flow Rate (CFM)").text, "13.106329")
    keys("Tab")
    expect("the control in focus", lambda: focused(orifice), "Discharge Coefficient")


def pasted_and_keypad(korvane):
    """Pastes arrive cleaned; the keypad's decimal key is a point."""
    orifice = calculator(korvane)
    source, target = orifice.field("Area (in2)"), orifice.field("Pressure (in WC)")
    for raw, clean in ((" 1,5 ", "1,5"), ("\u22122.5", "-2.5"), ("\u00a03\u2009", "3")):
        put(source, raw)
        expect("the text", lambda: source.text, raw)
        source.click()
        keys("ctrl+a", "ctrl+c")
        target.click()
        keys("ctrl+a", "ctrl+v")
        expect("the pasted text", lambda: target.text, clean)
    subprocess.run(["setxkbmap", "de"], check=True, timeout=5)  # its keypad has a comma
    try:
        keys("ctrl+a", "7", "KP_Separator", "5")
        expect("the text", lambda: target.text, "7.5")
    finally:
        subprocess.run(["setxkbmap", "us"], check=True, timeout=5)


def help_pages(korvane):
    """F1 shows the page of the calculator in front; Set Data Path swallows it."""
    calculator(korvane)
    keys("F1")
    browser = window("Korvane Help")
    address = browser.all("text")[0]
    expect("the page", lambda: address.text.rsplit("/", 1)[-1], "hvac_orifice_flow.html")
    wait_for("the page", lambda: "orifice" in browser.find("label", "Help page").text.lower())
    keys("alt+F4")
    wait_for("the end of the help window", lambda: find_window("Korvane Help") is None)

    menu("File", "Set Data Path")
    dialog = window("Set Data Path")
    expect("the window in front", active_title, "Set Data Path")
    keys("F1")
    time.sleep(0.3)  # for help to come, were it to come
    assert find_window("Korvane Help") is None
    before = korvane.settings()
    dialog.press("Cancel")
    wait_for("the end of the dialog", lambda: find_window("Set Data Path") is None)
    assert korvane.settings() == before


def a_window_of_each_menu(korvane):
    """Side by side, each by mouse and keys to its result; a table and a text beside them."""
    korvane.start()
    menu("Math", "Areas of Plane Figures")
    areas = window("Areas of Plane Figures")
    areas.get("radio button", "Circle").click()
    enter(areas, "D", "2")
    areas.press("Solve")
    wait_for("the area", lambda: areas.field("Area").text.startswith("3.14159"))
    menu("HVAC", "Heat Index")
    heat = window("Heat Index")
    enter(heat, "Temperature (F)", "90")
    enter(heat, "Relative Humidity (%)", "70")
    expect("the heat index", lambda: heat.field("Heat Index Temp (F)").text, "105.92")
    menu("Electrical", "Voltage Drop Calculations")
    drop = window("Voltage Drop Calculations")
    enter(drop, "Current (amperes)", "15")
    expect("the drop", lambda: drop.field("Voltage Drop").text, "5.926")
    menu("Electrical", "Hazard Classifications (NEC)")
    hazards = window("NEC Hazardous Location Classifications")
    wait_for("the text", lambda: "Acetylene" in hazards.all("text")[0].text)
    menu("Materials", "Thermal Properties of Materials", "Non-metallic Solids")
    wait_for("the table", lambda: find_window("Thermal Properties of Non-metallic Solids"
                                              " - U.S. Units"))
    for shown in (areas, heat, drop):
        shown.press("Exit")


def lists_and_charts(korvane):
    """A shape that is typed, an element that is clicked, and its neighbours by the arrow keys."""
    korvane.start()
    menu("Structural", "Structural Steel Shapes", "Steel I-Beams (W Sections)")
    beams = window("Steel W-Beams")
    enter(beams, "Search", "w12x26")
    expect("the area", lambda: beams.field("Area, A (in2)").text, "7.65")
    menu("Materials", "Periodic Chart of the Elements")
    chart = window("Periodic Chart of the Elements")
    enter(chart, "Find Name, Symbol or Number", "Fe")
    expect("the weight", lambda: chart.field("Atomic Weight").text, "55.845")
    chart.get("radio button", "Krypton").click()
    expect("the element clicked", lambda: chart.field("Symbol").text, "Kr")
    for key, symbol in (("Up", "Ar"), ("Left", "Cl"), ("Right", "Ar"), ("Down", "Kr")):
        keys(key)
        expect(f"the element that {key} leads to", lambda: chart.field("Symbol").text, symbol)


# ---- Files ----

def choose_file(title, path):
    """Types a path into the file dialog that opens."""
    dialog = window(title)
    expect("the window in front", active_title, title)
    field = dialog.field("File name:")
    proposed = field.text
    field.click()
    keys("ctrl+a")
    write(str(path))
    keys("Return")
    return proposed


def save_and_load(korvane):
    """A file that is saved gives the inputs back; one of another window is refused."""
    orifice = calculator(korvane)
    enter(orifice, "Diameter (in)", "1")
    enter(orifice, "Pressure (in WC)", "1")
    orifice.get("radio button", "Square Edge").click()
    orifice.press("Save")
    path = korvane.folder / "kept.dta"
    assert choose_file("Save as...", path) == "orifice.dta"
    wait_for("the file", path.exists)
    assert path.read_bytes() == (b"ORIFICE FLOW\r\nDia,1\r\nArea,.785398\r\nPressure,1\r\n"
                                 b"Flow,17.911983\r\nEdge Type,Square\r\n"
                                 b"Discharge Coefficient,.82\r\n"), path.read_bytes()
    orifice.press("Exit")
    wait_for("the end of the calculator", lambda: find_window(CALCULATOR) is None)

    menu("HVAC", "Orifice Flow")
    orifice = window(CALCULATOR)
    orifice.press("Load")
    choose_file("Load data...", path)
    expect("the flow", lambda: orifice.field("Flow Rate (CFM)").text, "17.91")
    assert orifice.field("Diameter (in)").text == "1"
    assert orifice.get("radio button", "Square Edge").is_checked

    path.write_bytes(b"BEAMS\r\n")
    orifice.press("Load")
    choose_file("Load data...", path)
    wait_for("the message", lambda: window("Korvane").says("Invalid data file."))
    keys("Return")
    assert orifice.field("Flow Rate (CFM)").text == "17.91"


def points_of_a_section(korvane):
    """Typed cell by cell, drawn and solved meanwhile; the file gives them back."""
    korvane.start()
    menu("Mechanical", "Section Properties Calculator")
    section = window("Section Properties")

    def shows(area, distance):
        expect("the area", lambda: section.field("Area (in2)").text, area)
        expect("the centroid", lambda: section.field("Centroid X (in)").text, distance)

    section.press("Clear")
    section.press("Add Row")
    for number in "0 0 4 0 4 3 0 3".split():
        write(number)
        keys("Return")
    shows("12", "2")
    section.press("New Outline")
    for number in "1 1 2 1 2 2 1 2".split():
        write(number)
        keys("Return")
    shows("11", "2.04545")
    path = korvane.folder / "section.dta"
    section.press("Save")
    choose_file("Save as...", path)
    wait_for("the file", path.is_file)
    section.press("Clear")
    shows("", "")
    section.press("Load")
    choose_file("Load data...", path)
    shows("11", "2.04545")


def read_only_file(korvane):
    """Saving over a read-only file tells the failure and leaves the file whole."""
    path = korvane.folder / "locked.dta"
    path.write_text("mine")
    path.chmod(0o444)
    orifice = calculator(korvane)
    orifice.press("Save")
    choose_file("Save as...", path)
    wait_for("the question", lambda: find_window("Save as...").find("push button", "Yes"))
    keys("alt+y")
    wait_for("the message", lambda: window("Korvane").says("Error writing data file."))
    keys("Return")
    assert path.read_text() == "mine"
    assert [p.name for p in korvane.folder.glob("locked*")] == ["locked.dta"]


def settings_that_fail(korvane):
    """A settings file that can't be written stays whole, and the work goes on."""
    if subprocess.run(["strace", "-qq", "-o", "/dev/null", "true"], stderr=subprocess.DEVNULL,
                      timeout=5, check=False).returncode != 0:
        raise unittest.SkipTest("programs can't be traced here")
    korvane.write_settings(Units="US", **{"Data%20Path": "/"})
    before = korvane.settings_file.read_bytes()
    calculator_in_metric(korvane, "strace", "-f", "--seccomp-bpf", "-qq", "-o",
                         "/dev/null", "-e", "trace=fsync,fdatasync", "-e", "inject=fsync,fdatasync:error=EIO")
    menu("File", "Exit")
    wait_for("the end of the main window", lambda: find_window(MAIN) is None)
    assert "could not be stored" in (korvane.folder / "errors").read_text()
    assert korvane.settings_file.read_bytes() == before
    assert [p.name for p in korvane.settings_file.parent.iterdir()] == ["Korvane.ini"]


# ---- Units ----

def calculator_in_metric(korvane, *wrapper):
    """Metric, chosen before the calculator is opened."""
    korvane.start(*wrapper)
    menu("File", "Select Units", "Metric")
    menu("HVAC", "Orifice Flow")
    window(CALCULATOR).field("Diameter (m)")


def units(korvane):
    """A change of units reaches the formulas of an open window at once, its captions when it opens
    again, and is kept for the next start."""
    orifice = calculator(korvane)
    menu("File", "Select Units", "Metric")
    expect("the setting", lambda: korvane.settings().get("Units"), "SI")
    enter(orifice, "Diameter (in)", "1")
    enter(orifice, "Pressure (in WC)", "1")
    # 1.89015975 (.785398 * 1550 / 144) sqrt(1 / 248.6888)
    expect("the flow", lambda: orifice.field("Flow Rate (CFM)").text, "1.01328")
    orifice.press("Exit")
    wait_for("the end of the calculator", lambda: find_window(CALCULATOR) is None)
    menu("HVAC", "Orifice Flow")
    window(CALCULATOR).field("Flow Rate (m3/s)")
    korvane.stop()

    main = korvane.start()
    menu("HVAC", "Orifice Flow")
    window(CALCULATOR).field("Flow Rate (m3/s)")


# ---- For those who can't see it ----

def names(korvane):
    """Every control that takes the focus has a name, and no two inputs of a window share one."""
    calculator(korvane)
    keys("F1")
    window("Korvane Help")
    for title in (MAIN, CALCULATOR, "Korvane Help"):
        check_names(window(title))
    for entry, title in ((("File", "Set Data Path"), "Set Data Path"), (("Help", "About..."), "Korvane")):
        menu(*entry)
        check_names(window(title))
        window(title).press("Cancel" if title == "Set Data Path" else "OK")
        wait_for("its end", lambda: find_window(title) is None)


def check_names(where):
    controls = [c for c in where.inner() if c.has(pyatspi.STATE_FOCUSABLE)]
    nameless = [c.role for c in controls if not c.name.strip()]
    assert not nameless, f"{where.name!r} has controls without a name: {nameless}"
    inputs = [c.name for c in controls if c.role in ("text", "combo box", "list", "check box")]
    assert len(set(inputs)) == len(inputs), f"{where.name!r} has inputs of one name: {inputs}"


def no_keys(korvane):
    """Texts set and buttons pressed by an assistive program count as typed and clicked."""
    orifice = calculator(korvane)
    for caption in ("Diameter (in)", "Pressure (in WC)"):
        put(orifice.field(caption), "1")
    act(orifice.get("push button", "Calculate"))
    expect("the flow", lambda: orifice.field("Flow Rate (CFM)").text, "21.843882")
    act(orifice.get("radio button", "Square Edge"))
    expect("the flow", lambda: orifice.field("Flow Rate (CFM)").text, "17.911983")
    assert orifice.get("radio button", "Square Edge").is_checked
    assert not orifice.get("radio button", "Ideal").is_checked


def put(field, text):
    """Sets the text as an assistive program does."""
    field.node.queryEditableText().setTextContents(text)


def act(control):
    """Performs the control's own first action."""
    control.node.queryAction().doAction(0)


# ---- Running them ----

JOURNEYS = (first_start, bad_setting, keyboard_alone, tab_order, option_group, pasted_and_keypad,
            help_pages, save_and_load, read_only_file, units, geometry_is_kept, exit_while_maximized,
            exit_with_calculator_open, beam_palette, about, a_window_of_each_menu, lists_and_charts,
            points_of_a_section, names, no_keys, settings_that_fail)


def out_of_time(*_):
    raise AssertionError(f"the journey took more than {TIME_LIMIT} s")


def walk(journey, program):
    """How the journey ends; never hangs."""
    with tempfile.TemporaryDirectory() as folder:
        korvane = Korvane(program, folder)
        signal.alarm(TIME_LIMIT)
        try:
            journey(korvane)
            return "ok"
        except unittest.SkipTest as reason:
            return f"skipped, {reason}:"
        except Exception:
            traceback.print_exc(limit=-3, file=sys.stdout)
            print((korvane.folder / "errors").read_text(errors="replace"), end="")
            return "FAILED"
        finally:
            signal.alarm(0)
            korvane.stop()


def main(program, *chosen):
    signal.signal(signal.SIGALRM, out_of_time)
    journeys = [journey for journey in JOURNEYS if not chosen or journey.__name__ in chosen]
    ends = []
    for journey in journeys:
        begin = time.monotonic()
        ends.append(walk(journey, program))
        print(f"{ends[-1]:6} {journey.__name__} ({time.monotonic() - begin:.1f} s)", flush=True)
    print(f"{ends.count('ok')} passed, {ends.count('FAILED')} failed")
    return 0 if ends and "FAILED" not in ends else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
