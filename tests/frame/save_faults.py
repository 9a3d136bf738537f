#!/usr/bin/python3
"""Saves a data file over an older one while the system fails at every single step in turn:
save_faults.py KORVANE-DRIVER. The old file must stay whole or the new one be complete, nothing may
be left beside it, and a failure must be told. Skipped, with status 77, where nothing may be traced."""

import pathlib
import subprocess
import sys
import tempfile

# What a call gives in place of its work. A write that says it wrote, and did not, is a full disk on
# some file systems.
FAULTS = ("openat:error=EACCES", "write:error=ENOSPC", "write:error=EIO", "write:retval=8",
          "fsync:error=EIO", "close:error=EIO", "fchmod:error=EPERM", "rename:error=EXDEV",
          "rename:error=EACCES")
OLD = b"ORIFICE FLOW\r\nDia,7\r\n"
NEW = (b"ORIFICE FLOW\r\nDia,1\r\nArea,.785398\r\nPressure,1\r\nFlow,21.843882\r\n"
       b"Edge Type,Ideal\r\nDischarge Coefficient,1.\r\n")
TOLD = "! message Korvane | Error writing data file.\n="
MOST_STEPS = 200  # no save takes more calls of one kind


def save(driver, folder, fault=None):
    """The driver's answers and the calls that were made to fail, told by strace."""
    target = folder / "orifice.dta"
    target.write_bytes(OLD)
    commands = ("show FlowCalc\ntype dia 1\ntype pressure 1\nenter dia\n"
                f"answer file {target}\nclick Command5\n")
    log = folder.parent / "calls"
    tracer = []
    if fault is not None:
        call = fault.split(":")[0]
        tracer = ["strace", "-f", "-qq", "-o", log, "-e", f"trace={call}", "-e", f"inject={fault}"]
    log.write_text("")
    run = subprocess.run([*tracer, driver], input=commands, capture_output=True, text=True, timeout=20,
                         check=False, env={"ASAN_OPTIONS": "detect_leaks=0"})
    injected = [line for line in log.read_text().splitlines() if "(INJECTED)" in line]
    return run.stdout, injected


def judge(folder, answers, injected):
    """What is wrong after a save; nothing if all is well."""
    left = [path.name for path in folder.iterdir()]
    if left != ["orifice.dta"]:
        return f"the folder holds {left}"
    kept = (folder / "orifice.dta").read_bytes()
    if kept == NEW:
        return "it is told as failed, though all was written" if TOLD in answers else None
    if kept != OLD:
        return f"the file holds {kept!r}"
    # A program that did not start, or could not answer, tells nothing.
    cut_off = answers.count("=") < 6 or any("write(1, " in call for call in injected)
    return None if TOLD in answers or cut_off else "the failure is not told"


def main(driver):
    with tempfile.TemporaryDirectory() as work:
        folder = pathlib.Path(work) / "saved"
        folder.mkdir()
        save(driver, folder)
        if (folder / "orifice.dta").read_bytes() != NEW:
            print("FAILED: a save without a fault does not write what it should")
            return 1
        probe = subprocess.run(["strace", "-qq", "-o", "/dev/null", "true"], capture_output=True,
                               timeout=20, check=False)
        if probe.returncode != 0:
            print("skipped: programs can't be traced here")
            return 77

        failed = 0
        for fault in FAULTS:
            step, told = 0, 0
            while step < MOST_STEPS:
                answers, injected = save(driver, folder, f"{fault}:when={step + 1}")
                if not injected:
                    break
                step += 1
                told += TOLD in answers
                if wrong := judge(folder, answers, injected):
                    failed += 1
                    print(f"FAILED {fault} at call {step} ({injected[0]}): {wrong}")
                    for path in folder.iterdir():
                        path.unlink()
            if told == 0:
                failed += 1
                print(f"FAILED {fault}: the save told no failure in {step} calls")
            print(f"{fault}: {step} calls, {told} failures told")
        print(f"{failed} failed")
        return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
