#!/usr/bin/env python3
"""Derive the functions of the C++ headers from the prototypes in the public headers, at build time.

  selectors.hpp   an enum class for each selector type
  <part>.hpp      of qvpi_<part>.h, an overload for each function over images: pointers with their steps become views,
                  sizes are those of the views, buffers grow as needed, numbers that a function writes are returned
  forms.cpp       for the tests: calls of each overload

Functions that take a record go to the namespace `calls`, for the classes that own records. In-place forms are not
needed, as a view may be source and destination; nor are _L forms, as views count with int.
"""
import argparse
import re
from collections import defaultdict
from pathlib import Path

from cpp_forms import Call, Form
from cpp_names import LEFT_OUT
from derive import GROUP, prototypes, write

GUARD = "#ifndef QVPI_OPERATIONS_{0}_HPP\n#define QVPI_OPERATIONS_{0}_HPP\n\n{1}\n#endif\n"
SELECTOR = re.compile(r"/\*\* (?P<comment>(?:(?!\*/).)*)\*/\ntypedef int (?P<type>Qvpi?\w+);\n"
                      r"enum \{\n(?P<rows>.*?)\};", re.S)
# Constants whose names are words of the language.
RENAMED = {"auto": "automatic", "const": "constant", "xor": "exclusive_or"}
FLAGS = ("BorderType", "InterpolationType", "Window")  # which can be combined


def constant(name, prefix):
    """qvpBorderInMemTop -> in_mem_top; a number gets its prefix."""
    bare = name.removeprefix(prefix) if name.startswith(prefix) else name.removeprefix("qvp")
    bare = re.sub(r"(?<=[a-z\d])(?=[A-Z])", "_", bare).lower()
    if bare[0].isdigit():
        bare = prefix.removeprefix("qvp").lower() + bare
    return RENAMED.get(bare, bare)


def prefix_of(names):
    """What most constants of a type begin with: qvpBorder."""
    words = [re.match(r"qvp(?:AlgHint|[A-Z][a-z]+|LBP)", name)[0] for name in names]
    return max(words, key=words.count)


def selector(match):
    names = re.findall(r"^\s+(qvp\w+) =", match["rows"], re.M)
    name = re.sub(r"^Qvpi?", "", match["type"])
    rows = "".join(f"  {constant(each, prefix_of(names))} = {each},\n" for each in names)
    sentence = re.sub(r"\s*\*?\s+", " ", match["comment"]).split(". ")[0].rstrip(". ")
    both = f"constexpr {name} operator|({name} a, {name} b) {{ return {name}(int(a) | int(b)); }}\n"
    return (f"/** {sentence}. The constants are those of {match['type']}. */\n"
            f"enum class {name} : int {{\n{rows}}};\n{both if name in FLAGS else ''}\n")


def selectors(text):
    chosen = [match for match in SELECTOR.finditer(text)
              if match["type"] not in ("QvpStatus", "QvpDataType", "QvpiDecimateFraction")]
    body = "namespace qvp {\n\n" + "".join(map(selector, chosen)) + "}  // namespace qvp\n"
    return GUARD.format("SELECTORS", '#include "qvptypes.h"\n\n' + body)


def summaries(text):
    """{function: the first sentence of its description}"""
    found = {}
    for group in GROUP.finditer(text):
        words = re.sub(r"\s*\n \*\s*", " ", group["comment"]).strip()
        sentence = re.split(r"(?<=\.) |@|:\s*$", words)[0].strip()
        found |= {name: sentence for name in re.findall(r"\b(qvpi\w+)\(", group["prototypes"])}
    return found


def is_form(result, name):
    in_place = re.search(r"_(?:A?[CP]\d)+M?I\w*$", name)
    return result == "QvpStatus" and name.startswith("qvpi") and not (
        name.endswith("_L") or in_place or LEFT_OUT.match(name))


def forms_of(functions):
    """({C++ name: [its forms]}, [calls]) of what has images."""
    exported = {name: declarations for _, name, declarations in functions}
    forms, calls = defaultdict(list), []
    for result, name, declarations in functions:
        if is_form(result, name):
            form = Form.of(name, declarations, exported)
            if isinstance(form, Call):
                calls.append(form)
            elif form:
                forms[form.cpp_name].append(form)
            elif re.search(r"R(Sfs|s)?$", name):
                raise SystemExit(f"{name} has images, and no form in C++: see LEFT_OUT in cpp_names.py")
    return forms, calls


def keep_apart(forms):
    """Parameters have no defaults where a call without them would be one of another form."""
    for form in forms:
        for other in forms:
            while form is not other and len(form.parameters) > len(other.parameters) and form.covers(other):
                form.require_one_more()


def listed(forms):
    """The types and layouts of forms: 8u C1 C3, 16u C1."""
    layouts = defaultdict(dict)
    for form in forms:
        layouts[form.type][form.layout] = None
    return ", ".join(f"{kind} {' '.join(of)}" for kind, of in layouts.items())


def fallback(name, forms):
    """What is called when no form fits: it says which there are."""
    kinds = defaultdict(list)
    for form in forms:
        kinds[f"{name}({', '.join(form.labels())})"].append(form)
    text = "; ".join(f"{call} of {listed(alike)}" for call, alike in kinds.items())
    return (f"template <class... Arguments>\n"
            f"  requires((detail::HasPixels<Arguments> || ...) &&\n"
            f"           !requires(Arguments&&... a) {{ forms::{name}(static_cast<Arguments&&>(a)...); }})\n"
            f"Status {name}(Arguments&&...) {{\n"
            f'  static_assert(detail::kNever<Arguments...>,\n                "qvp::{name} has no form for these arguments. '
            f'There are: {text}");\n'
            f"  return {{}};\n}}\n")


def public(name, forms, sentences):
    sentence = sentences.get(forms[0].c_name, "")
    calls = "\n".join(f" *  - {name}({call})" for call in dict.fromkeys(", ".join(form.labels()) for form in forms))
    functions = ", ".join(f"{first}()" for first in dict.fromkeys(form.first_of_kind for form in forms))
    comment = f"/** {sentence}\n *\n{calls}\n *\n *  As in C: {functions}. */\n"
    return f"{comment}using forms::{name};\n{fallback(name, forms)}\n"


def part(name, text, functions):
    forms, calls = forms_of(functions)
    for group in forms.values():
        keep_apart(group)
    sentences = summaries(text)
    body = ['#include "qvpi.h"\n#include "qvpi/call.hpp"\n\n',
            "namespace qvp {\ninline namespace QVP_ERRORS {\n\nnamespace forms {\n\n"]
    body += [form.definition() for group in forms.values() for form in group]
    body += ["\n}  // namespace forms\n\nnamespace calls {\n\n", *(call.definition() for call in calls)]
    body += ["\n}  // namespace calls\n\n", *(public(each, group, sentences) for each, group in forms.items())]
    return GUARD.format(name.upper(), "".join(body) + "}  // namespace QVP_ERRORS\n}  // namespace qvp\n"), forms


def check(parts):
    """One function for each form that calls it by its public name, with all arguments and with the required ones."""
    lines = ['#include "qvpi.hpp"\n\nnamespace form_checks {\nusing namespace qvp;\n\n']
    number = 0
    for forms in parts:
        for group in forms.values():
            for form in group:
                lines.append(form.check(number))
                number += 1
    return "".join([*lines, "\n}  // namespace form_checks\n"])


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--out", type=Path, required=True, help="folder to write to")
    parser.add_argument("--types", type=Path, required=True, help="the header of types")
    parser.add_argument("headers", nargs="+", type=Path)
    options = parser.parse_args()
    folder = options.out / "qvpi/operations"
    folder.mkdir(parents=True, exist_ok=True)
    write(folder / "selectors.hpp", selectors(options.types.read_text()))
    parts = []
    for header in options.headers:
        name = header.stem.removeprefix("qvpi_")
        text, forms = part(name, header.read_text(), prototypes([header]))
        parts.append(forms)
        write(folder / f"{name}.hpp", text)
    write(options.out / "forms.cpp", check(parts))


if __name__ == "__main__":
    main()
