"""Every link and picture of the site leads to a file and, where it says so, a place in it.

usage: check_links.py HTML
"""
import html.parser
import pathlib
import sys
import urllib.parse


class Links(html.parser.HTMLParser):
    def __init__(self, page):
        super().__init__()
        self.targets, self.names = [], set()
        self.feed(page.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        self.names.update(values[key] for key in ("id", "name") if key in values)
        self.targets += [values[key] for key in ("href", "src", "data") if values.get(key)]


def main(folder):
    pages = {page: Links(page) for page in pathlib.Path(folder).glob("*.html")}
    broken = []
    for page, links in pages.items():
        for target in links.targets:
            url = urllib.parse.urlsplit(target)
            file = page.parent / urllib.parse.unquote(url.path) if url.path else page
            if url.scheme or target.startswith("$"):
                continue
            if not file.is_file() or (url.fragment and file in pages and url.fragment not in pages[file].names):
                broken.append(f"{page.name}: {target}")
    if broken or not pages:
        sys.exit("\n".join(["links that lead nowhere:", *sorted(set(broken))]))
    print(f"{len(pages)} pages, all links lead somewhere")


if __name__ == "__main__":
    main(sys.argv[1])
