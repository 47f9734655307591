"""Pages of the manual that are made from the headers and the README: start, words, the table of types, C++ names."""
import re
from collections import defaultdict
from pathlib import Path

from names import layouts, parts
from sections import MODULES

NAME = re.compile(r"(?<![`\w])qvp[ir][A-Za-z]\w*")  # not in code
OVERLOAD = re.compile(r"^inline [^\n(]*?(?P<name>\w+)\((?P<parameters>.*)\) \{\n(?P<body>(?:[^}\n].*\n|\n)*)", re.M)
WORDS = "Which function for what"


def family_of_name(name, families):
    """The family that a text means which has the name of a function or of an operation, or the beginning of some."""
    for family in families:
        if name in family.operations or name in family.functions:
            return family
    begun = [family for family in families if any(function.startswith(name) for function in family.functions)]
    if not begun:
        raise SystemExit(f"{name}: no function is called that")
    return begun[0]


def linked(text, families):
    """Names of operations as links to their families."""
    return NAME.sub(lambda match: f'@ref {family_of_name(match[0], families).id} "{match[0]}"', text)


def table(head, rows):
    lines = [head, ["---"] * len(head), *rows]
    return "".join("| " + " | ".join(line) + " |\n" for line in lines)


def unknown_names(include, texts):
    """[(file, name)] of names in hand-written texts that begin like the library's, and that no name of a header begins."""
    known = " ".join(sorted(set(re.findall(r"\bqvp\w+", "\n".join(file.read_text() for file in Path(include).glob("*.h"))))))
    files = [file for text in map(Path, texts) for file in ([text] if text.is_file() else sorted(text.rglob("*.md")))]
    return [(file, name) for file in files for name in sorted(set(re.findall(r"\bqvp[ir]?[A-Z]\w*", file.read_text())))
            if f" {name}" not in f" {known}"]


SPEED = """# Speed {{#speed}}

{conditions}

*GB/s* counts what is read and written; *of the limit* compares it with the fastest plain loops over as much memory on the
same machine. *times* tells how many times as long the other library takes for the same work, with one thread each. `./dev
bench` measures all of it on your machine; the manual then shows that.

"""


def speed(report, committed):
    """The rows of the last benchmark of this tree, or of that which was committed, by their names."""
    text = (report if report.exists() else committed).read_text()
    rows = [line.strip("|").split("|")[:6] for line in text.splitlines() if line.count("|") == 9]
    head, body = [cell.strip() for cell in rows[0]], sorted([cell.strip() for cell in row] for row in rows[2:])
    return SPEED.format(conditions=text.splitlines()[0]) + table([*head[:5], "times"], body)


def readme_table(readme, heading):
    """The rows of the first table below a heading of the README."""
    text = readme.split(f"# {heading}\n")[1]
    rows = re.search(r"(?:^\|.*\n)+", text, re.M)[0].splitlines()[2:]
    return [[cell.strip() for cell in row.strip("|").split(" | ")] for row in rows]


def start(mainpage, families):
    """The start page: what is told there, and the families of each header."""
    text = mainpage
    for module, title in MODULES.items():
        rows = [[f'@ref {family.id} "{family.name}"', family.about, str(len(family.functions))]
                for family in families if family.module == module and family.groups]
        if rows:
            text += f'\n<h2><a href="{page_of(module)}">{title}</a></h2>\n\n' + table(["family", "", "functions"], rows)
    return text


def modules():
    """The groups that families belong to, in their order."""
    groups = [f"/** @defgroup {module} {title}\n *  Declared in {module}.h.\n */\n" for module, title in MODULES.items()]
    return "".join(groups) + "/** @namespace qvp\n *  Images, views and calls for C++20.\n */\n"


def words(readme, families):
    """Which function for what. Each row has a place that the search leads to."""
    rows = [[f"@anchor word_{number} {what}", linked(how, families)]
            for number, (what, how) in enumerate(readme_table(readme, WORDS))]
    return (f"# {WORDS} {{#words}}\n\nTypes and layouts are in the names; C3 and C4 stand for colour images, "
            "C1 for grey ones.\n\n" + table(["what you want", "functions"], rows))


def word_entries(readme):
    """The rows of that page for the search."""
    return [{"title": what, "url": f"words.html#word_{number}", "about": how, "rank": 0}
            for number, (what, how) in enumerate(readme_table(readme, WORDS))]


def search_words(readme, families):
    """Words of the README by the family that they lead to."""
    found = defaultdict(list)
    for what, how in readme_table(readme, WORDS):
        for name in NAME.findall(how):
            found[family_of_name(name, families).id].append(what)
    return found


def cell(forms):
    """Layouts of an operation for its types, `_L` forms marked by an L."""
    shown = defaultdict(set)
    for word, is_wide in forms:
        shown[word or "any"].add(is_wide)
    return " ".join(word + ("" if True not in wide else "ᴸ") for word, wide in shown.items())


def grid_rows(family):
    """{operation: {layouts: [types]}} of each form of a family."""
    forms = defaultdict(lambda: defaultdict(list))
    for function in family.functions:
        operation, types, layout = parts(function)
        if types and layout:
            forms[operation]["→".join(types)].append((layout, function.endswith("_L")))
    shown = defaultdict(lambda: defaultdict(list))
    for operation, by_type in forms.items():
        for types, found in by_type.items():
            shown[operation][cell(found)].append(types)
    return shown


def grid(families):
    """Which types and layouts each operation has."""
    text = ("# Operations, types and layouts {#grid}\n\nEvery function that has a type and a layout in its name: "
            "`qvpiAdd` for 8u with C3RSfs is `qvpiAdd_8u_C3RSfs`; ᴸ marks that there is a form with `_L`, too. "
            "The table is made from the headers.\n\n@htmlonly\n<table class=\"grid\">"
            "<tr><th>operation</th><th>types</th><th>layouts and modes</th></tr>\n")
    for family in families:
        for operation, rows in grid_rows(family).items():
            for number, (words, types) in enumerate(rows.items()):
                first = f'<td rowspan="{len(rows)}"><a href="{page_of(family.id)}">{operation}</a></td>'
                text += f"<tr>{'' if number else first}<td>{' '.join(types)}</td><td>{words}</td></tr>\n"
    return text + "</table>\n@endhtmlonly\n"


def page_of(identifier):
    """The file that doxygen puts a group into."""
    return "group__" + identifier.replace("_", "__") + ".html"


def parameter_names(parameters):
    """Of a list of parameters of C++, whose types may have commas, and their values."""
    bare = re.sub(r"<[^<>]*(?:<[^<>]*>[^<>]*)*>|\{[^{}]*\}", "", parameters)
    return ", ".join(re.findall(r"(\w+)(?: = [^,]*)?(?:,|$)", bare))


def cpp_names(folder):
    """{name in C++: ({its lists of parameters}, {operations of C})} of the derived headers."""
    found = defaultdict(lambda: (set(), set()))
    for header in sorted(Path(folder).glob("*.hpp")):
        for match in OVERLOAD.finditer(header.read_text()):
            called = [name for name in NAME.findall(match["body"]) if not name.split("_")[0].endswith("BufferSize")]
            lists, operations = found[match["name"]]
            lists.add(parameter_names(match["parameters"]))
            operations.update(parts(name)[0] for name in called)
    return found


def cpp(folder, families):
    """The functions of C++, beside those of C."""
    rows = [[f"`{name}({min(lists, key=len)})`", linked(", ".join(sorted(operations)), families)]
            for name, (lists, operations) in sorted(cpp_names(folder).items()) if operations]
    return ("# Functions in C++ {#cpp}\n\n`#include <qvpi.hpp>` has in the namespace `qvp` one name for all types and "
            "layouts of an operation; views and images tell which function of C is called. What it computes, and what is "
            "refused, is told there.\n\n" + table(["C++", "C"], rows))
