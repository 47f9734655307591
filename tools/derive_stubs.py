#!/usr/bin/env python3
"""Derive the type stubs of the Python package from its sources, at build time; with --pages its manual, python.md.

Signatures and doc strings come from the functions and classes that a module exports. A parameter has the same type
wherever its name occurs, and results are told here where they are no image.
"""
import argparse
import ast
import textwrap
from pathlib import Path

HEAD = '''from typing import Any, Literal, Sequence, TypeVar
import numpy
from numpy.typing import ArrayLike, DTypeLike, NDArray

Image = NDArray[Any]
Constant = float | Sequence[float]
Border = Literal["replicate", "mirror", "constant"]
'''
BOOLEANS = ("copy", "accurate", "relative", "inverse", "smooth", "antialias", "premultiplied", "conjugate", "correlate",
            "columns_first")
IMAGES = ("a", "x", "y", "z", "part", "planes", "packed", "spectrum", "entries", "bands")
INTEGERS = ("iterations", "top", "bottom", "left", "right", "front", "back", "k", "m", "n", "channel",
            "lobes", "cell", "stride", "count", "depth", "period", "neighbours")
FLOATS = ("sigma_range", "sigma_space", "strength", "power", "eps", "factor", "offset",
          "angle", "tolerance", "alpha_a", "c", "clip", "smoothness", "threshold", "mean", "gain", "level", "share",
          "pepper", "salt")
WORDS = ("method", "mode", "relation", "norm", "kind", "kernel_name", "op", "direction", "fit", "fraction")
TYPES = {
    **dict.fromkeys(BOOLEANS, "bool"), **dict.fromkeys(IMAGES, "Image"), **dict.fromkeys(INTEGERS, "int"),
    **dict.fromkeys(FLOATS, "float"), **dict.fromkeys(WORDS, "str"),
    "b": "Image | Constant", "out": "Image | None", "threads": "int | None", "scale": "int",
    "rounding": "str | None", "value": "Any", "replace": "Constant | None", "low": "Any", "high": "Any",
    "mask": "ArrayLike | None", "table": "ArrayLike", "levels": "ArrayLike", "values": "ArrayLike",
    "order": "Sequence[int]", "size": "Any", "anchor": "Any", "noise": "Any", "border": "str",
    "tile": "Sequence[int] | None", "shape": "Sequence[int] | None",
    "dtype": "DTypeLike", "sigma": "Any", "kernel": "Any", "divisor": "int | None", "row": "ArrayLike",
    "column": "ArrayLike", "src_shape": "Sequence[int]", "dst_shape": "Sequence[int] | None", "matrix": "ArrayLike",
    "origin": "Sequence[int]", "src": "ArrayLike", "dst": "ArrayLike", "src_quad": "ArrayLike", "dst_quad": "ArrayLike",
    "center": "Sequence[float]", "to": "Sequence[float] | None", "frame": "Sequence[Image]",
    "window": "Sequence[int]", "places": "ArrayLike", "bins": "int | Sequence[float]", "axis": "int | None",
    "range": "Sequence[float] | None", "alpha_b": "float | None", "bits": "int | Sequence[int]",
    "bank": "str | Sequence[Any]", **dict.fromkeys(("start", "across", "down"), "Constant"),
    "psf": "ArrayLike", "peak": "float | None", "factors": "Sequence[float]", "radius": "int | None",
    **dict.fromkeys(("axial", "corners", "first", "second"), "ArrayLike"),
}
# Parameters whose names mean something else here.
OWN = {**{(owner, name): "float" for owner in ("Resizer", "Warp", "Resizer3D", "Warp3D") for name in "bc"},
       ("rotation3d", "axis"): "ArrayLike"}
RESULTS = {
    **dict.fromkeys(("sum", "mean", "min", "max", "dot", "norm", "quality_index", "ssim"), "Any"),
    "min_max": "tuple[Any, Any]", "argmin": "tuple[Any, Any, Any]", "argmax": "tuple[Any, Any, Any]",
    "otsu": "int", "count_in_range": "Any", "moments": "Moments",
    **dict.fromkeys(("gradient", "Gradient"), "tuple[Image, Image, Image, Image]"),
    **dict.fromkeys(("spatial", "central", "normalized"), "float"), "source": "tuple[int, int, int, int]",
    ("Resizer3D", "source"): "tuple[int, int, int, int, int, int]",
    "__init__": "None", **dict.fromkeys(("decimate_frame", "resize_frame"), "tuple[Image, ...]"),
}


def parameter(argument, default, owner):
    kind = OWN.get((owner, argument.arg)) or TYPES.get(argument.arg, "Any")
    if argument.arg == "self":
        return "self"
    is_plain = isinstance(default, (ast.Constant, ast.UnaryOp))
    shown = "" if default is None else f" = {ast.unparse(default)}" if is_plain else " = ..."
    if default is not None and shown == " = None" and "None" not in kind and kind != "Any":
        kind += " | None"
    return f"{argument.arg}: {kind}{shown}"


def parameters(function, owner):
    arguments = function.args
    defaults = [None] * (len(arguments.args) - len(arguments.defaults)) + arguments.defaults
    shown = [parameter(*pair, owner) for pair in zip(arguments.args, defaults)]
    if arguments.kwonlyargs:
        shown += ["*", *(parameter(*pair, owner) for pair in zip(arguments.kwonlyargs, arguments.kw_defaults))]
    if arguments.kwarg:
        shown.append(f"**{arguments.kwarg.arg}: Any")
    return ", ".join(shown)


def documented(node, indent):
    text = ast.get_docstring(node)
    if not text:
        return ""
    return textwrap.indent(f'"""{text}\n"""' if "\n" in text else f'"""{text}"""', indent) + "\n"


def function(node, indent="", owner=""):
    result = RESULTS.get(owner if node.name == "__call__" else node.name, "Image")
    result = RESULTS.get((owner, node.name), result)
    body = documented(node, indent + "    ") or f"{indent}    ...\n"
    return f"{indent}def {node.name}({parameters(node, owner or node.name)}) -> {result}:\n{body}"


def class_(node, classes):
    """Methods of base classes of the package are the class's own: bases are no part of the interface."""
    found = methods(node, classes)
    text = f"class {node.name}:\n{documented(node, '    ')}"
    return text + ("".join(function(method, "    ", node.name) for method in found.values()) or "    ...\n")


def methods(node, classes):
    found = {}
    for base in node.bases:
        if isinstance(base, ast.Name) and base.id in classes:
            found.update(methods(classes[base.id], classes))
    found.update({item.name: item for item in node.body if isinstance(item, ast.FunctionDef)
                  and (item.name in ("__init__", "__call__") or not item.name.startswith("_"))
                  and item.name not in ("prepare", "find", "new")})
    return found


def classes_of(trees):
    """Classes by name, of all modules: those of the package inherit from each other."""
    return {item.name: item for tree in trees for item in tree.body if isinstance(item, ast.ClassDef)}


def exported(tree):
    """The functions and classes of a module's __all__, in the order of the source."""
    names = next((ast.literal_eval(item.value) for item in tree.body if isinstance(item, ast.Assign)
                  and isinstance(item.targets[0], ast.Name) and item.targets[0].id == "__all__"
                  and isinstance(item.value, ast.List)), [])
    return [item for item in tree.body if getattr(item, "name", None) in names]


def module(tree, classes):
    return "".join("\n" + (class_(item, classes) if isinstance(item, ast.ClassDef) else function(item))
                   for item in exported(tree))


def page(name, tree, classes):
    """A section of the manual: the module's text, then each name with its parameters and its text."""
    text = f"## qvpi.{name}\n\n{ast.get_docstring(tree)}\n"
    for item in exported(tree):
        found = methods(item, classes) if isinstance(item, ast.ClassDef) else {"__init__": item}
        shown = parameters(found["__init__"], item.name).removeprefix("self, ") if "__init__" in found else ""
        text += f"\n### {item.name}\n\n```python\n{item.name}({shown})\n```\n\n{ast.get_docstring(item)}\n"
    return text


ERRORS = '''
class Error(ValueError):
    """A call was refused, and nothing was written."""
    status: int
    name: str
    sentence: str
    function: str
    def __init__(self, status: int, function: str = "") -> None: ...

class Warning(UserWarning):
    """A call did its work, and has something to say about it."""
    status: int
    name: str
    sentence: str
    function: str
    def __init__(self, status: int, function: str = "") -> None: ...

def set_threads(n: int | None) -> None: ...
def get_threads() -> int: ...
def info() -> dict[str, Any]: ...
__version__: str
'''
RAW = """from typing import Any
ffi: Any
lib: Any
def __getattr__(name: str) -> Any: ...
"""


def main():
    options = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    options.add_argument("package", type=Path, help="folder of the package's sources")
    options.add_argument("out", type=Path, help="folder to write to")
    options.add_argument("--pages", action="store_true", help="write python.md instead of stubs")
    options = options.parse_args()
    trees = {file.stem: ast.parse(file.read_text()) for file in sorted(options.package.glob("*.py"))}
    classes = classes_of(trees.values())
    public = {name: tree for name, tree in trees.items() if name != "raw" and name[0] != "_"}
    if options.pages:
        pages = [page(name, tree, classes) for name, tree in public.items()]
        (options.out / "python.md").write_text("\n".join(["# The Python package qvpi\n", *pages]))
        return
    text = "".join(module(tree, classes) for name, tree in public.items() if name != "dask")
    (options.out / "__init__.pyi").write_text(f"{HEAD}{ERRORS}{text}")
    (options.out / "raw.pyi").write_text(RAW)
    (options.out / "py.typed").write_text("")


if __name__ == "__main__":
    main()
