"""Writes docs/performance.md: the results of the benchmarks put into the places of benchmarks/performance.md.in."""

import json
import math
import pathlib
import platform
import re
import subprocess
import sys

FULL = 4 * 1024 * 1024
BARS = {
    "convertEllipses": 1.0,
    "correctApostrophes": 0.8,
    "correctDashes": 0.95,
    "convertQuotationsToType": 1.5,
    "setMaxLineLength": 4.2,
    "setMaxLineLength, one line": 4.2,
    "setMaxLineLength, one word": 100,
    "deleteEmptyLines": 1.15,
    "convertStartTabsToSpace": 1.9,
    "rangesForStartTag **": 0.8,
    "rangesForStartTag \\\\": 0.8,
    "lineRangesForLevelString #": 0.75,
    "deleteCharactersInRanges, 4700 ranges": 0.65,
    "deleteCharactersInRanges, 45000 ranges": 1.1,
    "deleteCharactersInRanges, attributed, 100000 runs": 1.0,
    "encloseRanges, 4700 ranges": 1.2,
    "stringWithConvertedEscSequences": 2.2,
    "substitution, 50 pairs of HTML": 5.2,
    "substitution, 50 pairs of LaTeX": 7.8,
}
SHORT_BARS = {"17": 100, "48": 1200}


def load(folder):
    """The results by name; of repeated ones the median, for short texts the fastest."""
    results = {}
    for path in sorted(folder.glob("*.json")):
        for entry in json.loads(path.read_text())["benchmarks"]:
            if entry.get("error_occurred"):
                sys.exit(f"{entry['name']}: {entry['error_message']}")
            if entry.get("run_type") == "aggregate" and entry["aggregate_name"] != "median":
                continue
            if entry["name"].startswith("short/") and entry.get("run_type") == "aggregate":
                continue
            name = re.sub(r"(/iterations:\d+|/repeats:\d+|/manual_time|/real_time|/process_time|_median$)", "", entry["name"])
            name = re.sub(r"_median$", "", name)
            if name.startswith("short/") and name in results:
                entry = min(entry, results[name], key=lambda one: one["real_time"])
            results[name] = entry
    return results


def table(head, rows):
    lines = ["| " + " | ".join(head) + " |", "|" + "---|" * len(head)]
    return "\n".join(lines + ["| " + " | ".join(row) + " |" for row in rows])


def figure(value):
    """Three digits, without an exponent."""
    if value >= 100:
        return f"{value:,.0f}"
    return f"{value:.2g}" if value < 0.1 else f"{value:.3g}"


def time(entry):
    return f"{figure(entry['real_time'])} {entry['time_unit']}"


def shown(operation):
    return operation.replace("\\\\", "//").replace("*", "\\*")


def of_text(results):
    """The operations, each with its results by size and way."""
    operations = {}
    for name, entry in results.items():
        if name.startswith("text/"):
            _, operation, size, way = name.split("/")
            operations.setdefault(operation, {})[int(size), way] = entry
    return operations


def bars(results):
    rows = []
    for operation, ways in of_text(results).items():
        if operation not in BARS:
            continue
        kit = ways[FULL, "kit"]["memcpys"]
        others = {way: entry["memcpys"] for (size, way), entry in ways.items() if way not in ("kit", "plain")}
        best = min(others, key=others.get) if others else None
        plain = ways.get((FULL, "plain"))
        rows.append([shown(operation), figure(plain["memcpys"]) if plain else "-",
                     f"{figure(others[best])} ({best})" if best else "-", f"**{figure(kit)}**",
                     figure(BARS[operation]), "yes" if kit <= BARS[operation] else "see below"])
    return table(["operation", "plain way", "best other way", "kit", "bar", "holds"], rows)


def exponent(points):
    """The slope of a straight line through the logarithms of (size, value)."""
    xs = [math.log(size) for size, _ in points]
    ys = [math.log(value) for _, value in points]
    mean_x, mean_y = sum(xs) / len(xs), sum(ys) / len(ys)
    return sum((x - mean_x) * (y - mean_y) for x, y in zip(xs, ys)) / sum((x - mean_x) ** 2 for x in xs)


def growth(results):
    rows = []
    for operation, ways in of_text(results).items():
        points = sorted((size, entry) for (size, way), entry in ways.items() if way == "kit")
        ratios = [(size, entry["memcpys"]) for size, entry in points]
        times = [(size, entry["real_time"]) for size, entry in points]
        rows.append([shown(operation), *(figure(ratio) for _, ratio in ratios), f"{1 + exponent(ratios):.2f}",
                     f"{exponent(times):.2f}", figure(points[-1][1]["extra_bytes_per_unit"])])
    return table(["operation", "64 Ki", "256 Ki", "1 Mi", "4 Mi", "exponent beside memcpy", "exponent of the time",
                  "bytes a unit"], rows)


def limits(results):
    rows = [[name.split("/")[1], figure(entry["memcpys"])] for name, entry in results.items() if name.startswith("limit/")]
    return table(["what", "memcpys"], rows)


def short(results):
    rows = []
    for name, entry in sorted(results.items()):
        if name.startswith("short/"):
            _, operation, size = name.split("/")
            rows.append([operation, size, f"{figure(entry['real_time'])} ns", f"{SHORT_BARS[size]:,} ns"])
    return table(["operation", "units", "kit", "bar"], rows)


def peers(results, group):
    """The kit and its peers in one line an operation."""
    operations = {}
    for name, entry in results.items():
        if name.startswith(group + "/"):
            operation, way = name[len(group) + 1:].rsplit("/", 1)
            operations.setdefault(operation, {})[way] = entry
    rows = []
    for operation, ways in operations.items():
        others = [f"{way} {time(entry)}, {figure(ratio(entry, ways['kit']))} times the kit's"
                  for way, entry in ways.items() if way != "kit"]
        rows.append([operation, time(ways["kit"]), "; ".join(others) or "-"])
    return table([group, "kit", "others"], rows)


UNITS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def ratio(other, kit):
    return other["real_time"] * UNITS[other["time_unit"]] / (kit["real_time"] * UNITS[kit["time_unit"]])


def memory(results):
    rows = [[name[len("peak memory/"):], f"{entry['peak bytes'] / 1024:,.0f} KiB", figure(entry["peak bytes per byte"])]
            for name, entry in results.items() if name.startswith("peak memory/")]
    return table(["what", "at most", "bytes for a byte of the list"], rows)


def machine():
    processor = next((line.split(":", 1)[1].strip() for line in open("/proc/cpuinfo", encoding="utf-8")
                      if line.startswith("model name")), platform.processor())
    compiler = subprocess.run(["c++", "--version"], capture_output=True, text=True, check=True).stdout.splitlines()[0]
    qt = subprocess.run(["qmake6", "-query", "QT_VERSION"], capture_output=True, text=True, check=False).stdout.strip()
    return f"{processor}, {compiler}" + (f", Qt {qt}" if qt else "")


def main():
    results_folder, template, target = (pathlib.Path(argument) for argument in sys.argv[1:])
    results = load(results_folder)
    parts = {
        "machine": machine(),
        "bars": bars(results),
        "limits": limits(results),
        "growth": growth(results),
        "short": short(results),
        "settings": peers(results, "settings"),
        "file names": peers(results, "file names"),
        "archives": peers(results, "archives"),
        "refuse": peers(results, "refuse"),
        "windows": peers(results, "windows"),
        "memory": memory(results),
    }
    text = re.sub(r"@([a-z ]+)@", lambda match: parts[match[1]], template.read_text(encoding="utf-8"))
    target.write_text(text, encoding="utf-8")


main()
