#!/usr/bin/env python3
"""Make the manual: its pages, with pictures drawn by the library; doxygen's site; the search; man pages; and check it."""
import argparse
import re
import shutil
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent / "tools"))
import find_index  # noqa: E402
import links  # noqa: E402
import man  # noqa: E402
import pages  # noqa: E402
from sections import all_families  # noqa: E402

OUT = Path("build/docs")
HTML, PAGES = OUT / "html", OUT / "pages"
# Parts of the manual that are not always there, by what the start page calls them.
OPTIONAL = {"@subpage trust": Path("docs/trust.md"), "try.html": Path("build/wasm/page/qvpi.html")}
TEXTS = ["README.md", "CHANGELOG.md", "CONTRIBUTING.md", "docs", "include", "build/docs/pages"]


def run(*command):
    if subprocess.run(command, check=False).returncode:
        raise SystemExit(f"{command[0]} failed")


def mainpage():
    """The start page without the lines on what is missing."""
    missing = [name for name, file in OPTIONAL.items() if not file.exists()]
    lines = Path("docs/mainpage.md").read_text().splitlines(keepends=True)
    return "".join(line for line in lines if not any(name in line for name in missing))


def copy_texts(families):
    """Pages that are read outside of the manual, too, under a name for links."""
    for file in [OUT / "python.md", *map(Path, ["docs/from-numpy.md", "docs/porting.md", "docs/trust.md"])]:
        if file.exists():
            title, text = file.read_text().split("\n", 1)
            label = "" if "{#" in title else f" {{#{file.stem.replace('-', '_')}}}"
            text = f"{title}{label}\n{text}"
            (PAGES / file.name).write_text(pages.linked(text, families) if file.stem == "porting" else text)
    if OPTIONAL["try.html"].exists():
        shutil.copy(OPTIONAL["try.html"], HTML / "try.html")


def write_pages(families, options):
    """The pages that are made; those of docs/pages are as they are."""
    readme = Path("README.md").read_text()
    for name, text in {"index": pages.start(mainpage(), families),
                       "words": pages.words(readme, families), "grid": pages.grid(families),
                       "cpp": pages.cpp(options.cpp, families)}.items():
        (PAGES / f"{name}.md").write_text(text)
    (PAGES / "modules.dox").write_text(pages.modules())
    run(sys.executable, "tools/derive_stubs.py", "--pages", "python/qvpi", str(OUT))
    copy_texts(families)
    run(sys.executable, "docs/drawings.py", str(HTML))
    run(sys.executable, "docs/gallery.py", str(options.picture), str(HTML), str(PAGES / "gallery.md"))
    run(sys.executable, "docs/accuracy.py", str(OUT / "accuracy.md"))
    (PAGES / "accuracy.md").write_text(pages.linked((OUT / "accuracy.md").read_text(), families))
    (PAGES / "speed.md").write_text(pages.speed(Path("build/bench/report.md"), Path("docs/speed.md")))


def write_site(families):
    run("doxygen", "-w", "html", str(OUT / "header.html"), str(OUT / "footer.html"), str(OUT / "doxygen.css"))
    header = (OUT / "header.html").read_text()
    (OUT / "header.html").write_text(header.replace("</head>", '<script src="$relpath^find.js"></script>\n</head>'))
    run("doxygen", "docs/Doxyfile")
    readme = Path("README.md").read_text()
    words, rows = pages.search_words(readme, families), pages.word_entries(readme)
    return find_index.write_index(OUT / "names.tag", words, rows, HTML)


def check():
    """Links that lead nowhere, names that are none, words that are misspelt, parameters that are not documented."""
    found = [f"{file}: there is no {name}" for file, name in pages.unknown_names("include", TEXTS)]
    found += [f"{page}: {link} leads nowhere" for page, link in links.broken(HTML)]
    print("\n".join(found[:40]))
    run("codespell", "--ignore-words", "docs/spelling.txt", *TEXTS)
    run(sys.executable, "tools/check_docs.py")
    if found:
        raise SystemExit(f"{len(found)} mistakes")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("picture", type=Path, help="the photograph of the gallery")
    parser.add_argument("--cpp", default="build/derived/cpp/qvpi/operations", help="folder of the derived C++ headers")
    options = parser.parse_args()
    for folder in (HTML, PAGES, OUT / "man"):
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
    families = all_families("include")
    version = re.search(r'QVP_VERSION "(.*?)"', Path("include/qvptypes.h").read_text())[1]
    write_pages(families, options)
    count = write_site(families)
    man.write_pages(families, "include", version, OUT / "man")
    check()
    print(f"{HTML}/index.html: {len(list(HTML.glob('*.html')))} pages, {count} entries to find; man pages in {OUT}/man")


if __name__ == "__main__":
    main()
