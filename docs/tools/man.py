"""A man page for each function: its own prototype and parameters, under the description that it shares with others."""
import gzip
import re
from pathlib import Path

from names import described, parts
from sections import FUNCTION, brief, plain

PARAMETER = re.compile(r"@param ([\w,]+) ((?:(?!\n@|\n\n).|\n(?!@|\n))*)", re.S)
RETURN = re.compile(r"@return ((?:(?!\n@).|\n(?!@))*)", re.S)
# What cannot be filled: code, formulas, tables.
KEPT = re.compile(r"^(?: {4}|\|)")


def escaped(text):
    text = text.replace("\\", "\\e").replace("-", "\\-")
    text = re.sub(r"\*\*(.+?)\*\*|`(.+?)`", lambda match: f"\\fB{match[1] or match[2]}\\fR", text)
    return re.sub(r"^([.'])", r"\\&\1", text, flags=re.M)


def kept(lines):
    return ".PP\n.nf\n" + "".join(escaped(line.replace("`", "").replace("**", "")) + "\n" for line in lines) + ".fi\n"


def item(text):
    return ".IP * 2\n" + escaped(" ".join(text.split())) + "\n"


def paragraph(text):
    """Roff of a paragraph: text, a list, code or a table."""
    lines = text.splitlines()
    if all(KEPT.match(line) for line in lines):
        return kept([line for line in lines if not re.fullmatch(r"[|\-: ]+", line)])
    head, *items = re.split(r"^- ", text, flags=re.M)
    start = ".PP\n" + escaped(" ".join(head.split())) + "\n" if head.strip() else ""
    return start + "".join(map(item, items))


def body(text):
    text = re.sub(r"@code\n(.*?)@endcode", lambda code: re.sub(r"^", "    ", code[1].rstrip(), flags=re.M), text,
                  flags=re.S)
    return "".join(paragraph(part) for part in re.split(r"\n\s*\n", text.strip("\n")) if part.strip())


def declaration(prototype):
    """A prototype, a parameter a line where it is long."""
    head, parameters = prototype.rstrip(");").split("(", 1)
    space = ", " if len(prototype) < 76 else ",\n    "
    start = "" if len(prototype) < 76 else "\n    "
    return f"{head}({start}{parameters.replace(', ', space)});"


def parameters(text, prototype):
    """The parameters that the prototype has, of those that are documented for all forms."""
    own, shown = set(re.findall(r"\w+", prototype.split("(", 1)[1])), ""
    for names, meaning in PARAMETER.findall(text):
        names = [name for name in names.split(",") if name in own]
        if names:
            shown += f".TP\n.I {escaped(', '.join(names))}\n{escaped(' '.join(meaning.split()))}\n"
    return f".SH PARAMETERS\n{shown}" if shown else ""


def page(family, comment, prototypes, prototype, version):
    name, text = FUNCTION.search(prototype)[1], plain(comment)
    result, others = RETURN.search(text), [other for other in FUNCTION.findall(prototypes) if other != name]
    form = described(name)
    return (f'.TH {name} 3 "" "qvpIP {version}" "{family.name}"\n.nh\n.ad l\n'
            f".SH NAME\n{name} \\- {escaped(brief(comment).replace('`', ''))}\n"
            f".SH SYNOPSIS\n.nf\n.B #include <{family.module}.h>\n.PP\n{escaped(declaration(prototype))}\n.fi\n"
            + (f".PP\nPixels: {escaped(form)}.\n" if form else "")
            + f".SH DESCRIPTION\n{body(text.split(chr(10) + '@param')[0].split(chr(10) + '@return')[0])}"
            + parameters(text, prototype)
            + (f".SH RETURN VALUE\n{body(result[1])}" if result else "")
            + ".SH SEE ALSO\n.BR qvpi (7)\n"
            + (f".PP\nDescribed by the same text: {escaped(', '.join(others))}\n" if others else ""))


def overview(header, version):
    """qvpi(7): the conventions of every function, from the comment on a header."""
    text = plain(re.search(r"/\*\* @file \S+\n(.*?)\*/", header.read_text(), re.S)[1])
    return (f'.TH qvpi 7 "" "qvpIP {version}" "Conventions"\n.nh\n.ad l\n.SH NAME\n'
            f"qvpi \\- image\\-processing primitives for pixels in memory\n.SH DESCRIPTION\n{body(text)}")


def write(file, text):
    file.write_bytes(gzip.compress(text.encode(), mtime=0))


def write_pages(families, include, version, out):
    """Pages of all functions; and by its name alone each operation, which shows its first form."""
    manual = Path(out) / "man3"
    manual.mkdir(parents=True, exist_ok=True)
    (Path(out) / "man7").mkdir(exist_ok=True)
    write(Path(out) / "man7/qvpi.7.gz", overview(Path(include) / "qvpi_core.h", version))
    for family in families:
        for _, comment, prototypes in family.groups:
            for prototype in prototypes.splitlines():
                name = FUNCTION.search(prototype)[1]
                write(manual / f"{name}.3.gz", page(family, comment, prototypes, prototype, version))
    for family in families:
        for name in family.functions:
            if not (manual / f"{parts(name)[0]}.3.gz").exists():
                write(manual / f"{parts(name)[0]}.3.gz", f".so man3/{name}.3\n")
