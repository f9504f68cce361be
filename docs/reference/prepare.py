"""Writes the headers for Doxygen as readers understand them: prepare.py TOPICS.dox FOLDER HEADER...

A comment holds for all declarations below it, up to an empty line or the next comment, and that of a group (`\\name`)
for each of its members. An override without a comment does what is said where it was declared first, and a defaulted
comparison compares everything: both are left out, as is what a class takes from its base. What a header declares
belongs to the topic that names the header, and what the header says of itself opens that topic.
"""

import pathlib
import re
import sys

COMMENT = re.compile(r"\s*///(?!<)")
MACRO = re.compile(r"(#|//|Q_[A-Z_]+(\(.*\))?$|namespace |public:|protected:|private:|Q_SIGNALS:)")
LEFT_OUT = re.compile(r"\boverride(;| \{.*\})$|friend .*operator==.* = default;$|^using \w+::\w+;$")


def topic_of(header, topics):
    """The topic that names this header."""
    for topic in topics.split("\\defgroup ")[1:]:
        if f"`{header}`" in topic:
            return topic.split()[0]
    sys.exit(f"{header} belongs to no topic")


def declarations(lines):
    """Pairs of the comment that stands directly above a declaration, or an empty line or macro, and its lines."""
    comment, declaration = [], []
    for line in lines:
        text = line.strip()
        if not declaration and COMMENT.match(line):
            comment.append(line)
            continue
        declaration.append(line)
        if text.endswith("\\"):  # a macro goes on
            continue
        code = " ".join(declaration)
        begins_scope = re.search(r"\b(class|struct|enum|namespace|extern \"C\")\b[^;()]*\{$", code.strip())
        ends = re.search(r"[;,:}](\s*//.*)?$", text) and code.count("(") == code.count(")")
        is_whole = begins_scope or (ends and code.count("{") <= code.count("}"))
        if not text or text == "{" and begins_scope or MACRO.match(declaration[0].strip()) or is_whole:
            yield comment, declaration
            comment, declaration = [], []
    yield comment, declaration


def shown(lines, topic):
    """The lines, with each comment repeated above all declarations that it holds for, and their topic."""
    shared = []  # the comment that holds for a declaration without one
    group = []  # the comment of the group that is open
    for comment, declaration in declarations(lines):
        code = " ".join(line.strip() for line in declaration).strip()
        marks = {line.strip() for line in comment}
        begins_group = "/// @{" in marks
        if begins_group:
            shared = group = [line for line in comment if r"\name" not in line and "@{" not in line]
        elif "/// @}" in marks:
            shared = group = []
        elif comment:
            shared = comment
        elif not code or code.startswith("}") or MACRO.match(code):
            shared = group
        if not comment and LEFT_OUT.search(code):
            continue
        yield from comment
        is_bare = (begins_group or not comment) and "///<" not in code
        if is_bare and shared and not re.match(r"$|}|" + MACRO.pattern, code):
            yield ""
            yield from shared
        if (shared or "///<" in code) and re.match(r"\w|#define| +(class|struct) ", declaration[0]):
            yield from ["/// " + behind.strip() for behind in code.split("///<")[1:]]
            yield f"/// \\ingroup {topic}"
            declaration = [line.partition("///<")[0] for line in declaration]
        yield from declaration
        if code.endswith("{"):
            shared = []


def main():
    topics = pathlib.Path(sys.argv[1]).read_text(encoding="utf-8")
    for header in map(pathlib.Path, sys.argv[3:]):
        name = header.as_posix().rpartition("/OrvaneExportKit/")[2]
        topic = topic_of(name, topics)
        text = header.read_text(encoding="utf-8").replace("/// \\file\n", f"/// \\addtogroup {topic}\n", 1)
        prepared = pathlib.Path(sys.argv[2], "OrvaneExportKit", name)
        prepared.parent.mkdir(parents=True, exist_ok=True)
        prepared.write_text("\n".join(shown(text.splitlines(), topic)) + "\n", encoding="utf-8")


main()
