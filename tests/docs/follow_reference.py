"""Follows the links of the reference: follow_reference.py FOLDER HEADER...

Fails unless everything that the headers declare is at most two links away from the front page.
"""

import pathlib
import re
import sys
import xml.etree.ElementTree

LINKS = 2
DECLARATIONS = re.compile(
    r"^(?:(?:class|struct|enum class)(?: ORVANE_\w+_EXPORT)? (\w+)(?: (?:final )?:.*)?(?: \{)?$"
    r"|#define ((?!ORVANE_\w+_EXPORT)\w+)"
    r"|using (\w+) ="
    r"|inline constexpr \w+ (\w+) ="
    r"|(?:extern )?ORVANE_\w+_EXPORT [^;(]*?(\w+)[;(])",
    re.MULTILINE)


def declared(headers):
    """The names that the headers declare in namespaces and outside of them, and where."""
    for header in headers:
        for match in DECLARATIONS.finditer(pathlib.Path(header).read_text(encoding="utf-8")):
            yield next(filter(None, match.groups())), header


def pages_near(folder, start, distance):
    """The pages that are so many links away or less, with their text."""
    pages = {}
    next_names = {start}
    for _ in range(distance + 1):
        names, next_names = next_names - pages.keys(), set()
        for name in names:
            pages[name] = (folder / "html" / name).read_text(encoding="utf-8")
            next_names.update(re.findall(r'href="([\w-]+\.html)', pages[name]))
    return pages


def documented(folder):
    """The name, page and place of each member and class in the reference."""
    for compound in xml.etree.ElementTree.parse(folder / "OrvaneExportKit.tag").getroot():
        if compound.get("kind") in ("class", "struct"):
            yield compound.findtext("name").rpartition("::")[2], compound.findtext("filename"), None
        if compound.get("kind") in ("class", "struct", "group"):
            for member in compound.findall("member"):
                yield member.findtext("name"), member.findtext("anchorfile"), member.findtext("anchor")


def main():
    folder = pathlib.Path(sys.argv[1])
    pages = pages_near(folder, "index.html", LINKS)
    found = set()
    mistakes = []
    for name, page, place in documented(folder):
        if page in pages and (place is None or f'id="{place}"' in pages[page]):
            found.add(name)
        else:
            mistakes.append(f"{name} is more than {LINKS} links away: {page}#{place}")
    names = list(declared(sys.argv[2:]))
    mistakes += [f"{name} of {header} is not in the reference" for name, header in names if name not in found]
    print(f"{len(names)} declarations, {len(found)} names in {len(pages)} pages")
    if mistakes or not names:
        sys.exit("\n".join(mistakes) or "the headers declare nothing")


main()
