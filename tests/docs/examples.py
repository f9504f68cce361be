"""Makes a program of the examples in headers: examples.py HEADER... > examples.cpp

An example is a block of indented code in a comment of a header. Each is compiled, as the body of a function or, where
it defines a member, as it stands. One that says what comes out, in a comment with a literal behind a statement, is run
as a test: the literal is the value of the expression, or of the text that the example declares. Left out is what is no
whole C++: sketches with an ellipsis, and what stands in other files.
"""

import pathlib
import re
import sys

HEADER = """#include <OrvaneExportKit/OrvaneExportKit.h>

#include <tests/docs/ExampleNames.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>
"""
LITERAL = re.compile(r'(?P<value>".*"|\{.*\}|-?[\d.]+f?|true|false|Q\w+\(.*\))$')


def examples(header):
    """The line and the code of each example."""
    lines = pathlib.Path(header).read_text(encoding="utf-8").splitlines()
    block = []
    for number, line in enumerate(lines + [""], 1):
        code = re.match(r"\s*/// {5}(.*)", line)
        if code:
            block.append(code[1])
        elif block:
            yield number - len(block), block
            block = []


def is_whole(block):
    code = "\n".join(block)
    return not re.search(r"\.\.\.|Q_OBJECT|^<|^\w+=", code, re.MULTILINE)


def literal(text):
    """The value that a comment gives, as C++, or nothing."""
    value = LITERAL.match(text)
    if value is None:
        return None
    strings = re.compile(r'"(?:[^"\\]|\\.)*"')
    code = strings.sub(lambda string: f"u{string[0]}_s", value["value"])
    if not code.startswith("u"):
        return code
    found = strings.findall(value["value"])
    if ", ".join(found) != value["value"]:
        return None
    return code if len(found) == 1 else f"QStringList{{{code}}}"


def statements(block):
    """The lines as C++ with expectations, and whether there are any."""
    subject = next((match[1] for match in map(re.compile(r"(?:QString|AttributedString) (\w+)[(=; ]").match, block)
                    if match), None)
    lines = []
    expects = False
    for line in block:
        code, _, comment = line.partition("//")
        code, value = code.strip(), literal(comment.strip())
        if value is None or line.startswith(" ") and code:
            lines.append(line)
            continue
        expects = True
        statement = code or lines.pop()
        expression = statement.strip().rstrip(";")
        if subject:
            lines.append(statement)
            expression = f"plain({subject})"
        lines.append(f"EXPECT_EQ(({expression}), (decltype({expression})({value})));")
    code, slashes, comment = lines[-1].partition("//")
    if not re.search(r"[;{}]\s*$", code):
        lines[-1] = f"{code.rstrip()}; {slashes}{comment}"
    return lines, expects


def main():
    print(HEADER)
    tested = 0
    for header in sys.argv[1:]:
        name = pathlib.PurePath(header).as_posix().rpartition("/OrvaneExportKit/")[2]
        if f"/{name}" not in HEADER:
            print(f"#include <OrvaneExportKit/{name}>")
        for line, block in examples(header):
            if not is_whole(block):
                continue
            identifier = re.sub(r"\W", "_", name.removesuffix(".h")) + f"_{line}"
            if re.match(r"void \w+::", block[0]):
                print("\n" + "\n".join(block))
                continue
            lines, expects = statements(block)
            tested += expects
            begin = f"TEST(Example, {identifier})" if expects else f"[[maybe_unused]] static void {identifier}()"
            print(f"\n{begin}\n{{\n    " + "\n    ".join(lines) + "\n}")
    if tested == 0:
        sys.exit("no example says what comes out")


main()
