"""What a screen reader finds in the running program, and what it can do there."""

import itertools
import subprocess
import sys
import time

import pyatspi
from gi.repository import GLib

PATIENCE = 60  # seconds; the machine may have much else to do
pyatspi.setTimeout(5000, -1)


def wait_for(what, found):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            value = found()
        except (LookupError, RuntimeError):
            value = None
        if value:
            return value
        GLib.MainContext.default().iteration(False)
        time.sleep(0.05)
    sys.exit(f"accessibility: {what}")


def tree(node):
    yield node
    for child in node:
        if child is not None:
            yield from tree(child)


def everything():
    return [node for app in pyatspi.Registry.getDesktop(0)
            if app is not None and app.name == "Fundlet" for node in tree(app)]


def find(role, name):
    roles = (role, role.removeprefix("push "))  # newer releases of AT-SPI know buttons only
    return [node for node in everything() if node.getRoleName() in roles and node.name == name]


def the(role, name):
    return wait_for(f"there is no {role} {name}", lambda: find(role, name))[0]


def text_of(node):
    return node.queryText().getText(0, -1)


def act(node):
    actions = node.queryAction()
    names = [actions.getName(i) for i in range(actions.nActions)]
    assert "Press" in names, f"{node.name} offers {names} and no press"
    pyatspi.setTimeout(200, -1)
    try:
        actions.doAction(names.index("Press"))
    except RuntimeError:
        pass  # no answer before the dialog that it opens has been closed
    pyatspi.setTimeout(5000, -1)


def result():
    return [n.name for n in everything() if n.name.startswith("Initial Year Draw:")]


wait_for("the program is not there", lambda: "Initial Year Draw:  $0" in result())

# Not before: Qt misses a listener that registers while the program starts.
changed, gained, selected = [], [], []
pyatspi.Registry.registerEventListener(lambda event: changed.append(event.any_data),
                                       "object:text-changed:insert", "object:text-changed:delete")
pyatspi.Registry.registerEventListener(lambda event: event.detail1 and gained.append(event.source),
                                       "object:state-changed:focused", "object:state-changed:sensitive")
pyatspi.Registry.registerEventListener(lambda event: selected.append(event.source),
                                       "object:text-selection-changed")

fields = [node for node in everything() if node.getState().contains(pyatspi.STATE_EDITABLE)]
assert len(fields) == len({n.name for n in fields if n.description and text_of(n)}) == 8, \
    "not eight fields with names of their own, descriptions and texts"
assert len([node for node in everything() if node.getRoleName() == "separator"
            and node.parent.getRoleName() == "filler"]) == 2, "not two rules"
for node in everything():
    index = node.getIndexInParent()
    assert node.parent is None or list(node.parent).index(node) == index, f"{node} at {index}"
the("popup menu", "Edit")

year = the("text", "Start with 1 Jan:")
years = itertools.count(1990)


def tells_of_change():
    year.queryEditableText().setTextContents(str(next(years)))
    return changed


# The program learns only some time later that somebody listens.
wait_for("the program does not tell of a changed text", tells_of_change)

year.queryEditableText().setTextContents("206")
wait_for("the program does not tell of the whole change", lambda: changed[-1] == "206")
changed.clear()
subprocess.run(["xdotool", "key", "Home", "Right", "Right", "2"], check=True)
wait_for("a typed digit is not told of alone", lambda: changed == ["2"])
selected.clear()
subprocess.run(["xdotool", "key", "shift+Home"], check=True)
wait_for("a selection is not told of", lambda: year in selected)

# Another window comes and goes.
with subprocess.Popen(sys.argv[1]) as other:
    wait_for("the other window is not active",
             lambda: not year.getState().contains(pyatspi.STATE_FOCUSED))
    gained.clear()
    other.terminate()
wait_for("no focus is told of after the window has become active again",
         lambda: year in gained)

calculate = the("push button", "Calculate Annual Draw")
assert calculate.description.startswith("Click this button")
act(calculate)
wait_for("the result", lambda: "Initial Year Draw:  $73,325" in result())
save = the("push button", "Save Schedule")
wait_for("it is not told of that a button is no longer dimmed", lambda: save in gained)

act(the("menu item", "Fundlet Help…"))
page = the("text", "Fundlet Help")
assert text_of(page).startswith("Fundlet\nVersion ")
act(the("push button", "Close"))
wait_for("the help is not closed", lambda: not page.getState().contains(pyatspi.STATE_SHOWING))

the("text", "Age on 1 Jan:").queryEditableText().setTextContents("40")
act(calculate)
message = "Age must be at least 52 years old."
wait_for("the alert cannot be read", lambda: find("label", message) or find("alert", message))
act(the("push button", "OK"))
wait_for("the forced age", lambda: text_of(the("text", "Age on 1 Jan:")) == "52")
act(the("menu item", "when 1/2 survive"))
wait_for("the menu command", lambda: text_of(the("text", "Life Expectancy:")) == "28")
act(the("menu item", "Quit"))
