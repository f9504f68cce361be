"""Makes tests of the code in a Markdown file: recipes.py FILE.md > tests.cpp

Every block of ```cpp is the body of one test. A line `// => VALUE` expects the statement before it to have that value.
"""

import re
import sys

HEADER = """#include <OrvaneExportKit/OrvaneExportKit.h>

#include <tests/support/Printers.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using namespace KZStringExportAdditions;
using namespace KZMutableStringExportAdditions;
using platform::AttributedString;
using platform::RangeList;
"""


def blocks(text):
    """The heading above each block of C++, and the block."""
    heading = ""
    for match in re.finditer(r"^#+ (.*)$|^```cpp\n((?:.*\n)*?)```$", text, re.MULTILINE):
        if match.group(1):
            heading = match.group(1)
        else:
            yield heading, match.group(2)


def body(block):
    statements = []
    for line in block.splitlines():
        value = re.match(r"// => (.*)", line)
        if value is None:
            statements.append(line)
        else:
            expression = statements.pop().strip().removesuffix(";")
            statements.append(f"EXPECT_EQ(({expression}), ({value.group(1)}));")
    return "\n".join("    " + statement for statement in statements)


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        text = file.read()
    print(HEADER)
    for number, (heading, block) in enumerate(blocks(text), 1):
        name = "".join(word.capitalize() for word in re.findall(r"\w+", heading))
        print(f"TEST(Recipe, {name}{number})\n{{\n{body(block)}\n}}\n")


main()
