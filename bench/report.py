#!/usr/bin/env python3
"""Prints the ratios that the benchmarks left in a folder, and fails if a bound isn't kept.

The second argument is found in the names of the benchmarks whose bounds count.

A ratio is what the library is measured against divided by the library: 2 means twice as fast, or
half the memory.
"""
import json
import pathlib
import re
import sys

# A regular expression for the benchmark's name, the least ratio, and what it stands for.
BOUNDS = [
    (r"BM_Load_Time", 20, "loading the library, against one that links to Qt Widgets"),
    (r"BM_Load_Memory", 1, "what a process that loads it needs more: 1 MB against it"),
    (r"BM_FirstPaint_", 0.8, "call to first paint, against a bare dialog with the same content"),
    (r"BM_Growth_", 10 / 12, "ten times the time, against that of ten times the content"),
    (r"BM_Read.*/100000\b", 2, "reading 100,000 lines, against getline into strings"),
    (r"BM_Palette_Load", 1, "loading a palette of 256 rows, against a millisecond"),
    (r"BM_CodePage932_", 1, "code page 932, against the C library's converter"),
    (r"BM_AttachedText_Read", 1.5, "reading a text of 100 MB, against getline into one string"),
    (r"BM_LongText", 1, "showing a text of 100 MB: three times its size against the memory used"),
]


def main(folder, wanted):
    results = []
    for file in sorted(pathlib.Path(folder).glob("*.json")):
        results += json.loads(file.read_text())["benchmarks"]
    kept = bool(results)
    for pattern, least, meaning in BOUNDS:
        if not re.search(wanted, pattern):
            continue
        print(f"{meaning} (at least {least:.3g}):")
        found = [result for result in results if re.match(pattern, result["name"])]
        for result in found:
            ratio = result.get("ratio")
            holds = ratio is not None and ratio >= least
            kept = kept and holds
            shown = result.get("error_message") if ratio is None else f"{ratio:8.2f}"
            print(f"  {'holds ' if holds else 'BROKEN'} {shown}  {result['name']}")
        if not found:
            print("  BROKEN no such benchmark ran")
            kept = False
    return 0 if kept else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2]))
