"""The index of the manual's search, from the names that doxygen wrote down."""
import json
import re
import xml.etree.ElementTree as ElementTree

# What is found first among what suits alike.
RANKS = {"page": 0, "group": 0, "class": 1, "struct": 1, "file": 2, "function": 3}
ABOUT = {"page": "page", "group": "family", "class": "class in C++", "struct": "structure", "file": "header"}


def text(node, name):
    return node.findtext(name) or ""


def file_of(node):
    name = text(node, "filename") or text(node, "anchorfile")
    return name if name.endswith(".html") else name + ".html"


def compound(node, words):
    kind, name = node.get("kind"), text(node, "name")
    title = text(node, "title") or name.removeprefix("qvp::errors_returned::").removeprefix("qvp::")
    return {"title": title, "url": file_of(node), "about": ABOUT[kind], "rank": RANKS[kind],
            "words": ", ".join([*words.get(name, []), name.replace("_", " ")]).lower()}


def member(node, owner):
    url = f"{text(node, 'anchorfile')}#{text(node, 'anchor')}"
    return {"title": text(node, "name"), "url": url, "about": owner, "rank": RANKS["function"]}


def members(node, owner):
    """Functions of C, with what they return; constants; members of classes are found by their class."""
    for found in node.iter("member"):
        if found.get("kind") in ("function", "enumvalue", "define", "typedef") and text(found, "anchorfile"):
            yield member(found, owner)


def entries(tags, words):
    found = {}
    for node in ElementTree.parse(tags).getroot():
        if node.get("kind") not in ABOUT:
            continue
        entry = compound(node, words)
        found.setdefault(entry["url"], entry)
        if node.get("kind") == "group":
            found.update((one["url"], one) for one in members(node, entry["title"]))
    return list(found.values())


def headings(page):
    """(anchor, title) of what a page has headings for."""
    return [(anchor, re.sub(r"<[^>]+>", "", title).strip()) for anchor, title in re.findall(
        r'<h[1-4][^>]*>\s*<a class="anchor" id="([^"]+)"></a>\s*(.*?)</h[1-4]>', page, re.S)]


def write_index(tags, words, rows, html):
    """Writes find-index.js; words are of groups, by their names; rows are entries as they are."""
    found = rows + entries(tags, words)
    for entry in [entry for entry in found if entry["about"] == "page"]:
        for anchor, title in headings((html / entry["url"]).read_text()):
            url = f"{entry['url']}#{anchor}"
            found.append({"title": title, "url": url, "about": entry["title"], "rank": 1})
    text = json.dumps(found, ensure_ascii=False, separators=(",", ":"))
    (html / "find-index.js").write_text(f"window.FIND_INDEX = {text};\n")
    return len(found)
