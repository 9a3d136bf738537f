#!/usr/bin/python3
"""Writes all generated tables into data/ or the folder named.

Every module beside this one that has a `write(folder)` is a generator.
"""

import importlib
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else HERE.parents[1] / "data"
    folder.mkdir(parents=True, exist_ok=True)
    for source in sorted(HERE.glob("*.py")):
        if source != HERE / "generate.py":
            module = importlib.import_module(source.stem)
            if hasattr(module, "write"):
                module.write(folder)


if __name__ == "__main__":
    main()
