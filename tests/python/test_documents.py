"""What the documents say: README's example prints what it says, names exist, stubs pass."""
import contextlib
import io
import os
import re
import subprocess
from pathlib import Path

import qvpi

ROOT = Path(__file__).resolve().parents[2]


def test_example_of_the_readme():
    text = (ROOT / "README.md").read_text()
    code, printed = re.search(r"```python\n(.*?)```\n\n```\n(.*?)```", text, re.S).groups()
    shown = io.StringIO()
    with contextlib.redirect_stdout(shown):
        exec(code, {})
    assert shown.getvalue() == printed


def test_table_of_calls():
    rows = [line for line in (ROOT / "docs/from-numpy.md").read_text().splitlines() if line.startswith("| `")]
    assert len(rows) >= 60
    for row in rows:
        names = re.findall(r"qvpi\.(\w+)", row)
        assert names and all(hasattr(qvpi, name) for name in names), row


def test_everything_exported_is_described():
    for name in qvpi.__all__:
        assert getattr(qvpi, name).__doc__, name


def test_stubs(tmp_path):
    """Strict types, of the stubs and of a program that uses them; an ignored error that is none would be one."""
    program = tmp_path / "program.py"
    program.write_text("import numpy, qvpi\n"
                       "a = numpy.zeros((4, 5), numpy.uint8)\n"
                       "b: qvpi.Image = qvpi.add(a, 3, scale=1, threads=2)\n"
                       "m: float = qvpi.moments(qvpi.Gauss(a.shape, a.dtype, 2.0)(b)).spatial(0, 0)\n"
                       "qvpi.Resizer(a.shape, (2, 2), a.dtype, 'cubic')(a, tile=(0, 0, 1, 1))\n"
                       "qvpi.add('x', 3)  # type: ignore[arg-type]\n")
    folder = Path(qvpi.__file__).parent
    command = ["mypy", "--strict", f"--cache-dir={tmp_path}", folder / "__init__.pyi", program]
    result = subprocess.run(command, capture_output=True, text=True, cwd=tmp_path,
                            env=os.environ | {"MYPYPATH": str(folder.parent)})
    assert result.returncode == 0, result.stdout
