#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Lines of code per folder, blanks and comments out: the sources under src/, the tests under
tests/ and the test tools (the scripts under tools/ that the tests or the fault run call).

    python3 tools/linecount.py            # a table per folder and the totals
"""
import collections
import os
import re
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
CODE = ('.cpp', '.h', '.py', '.sh')


def code_lines(path):
    text = open(path, encoding='utf-8').read()
    if path.endswith(('.cpp', '.h')):
        text = re.sub(r'/\*.*?\*/', lambda m: '\n' * m.group(0).count('\n'), text, flags=re.S)
        comment = '//'
    else:
        comment = '#'
    return sum(1 for line in text.split('\n') if line.strip() and not line.strip().startswith(comment))


def folder_of(relative):
    parts = relative.split('/')[:-1]
    return '/'.join(parts[:2]) if parts[:1] in (['ui'], ['cli']) else (parts[0] if parts else '.')


def count_tree(top):
    counts = collections.Counter()
    for folder, _, names in os.walk(os.path.join(ROOT, top)):
        for name in names:
            if name.endswith(CODE):
                path = os.path.join(folder, name)
                counts[folder_of(os.path.relpath(path, os.path.join(ROOT, top)))] += code_lines(path)
    return counts


def test_tools():
    """The tools/ scripts named by the tests' build file, and the fault run."""
    listed = open(os.path.join(ROOT, 'tests', 'CMakeLists.txt'), encoding='utf-8').read()
    names = set(re.findall(r'tools/([\w.-]+\.(?:py|sh))', listed)) | {'faults.py'}
    return {name: code_lines(os.path.join(ROOT, 'tools', name))
            for name in sorted(names) if os.path.exists(os.path.join(ROOT, 'tools', name))}


def main():
    source, tests, tools = count_tree('src'), count_tree('tests'), test_tools()
    print(f"{'folder':14} {'source':>7} {'tests':>7} {'ratio':>6}")
    for folder in sorted(set(source) | set(tests)):
        ratio = f"{100 * tests[folder] / source[folder]:5.0f}%" if source[folder] else ''
        print(f"{folder:14} {source[folder]:7} {tests[folder]:7} {ratio:>6}")
    s, t, k = sum(source.values()), sum(tests.values()), sum(tools.values())
    print(f"{'test tools':14} {'':7} {k:7}   ({', '.join(tools)})")
    print(f"{'total':14} {s:7} {t + k:7} {100 * (t + k) / s:5.1f}%  (tests alone {100 * t / s:.1f}%)")


if __name__ == '__main__':
    sys.exit(main())
