#!/usr/bin/env python3
"""Doxygen's view of a C header: each family a group, which has a page, and on it each description once.

In the headers one comment stands for the prototypes below it. Doxygen would print it for each of them. Here it becomes
the text of a list, in which every function has a few words that come from its name.
"""
import re
import sys
from pathlib import Path

import pictures
from names import described
from sections import FUNCTION, GROUP, MODULES, SECTION, family_of, families, plain

# The constants of a type, whose description stands at the type.
VALUES = re.compile(r"(typedef int (\w+);\n)enum \{")


def listed(prototypes):
    lines = []
    for prototype in prototypes.splitlines():
        name = FUNCTION.search(prototype)[1]
        lines.append(f"/** {described(name) or '&nbsp;'} */\n{prototype}\n")
    return "".join(lines)


def comment(text):
    return "/** " + "\n".join(f" *  {line}".rstrip() for line in text.splitlines()).lstrip(" *") + "\n */\n"


def group(title, found):
    """A list of functions under one text."""
    text = f"@name {title}\n{plain(found['comment'])}\n@{{"
    return comment(text) + listed(found["prototypes"]) + "/** @} */\n"


def page(match, module):
    """The part of a family's page that one section makes. A second list in it is called by its first function."""
    name = family_of(match["title"])
    family = next(found for found in module if found.name == name)
    titles = iter([match["title"]])
    body = GROUP.sub(lambda found: group(next(titles, FUNCTION.search(found["prototypes"])[1]), found), match["body"])
    text = "".join(line[3:] + "\n" for line in match["text"].splitlines())
    about = f"@brief {family.about}\n\n" if family.groups and not text else ""
    shown = pictures.figures(family) if match["title"] == family.sections[0].title else ""
    if shown:
        about += f'@htmlonly <div class="pictures">{shown}</div> @endhtmlonly\n\n'
    return comment(f"@addtogroup {family.id} {name}\n{about}{text}@{{") + body + "/** @} */\n"


def main():
    header = Path(sys.argv[1])
    text = header.read_text()
    if header.stem in MODULES:
        module = families(header)
        text = SECTION.sub(lambda match: page(match, module), text)
        groups = "".join(comment(f"@addtogroup {family.id} {family.name}\n@ingroup {header.stem}") for family in module)
        text = groups + VALUES.sub(r"\1/** Values of \2. */\nenum {", text)
    sys.stdout.write(text)


if __name__ == "__main__":
    main()
