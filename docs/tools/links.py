"""Links of the manual's pages that lead nowhere: to files that are missing, or to places that their pages have not."""
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote, urlsplit


class Page(HTMLParser):
    """The links of a page and the places in it."""
    def __init__(self, file):
        super().__init__()
        self.links, self.places = [], {""}
        self.feed(file.read_text())

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name in ("href", "src") and value:
                self.links.append(value)
            elif name == "id" or (name == "name" and tag == "a"):
                self.places.add(value)


def is_broken(link, page, pages):
    parts = urlsplit(link)
    if parts.scheme or parts.netloc:
        return False
    target = (page.parent / unquote(parts.path)).resolve() if parts.path else page.resolve()
    return not target.exists() or (target in pages and unquote(parts.fragment) not in pages[target].places)


def broken(folder):
    """[(page, link)]"""
    pages = {file.resolve(): Page(file) for file in sorted(Path(folder).glob("*.html"))}
    return [(page.name, link) for page, found in pages.items() for link in sorted(set(found.links))
            if is_broken(link, page, pages)]
