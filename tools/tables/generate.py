#!/usr/bin/python3
"""Writes all generated tables and sketches into data/ or the folder named.

Every module beside this one, or in tools/sketches/, that has a `write(folder)` is a generator.
"""

import importlib
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else HERE.parents[1] / "data"
    folder.mkdir(parents=True, exist_ok=True)
    sys.path.append(str(HERE.parent))
    names = [source.stem for source in HERE.glob("*.py") if source.name != "generate.py"]
    names += [f"sketches.{source.stem}" for source in (HERE.parent / "sketches").glob("*.py")]
    for name in sorted(names):
        module = importlib.import_module(name)
        if hasattr(module, "write"):
            module.write(folder)


if __name__ == "__main__":
    main()
