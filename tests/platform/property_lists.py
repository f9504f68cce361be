#!/usr/bin/env python3
"""Property lists as Python's plistlib reads and writes them, for PropertyListInterchangeTest.

    property_lists.py dump FOLDER                 prints a line for each file: its name and its value, or "error"
    property_lists.py generate SEED COUNT FOLDER  writes random values as 0.xml, 0.binary ... and prints the same

A value's line is the one that support/PropertyListDump.h makes.
"""

import datetime
import pathlib
import plistlib
import random
import struct
import sys

FORMATS = {"xml": plistlib.FMT_XML, "binary": plistlib.FMT_BINARY}
EPOCH = datetime.datetime(1970, 1, 1)
MILLISECOND = datetime.timedelta(milliseconds=1)


def units(text):
    return text.encode("utf-16-be", "surrogatepass").hex()


def dump(value):
    if isinstance(value, bool):
        return "true" if value else "false"
    if isinstance(value, str):
        return "s" + units(value)
    if isinstance(value, int):
        return f"i{value if -2**63 <= value < 2**64 else value % 2**64}"  # of 16 bytes others read the last 8
    if isinstance(value, float):
        return "rnan" if value != value else "r" + struct.pack(">d", value).hex()
    if isinstance(value, datetime.datetime):
        return f"d{(value - EPOCH + MILLISECOND / 2) // MILLISECOND}"
    if isinstance(value, bytes):
        return "x" + value.hex()
    if isinstance(value, plistlib.UID):
        return f"u{value.data}"
    if isinstance(value, list):
        return "[" + "".join(dump(element) + "," for element in value) + "]"
    entries = sorted((units(key), dump(element)) for key, element in value.items())
    return "{" + "".join(f"{key}={element}," for key, element in entries) + "}"


def read(path):
    try:
        return dump(plistlib.loads(path.read_bytes()))
    except Exception:  # plistlib lets many kinds of exception through
        return "error"


def random_character():
    return chr(random.choice([random.randint(0x20, 0x7E), random.choice(b"<>&\"'\t\n "), random.randint(0xA0, 0xD7FF),
                              random.randint(0xE000, 0xFCFF), random.randint(0x10000, 0x10FFFF)]))


def random_string():
    return "".join(random_character() for _ in range(random.randrange(random.choice([8, 20, 300]))))


def random_real():
    return random.choice([random.uniform(-1000, 1000), random.randint(-2**60, 2**60) / 8, 10.0 ** random.randint(-300, 300),
                          float("inf"), float("-inf"), float("nan")])


def random_value(containers=4):
    kind = random.randrange(9 if containers else 6)
    if kind == 0:
        return random_string()
    if kind == 1:
        return random.choice([-1, 1]) * random.getrandbits(random.randint(0, 63))
    if kind == 2:
        return random.choice([random_real(), random.randint(2**63, 2**64 - 1)])
    if kind == 3:
        return random.random() < 0.5
    if kind == 4:
        return datetime.datetime(1, 1, 1) + datetime.timedelta(seconds=random.randrange(315537897600))
    if kind == 5:
        return random.randbytes(random.randrange(random.choice([8, 60, 500])))
    count = random.randrange(random.choice([3, 5, 20]))
    if kind == 6:
        return [random_value(containers - 1) for _ in range(count)]
    return {random_string(): random_value(containers - 1) for _ in range(count)}


def generate(seed, count, folder):
    random.seed(seed)
    for index in range(count):
        value = random_value()
        for name, plist_format in FORMATS.items():
            (folder / f"{index}.{name}").write_bytes(plistlib.dumps(value, fmt=plist_format))
            print(f"{index}.{name}", dump(value))


def main(command, *arguments):
    if command == "dump":
        for path in pathlib.Path(arguments[0]).iterdir():
            print(path.name, read(path))
    else:
        generate(int(arguments[0]), int(arguments[1]), pathlib.Path(arguments[2]))


main(*sys.argv[1:])
