#!/usr/bin/env python3
"""Compare the builds and headers with an agreed interface by running its own check.

A group of "Further forms" holds single members of several families, so it is complete only when all of those exist:
it alone may be there in part.
"""
import subprocess
import sys
from pathlib import Path

check = Path(sys.argv[1])
libraries = sorted(Path("build").glob("*/libqvpi*.so.10"))
run = subprocess.run([sys.executable, str(check), "--include", "include", *map(str, libraries)], capture_output=True, text=True)
print(run.stdout, end="")
details = [line for line in run.stdout.splitlines() if line.startswith("  ")]
sys.exit(any(not line.startswith("  Further forms:") for line in details) or not libraries or bool(run.stderr))
