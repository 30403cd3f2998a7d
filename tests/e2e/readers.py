#!/usr/bin/python3
"""Asks what a screen reader is told, over AT-SPI, of every window of the program.

LEVORA_BIN is the folder of the programs. Fails with a line for each control without a name that a person
understands, and for each cell that does not tell its row, its column and its value.
"""
import os
import re
import subprocess
import sys
import tempfile
import time

if "LEVORA_OWN_BUS" not in os.environ:  # a bus that no other program of this machine is on
    try:
        import pyatspi  # noqa: F401
        os.execvpe("dbus-run-session", ["dbus-run-session", "--", *sys.argv], {**os.environ, "LEVORA_OWN_BUS": "1"})
    except (ImportError, FileNotFoundError) as missing:
        print("skipped:", missing)
        sys.exit(77)

import pyatspi

PATIENCE = 15  # seconds until a thing counts as not coming
VARIABLE = re.compile(r"(txt|cbo|cmd|btn|spr|msk|fr|lbl|lst|chk|opt|tab)[A-Z0-9]|\w+_\w+$")
ROLES = {"push button", "text", "combo box", "check box", "radio button", "table", "tree", "table cell", "page tab",
         "page tab list", "list item", "spin button"}
PANELS = {"filler", "panel", "list"}  # a tab widget, the pages of a preview, the inside of a combo box
# What is pressed, and a part of the title of the window that is then in front.
ROUND = [(None, "Wealth Tax Computation"), ("Assets", "Details of Wealth Tax"), ("Business Asset", "Business Assets"),
         ("Ok", "Details of Wealth Tax"), ("Ok", "Wealth Tax Computation"), ("Deemed Assets", "Deemed Asset"),
         ("Cancel", "Wealth Tax Computation"), ("Exempted Assets", "Asset Exempt"),
         ("Cancel", "Wealth Tax Computation"), ("Statement of Wealth Tax", "Statement of Wealth Tax"),
         ("alt+F4", "Wealth Tax Computation"), ("Challan", "Challan"), ("Print", "Print"), ("Cancel", "Challan"),
         ("alt+F4", "Wealth Tax Computation"), ("Wealth Tax Return", "A.Y."),
         ("Check With Validator", "Check of the return"), ("Close", "A.Y.")]


def children(node):
    return [child for child in (node.getChildAtIndex(at) for at in range(node.childCount)) if child]


def has(node, state):
    return node.getState().contains(state)


def words(text):
    return " ".join(text.split())


def name_of(node):
    """A control's own name, or for a list that is named by its value, that of its label."""
    labels = [relation.getTarget(0).name for relation in node.getRelationSet()
              if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY]
    return words(labels[0] if node.getRoleName() == "combo box" and labels else node.name)


def controls(node):
    """All that can take the focus; of a table each label, and the cells of its first rows."""
    if has(node, pyatspi.STATE_FOCUSABLE):
        yield node
    role = node.getRoleName()
    if role == "table":
        table = node.queryTable()
        for row in range(min(table.nRows, 31)):
            for column in range(table.nColumns if row < 2 else min(table.nColumns, 2)):
                yield table.getAccessibleAt(row, column)
    elif role not in ("combo box", "tree"):
        for child in children(node):
            yield from controls(child)


def faults(window):
    shown = set()
    for node in controls(window):
        role, name = node.getRoleName(), name_of(node)
        place = f"{window.name}: {role} \"{name}\""
        if role == "table cell":
            if not re.match(r".*\S, [^ :][^:]*:", name):
                yield f"{place} does not tell row, column and value"
            continue
        if role not in ROLES | PANELS:
            yield f"{place} has no role of a control"
        if role in ROLES and (not name or VARIABLE.match(name)):
            yield f"{place} has no name for a person"
        if has(node, pyatspi.STATE_SHOWING) and role in ("text", "check box", "combo box"):
            if (role, name) in shown:
                yield f"{place} stands there twice"
            shown.add((role, name))


def find(node, name):
    if node.getRoleName() == "push button" and words(node.name) == name and has(node, pyatspi.STATE_SHOWING):
        return node
    if node.getRoleName() == "table":
        return None
    return next((found for found in (find(child, name) for child in children(node)) if found), None)


def await_for(what, look):
    end = time.time() + PATIENCE
    while time.time() < end:
        try:
            if seen := look():
                return seen
        except Exception:  # a window that is just going away
            pass
        time.sleep(0.05)
    sys.exit(f"not seen: {what}")


def main():
    programs = os.environ["LEVORA_BIN"]
    folder = tempfile.mkdtemp(dir=os.environ["HOME"])
    for act in ("create", "sample"):
        subprocess.run([f"{programs}/levora-wealth-data", act, folder], check=True, stdout=subprocess.DEVNULL)
    program = subprocess.Popen([f"{programs}/levora-wealth-tax", "--settings", f"{folder}/settings.toml", "--data",
                                folder, "2014-2015", "101", "Individual", "x", "0"],
                               env={**os.environ, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"})

    def front(title):
        for application in pyatspi.Registry.getDesktop(0):
            for window in children(application) if application else []:
                if has(window, pyatspi.STATE_ACTIVE) and title in window.name:
                    return window
        return None

    def pressed_away(key, leaving):
        """The window manager now and then loses a key that comes as soon as a window is there."""
        subprocess.run(["xdotool", "key", key], check=True)
        end = time.time() + PATIENCE / 5
        while time.time() < end:
            if not front(leaving):
                return True
            time.sleep(0.05)
        return False

    told, window = {}, None
    try:
        for press, title in ROUND:
            if press and "+" in press:
                leaving = window.name
                await_for(f"the end of {leaving}", lambda: pressed_away(press, leaving))
            elif press:
                await_for(press, lambda: find(window, press)).queryAction().doAction(0)
            window = await_for(f"{title} after {press}", lambda: front(title))
            told.update(dict.fromkeys(faults(window)))
    finally:
        program.kill()
        program.wait()
    print("\n".join(told) or "every control tells its name")
    return 1 if told else 0


if __name__ == "__main__":
    sys.exit(main())
