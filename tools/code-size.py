#!/usr/bin/env python3
"""Reports what the house rules keep small: files over 800 lines, functions over 60 lines, and the
share of test code. Exit status 1 when a file or a function is over its limit."""
import pathlib
import re
import subprocess
import sys

FILE_LIMIT = 800
FUNCTION_LIMIT = 60
ROOT = pathlib.Path(__file__).resolve().parent.parent


def tracked_sources():
    out = subprocess.run(["git", "ls-files", "*.cpp", "*.h"], cwd=ROOT, capture_output=True, text=True, check=True)
    return [ROOT / line for line in out.stdout.splitlines()]


def code_lines(text):
    return [line for line in text.splitlines() if line.strip() and not line.strip().startswith("//")]


def long_functions(path, text):
    """Top-level function bodies: a line ending a signature, '{' alone on the next line at column 0."""
    lines = text.splitlines()
    found = []
    for i, line in enumerate(lines):
        if line != "{" or i == 0:
            continue
        header = lines[i - 1]
        if header.startswith((" ", "\t", "#", "//")) or re.search(r"\b(class|struct|namespace|enum|union)\b", header):
            continue
        depth, end = 0, i
        for j in range(i, len(lines)):
            depth += lines[j].count("{") - lines[j].count("}")
            if depth == 0:
                end = j
                break
        body = end - i - 1
        if body > FUNCTION_LIMIT:
            found.append((path, i, body, header.strip()))
    return found


def main():
    over = False
    test_lines = other_lines = 0
    for path in tracked_sources():
        text = path.read_text(encoding="utf-8", errors="replace")
        count = len(code_lines(text))
        rel = path.relative_to(ROOT)
        if str(rel).startswith("Tests/"):
            test_lines += count
        else:
            other_lines += count
        total = len(text.splitlines())
        if total > FILE_LIMIT:
            print(f"{rel}: {total} lines (limit {FILE_LIMIT})")
            over = True
        for _, line, body, header in long_functions(rel, text):
            print(f"{rel}:{line}: function of {body} lines: {header[:90]}")
            over = True
    share = test_lines / max(1, test_lines + other_lines)
    print(f"test code: {test_lines} of {test_lines + other_lines} non-blank lines ({share:.0%}), "
          f"{test_lines / max(1, other_lines):.2f} of the rest")
    return 1 if over else 0


if __name__ == "__main__":
    sys.exit(main())
