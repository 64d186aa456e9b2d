#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The layers of src/, from the bottom up, and a check that nothing reaches up.

A file may include headers of its own folder and of the folders in the layers below its own;
folders of one layer may not include each other (so that no cycle can form between them).
Qt headers are allowed from the layer that first uses that Qt module on.  Built programs are
checked too: the command-line programs and the build's tools must not link Qt Widgets.

Usage: layers_check.py SRC_DIR [BINARY...]        (exit 1 and one line per fault)
       layers_check.py --self-test
"""
import os
import re
import subprocess
import sys

# Bottom first.  Each entry: the folders of one layer, and the Qt modules it may use.
LAYERS = [
    (["text"], set()),
    (["astro"], set()),
    (["calendar", "model"], set()),
    (["viewrules"], set()),
    # What both command lines share (arguments, day rows and their formats) is plain C++ too.
    (["cli/common"], set()),
    (["db"], {"QtCore", "QtSql"}),
    (["logdb"], {"QtCore", "QtSql"}),
    (["pages"], {"QtCore", "QtSql", "QtGui"}),
    # QtDBus: the desktop's notification service; QtNetwork: the local channel on which a second
    # start reaches the running copy.
    (["platform"], {"QtCore", "QtGui", "QtDBus", "QtNetwork"}),
    (["ui/common"], {"QtCore", "QtSql", "QtGui", "QtWidgets", "QtPrintSupport"}),
    (["ui/views", "ui/log", "ui/locations"],
     {"QtCore", "QtSql", "QtGui", "QtWidgets", "QtPrintSupport", "QtCharts"}),
    (["ui/calendar"], {"QtCore", "QtSql", "QtGui", "QtWidgets", "QtPrintSupport", "QtCharts"}),
    (["app", "cli/forecast", "cli/log", "tools"],
     {"QtCore", "QtSql", "QtGui", "QtWidgets", "QtPrintSupport", "QtCharts"}),
]

# The Qt classes each module's headers hold, by the prefix or name that tells them apart;
# a class not listed here is looked up in the Qt include folders.
QT_INCLUDE_ROOTS = ["/usr/include/x86_64-linux-gnu/qt6", "/usr/include/qt6",
                    "/usr/include/aarch64-linux-gnu/qt6"]

# Programs that must not link widgets, by file name.
HEADLESS = {"quillmere-forecast", "quillmere-log", "encdbgen"}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.M)


def layer_of(folder):
    for rank, (folders, qt) in enumerate(LAYERS):
        if folder in folders:
            return rank, qt
    return None, None


def folder_of(relpath):
    """The layer folder of a path below src/ ("ui/log/frmtable1.cpp" -> "ui/log")."""
    parts = relpath.split("/")
    for depth in (2, 1):
        candidate = "/".join(parts[:depth])
        if len(parts) > depth and layer_of(candidate)[0] is not None:
            return candidate
    return None


def qt_module(header, cache={}):
    """The Qt module whose include folder holds the header, or None."""
    if header not in cache:
        folders = [os.path.join(root, m) for root in QT_INCLUDE_ROOTS if os.path.isdir(root)
                   for m in sorted(os.listdir(root))]
        cache[header] = next((os.path.basename(f) for f in folders
                              if os.path.isfile(os.path.join(f, header))), None)
    return cache[header]


def check_source(src):
    faults = []
    for dirpath, _, files in os.walk(src):
        for name in sorted(n for n in files if n.endswith((".cpp", ".h"))):
            rel = os.path.relpath(os.path.join(dirpath, name), src)
            folder = folder_of(rel)
            if folder is None:
                faults.append(f"{rel}: its folder is in no layer")
                continue
            rank, allowed_qt = layer_of(folder)
            with open(os.path.join(src, rel), encoding="utf-8") as f:
                faults += check_includes(rel, folder, rank, allowed_qt, f.read())
    return faults


def check_includes(rel, folder, rank, allowed_qt, text):
    faults = []
    for kind, header in INCLUDE.findall(text):
        if kind == '"':
            other = folder_of(header)
            if other is None:
                faults.append(f"{rel}: includes {header}, which is in no layer")
                continue
            other_rank, _ = layer_of(other)
            if other != folder and other_rank >= rank:
                faults.append(f"{rel}: {folder} includes {header} of {other}, a layer "
                              f"{'above' if other_rank > rank else 'beside'} it")
        elif header.startswith("Q") and "/" not in header and "." not in header:
            module = qt_module(header)
            if module is not None and module not in allowed_qt:
                faults.append(f"{rel}: {folder} includes <{header}> of {module}, "
                              "which its layer does not use")
    return faults


def check_binaries(binaries):
    faults = []
    for binary in binaries:
        name = os.path.basename(binary)
        if name not in HEADLESS:
            continue
        libs = subprocess.run(["ldd", binary], capture_output=True, text=True).stdout
        if "libQt6Widgets" in libs or "libQt6Charts" in libs:
            faults.append(f"{name}: links Qt Widgets, which a command-line program or a "
                          "build tool must not")
    return faults


def self_test():
    assert check_includes("astro/sun.cpp", "astro", 1, set(), '#include "calendar/calendar.h"')
    assert not check_includes("calendar/x.cpp", "calendar", 2, set(), '#include "astro/sun.h"')
    assert check_includes("model/x.cpp", "model", 2, set(), '#include "calendar/calendar.h"')
    assert check_includes("ui/log/x.cpp", "ui/log", 10, set(), '#include "ui/views/daygraph.h"')
    assert not check_includes("ui/log/x.cpp", "ui/log", 10, set(), '#include "ui/common/x.h"')
    assert folder_of("ui/log/frmtable1.cpp") == "ui/log"
    assert folder_of("astro/sun.cpp") == "astro"
    if qt_module("QWidget"):
        assert check_includes("logdb/x.cpp", "logdb", 6, {"QtCore"}, "#include <QWidget>")
        assert not check_includes("ui/log/x.cpp", "ui/log", 10, {"QtWidgets"},
                                  "#include <QWidget>")
    print("layers_check: self-test passed")


def main(argv):
    if argv[1:] == ["--self-test"]:
        self_test()
        return 0
    if len(argv) < 2:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    faults = check_source(argv[1]) + check_binaries(argv[2:])
    for fault in faults:
        print(fault)
    print(f"layers_check: {len(faults)} fault(s)")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
