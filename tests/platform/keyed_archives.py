#!/usr/bin/env python3
"""Keyed archives as Python's plistlib reads and writes them, for KeyedArchiveInterchangeTest.

    keyed_archives.py read FOLDER   prints a line for each file: its name and its root object, or "error"
    keyed_archives.py write FOLDER  writes 0.xml, 0.binary ... and prints the same

A root object's line is JSON with sorted keys: strings, numbers and lists as they are, dictionaries as objects, data in
hexadecimal, and any other object as its fields with its class chain under "class".
"""

import json
import pathlib
import plistlib
import sys


def with_uids(value):
    """In XML plistlib takes references for the dictionaries that they are written as."""
    if isinstance(value, dict):
        if list(value) == ["CF$UID"]:
            return plistlib.UID(value["CF$UID"])
        return {key: with_uids(element) for key, element in value.items()}
    return [with_uids(element) for element in value] if isinstance(value, list) else value


def without_uids(value):
    if isinstance(value, plistlib.UID):
        return {"CF$UID": value.data}
    if isinstance(value, dict):
        return {key: without_uids(element) for key, element in value.items()}
    return [without_uids(element) for element in value] if isinstance(value, list) else value


class Archive:
    def __init__(self, data):
        archive = plistlib.loads(data)
        if not data.startswith(b"bplist"):
            archive = with_uids(archive)
        assert archive["$archiver"] == "NSKeyedArchiver" and archive["$version"] == 100000
        self.objects = archive["$objects"]
        assert self.objects[0] == "$null"
        self.root = self.value(archive["$top"]["root"])

    def value(self, field):
        if isinstance(field, plistlib.UID):
            return None if field.data == 0 else self.object(self.objects[field.data])
        if isinstance(field, list):
            return [self.value(element) for element in field]
        return field.hex() if isinstance(field, bytes) else field

    def object(self, entry):
        if not isinstance(entry, dict):
            return self.value(entry)
        record = self.objects[entry["$class"].data]
        fields = {key: self.value(field) for key, field in entry.items() if key != "$class"}
        assert record["$classes"][0] == record["$classname"]
        if record["$classname"] in ("NSArray", "NSMutableArray"):
            return fields["NS.objects"]
        if record["$classname"] == "NSDictionary":
            assert len(fields["NS.keys"]) == len(fields["NS.objects"])
            return dict(zip(fields["NS.keys"], fields["NS.objects"]))
        return fields | {"class": record["$classes"]}


def line(root):
    return json.dumps(root, sort_keys=True, ensure_ascii=False, separators=(",", ":"))


def read(path):
    try:
        return line(Archive(path.read_bytes()).root)
    except Exception as error:
        return f"error {error!r}"


class Writer:
    """Writes strings, numbers, lists and dictionaries, each object anew."""

    def __init__(self):
        self.objects = ["$null"]
        self.classes = {}

    def add(self, entry):
        self.objects.append(entry)
        return plistlib.UID(len(self.objects) - 1)

    def add_object(self, name, fields):
        if name not in self.classes:
            self.classes[name] = self.add({"$classname": name, "$classes": [name, "NSObject"]})
        return self.add(fields | {"$class": self.classes[name]})

    def add_value(self, value):
        if isinstance(value, list):
            return self.add_object("NSArray", {"NS.objects": [self.add_value(element) for element in value]})
        if isinstance(value, dict):
            return self.add_object("NSDictionary", {"NS.keys": [self.add_value(key) for key in value],
                                                    "NS.objects": [self.add_value(element) for element in value.values()]})
        return self.add(value)

    def archive(self, value):
        root = self.add_value(value)
        return {"$archiver": "NSKeyedArchiver", "$version": 100000, "$top": {"root": root}, "$objects": self.objects}


VALUES = ["text", "gr\u00fc\u00df \U0001F600 <&>", 42, -7, 0.1, True, [], ["a", 1, 1.5, ["a", False]],
          {"a": 1, "b": ["c", {"d": "e"}]}, {str(number): number * number for number in range(300)}]


def write(folder):
    for index, value in enumerate(VALUES):
        archive = Writer().archive(value)
        (folder / f"{index}.xml").write_bytes(plistlib.dumps(without_uids(archive), fmt=plistlib.FMT_XML))
        (folder / f"{index}.binary").write_bytes(plistlib.dumps(archive, fmt=plistlib.FMT_BINARY))
        print(f"{index}.xml", line(value))
        print(f"{index}.binary", line(value))


def main(command, folder):
    sys.stdout.reconfigure(encoding="utf-8")
    if command == "read":
        for path in pathlib.Path(folder).iterdir():
            print(path.name, read(path))
    else:
        write(pathlib.Path(folder))


main(*sys.argv[1:])
