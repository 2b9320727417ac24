# SPDX-License-Identifier: MIT
"""Starts the program and walks through its windows over AT-SPI; see walk."""

import os
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 15  # seconds, for what takes a fraction of one
MISSED = 75  # exit status: the windows were never seen, or changed under the walk
QUIET = 0.15  # seconds without anything new, before a window counts as drawn

WINDOWS = {Atspi.Role.FRAME, Atspi.Role.DIALOG, Atspi.Role.WINDOW}
CONTROLS = {
    Atspi.Role.PUSH_BUTTON, Atspi.Role.TOGGLE_BUTTON, Atspi.Role.CHECK_BOX, Atspi.Role.RADIO_BUTTON,
    Atspi.Role.COMBO_BOX, Atspi.Role.TEXT, Atspi.Role.ENTRY, Atspi.Role.PASSWORD_TEXT, Atspi.Role.SPIN_BUTTON,
    Atspi.Role.LIST, Atspi.Role.LIST_ITEM, Atspi.Role.PAGE_TAB, Atspi.Role.TREE, Atspi.Role.MENU_ITEM,
    Atspi.Role.CHECK_MENU_ITEM, Atspi.Role.SLIDER,
}
# These keep the keyboard's place for the widget around them.
PARTS = {Atspi.Role.LIST_ITEM, Atspi.Role.MENU_ITEM, Atspi.Role.CHECK_MENU_ITEM, Atspi.Role.PAGE_TAB}
BUTTONS = {Atspi.Role.PUSH_BUTTON, Atspi.Role.TOGGLE_BUTTON}
# The test panel of the simulated modem is not the product.
NOT_OURS = {"ModemPanel", "Simulated modem"}

faults = []


def wait_for(what, condition):
    """The first true answer of the condition."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            answer = condition()
        except GLib.Error:  # what was there a moment ago is gone
            answer = None
        if answer:
            return answer
        handle_events(0.03)
    sys.exit(f"tests/access: {what} did not come")


def handle_events(seconds):
    context = GLib.MainContext.default()
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if not context.iteration(False):
            time.sleep(0.005)


def has(item, state):
    return item.get_state_set().contains(state)


def children(item):
    return [child for i in range(item.get_child_count()) if (child := item.get_child_at_index(i))]


def walk(item):
    """The item and all below it that can be seen; not the simulated modem's panel."""
    if item.get_name() in NOT_OURS:
        return
    yield item
    for child in children(item):
        if has(child, Atspi.StateType.SHOWING) or child.get_role() in WINDOWS:
            yield from walk(child)


def program():
    desktop = Atspi.get_desktop(0)
    return next((child for child in children(desktop) if child.get_name() == "orbisdial"), None)


def window(title):
    return next((item for item in children(program()) if item.get_name().startswith(title)), None)


def told(item):
    return f"{item.get_role_name()} \"{item.get_name()}\""


def check(title):
    """A window, in which nothing lacks a name and no disabled button a reason."""
    controls, found = wait_for(f"a look at {title}", lambda: look(title))
    faults.extend(found)
    return controls


def look(title):
    """The controls of a window, and what is wrong with them."""
    found = []
    top = window(title)
    if top.get_role() not in WINDOWS:
        found.append(f"{title}: is no window but a {top.get_role_name()}")
    controls = [item for item in walk(top) if item.get_role() in CONTROLS]
    if len(controls) < 5:
        found.append(f"{title}: only {len(controls)} controls were found")
    for item in controls:
        if not item.get_name():
            parents = told(item.get_parent())
            found.append(f"{title}: a {item.get_role_name()} in {parents} has no name")
        is_dead = item.get_role() in BUTTONS and not has(item, Atspi.StateType.ENABLED)
        if is_dead and not item.get_description():
            found.append(f"{title}: {told(item)} does not say why it is disabled")
    return controls, found


def press(keys):
    subprocess.run(["xdotool", "key", "--clearmodifiers", keys], check=True)


def focused(top):
    return next((item for item in walk(top)
                 if has(item, Atspi.StateType.FOCUSED) and item.get_role() in CONTROLS - PARTS), None)


def path(item):
    """Tells widgets apart that are called alike."""
    places = []
    while item and item.get_role() != Atspi.Role.APPLICATION:
        places.append(item.get_index_in_parent())
        item = item.get_parent()
    return tuple(places)


def tab_through(title, controls):
    """Every control that takes the keyboard is reached with the tabulator; a group's radio buttons count as one."""
    top = window(title)
    wanted = {path(item): told(item) for item in controls
              if has(item, Atspi.StateType.FOCUSABLE) and has(item, Atspi.StateType.ENABLED)
              and item.get_role() not in PARTS | {Atspi.Role.RADIO_BUTTON}
              and item.get_parent().get_role() != Atspi.Role.COMBO_BOX}
    reached = set()
    for _ in range(4 * len(wanted) + 20):
        item = focused(top)
        if item:
            reached.add(path(item))
        if wanted.keys() <= reached:
            return
        press("Tab")
        handle_events(0.04)
    for key in wanted.keys() - reached:
        faults.append(f"{title}: the tabulator does not come to {wanted[key]}")


def check_announcement():
    """What happens to the connection is told without being asked for."""
    said = []
    listener = Atspi.EventListener.new(lambda event: said.append(event.source.get_name()))
    listener.register("object:property-change:accessible-name")
    press("ctrl+Return")
    wait_for("the news of a connection", lambda: any(name.startswith("Connected with") for name in said))
    listener.deregister("object:property-change:accessible-name")


def activate(title):
    subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--name", f"^{title}", "windowfocus", "--sync"],
                   check=True, timeout=PATIENCE, stdout=subprocess.DEVNULL)
    wait_for(f"the keyboard in {title}", lambda: has(window(title), Atspi.StateType.ACTIVE))


def await_program():
    """The toolkit tells of itself a moment before it answers for its windows: who asks in between never sees them."""
    try:
        wait_for("the window", lambda: program() and window("OrbisDial"))
    except SystemExit as miss:
        print(miss, file=sys.stderr)
        sys.exit(MISSED)


def main(executable, folder):
    environment = dict(os.environ, ORBISDIAL_DEVICE="simulated", ORBISDIAL_DATA_DIR=f"{folder}/data",
                       ORBISDIAL_CONFIG_DIR=f"{folder}/config", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
    with subprocess.Popen([executable], env=environment) as process:
        try:
            await_program()
            activate("OrbisDial")
            wait_for("a modem", lambda: any(item.get_name() == "Connect" and has(item, Atspi.StateType.ENABLED)
                                            for item in walk(window("OrbisDial"))))
            tab_through("OrbisDial", check("OrbisDial"))
            press("ctrl+comma")
            wait_for("the settings", lambda: window("Settings"))
            activate("Settings")
            handle_events(QUIET)
            tab_through("Settings", check("Settings"))
            press("Escape")
            activate("OrbisDial")
            check_announcement()
        except GLib.Error as change:  # what was there a moment ago is gone
            print(f"tests/access: {change}", file=sys.stderr)
            sys.exit(MISSED)
        finally:
            process.terminate()


main(*sys.argv[1:])
print("\n".join(faults))
sys.exit(1 if faults else 0)
