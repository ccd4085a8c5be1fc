"""Drives a Qt program through AT-SPI, the way a screen reader or an
automation tool sees it: controls are found by role and accessible name,
buttons and menu items are pressed through their actions, numbers are set
through the value interface.

Runs with the system python (/usr/bin/python3, which has pyatspi) on a
private X server and session bus: see run-atspi. Every wait polls the
accessibility tree until a condition holds or a deadline passes; the
deadline makes a hung program a failure instead of a stuck test.
"""

import os
import shutil
import subprocess
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402
import pyatspi  # noqa: E402

DEFAULT_TIMEOUT = 20.0
POLL_INTERVAL = 0.05


class DriverError(AssertionError):
    pass


def wait_until(what, probe, timeout=DEFAULT_TIMEOUT):
    """Polls probe() until it returns something true and returns that."""
    deadline = time.monotonic() + timeout
    while True:
        try:
            value = probe()
        except DriverError:
            raise
        except Exception:  # a node can vanish while it is read
            value = None
        if value:
            return value
        if time.monotonic() > deadline:
            raise DriverError(f"timed out after {timeout:.0f} s waiting for {what}")
        time.sleep(POLL_INTERVAL)


def plain(label):
    """A label without its '&' mnemonic marks, as the user reads it."""
    return (label or "").replace("&&", "\0").replace("&", "").replace("\0", "&")


def accessibility_environment(extra=None):
    env = dict(os.environ)
    env.update(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_ACCESSIBILITY="1")
    env.pop("QT_QPA_PLATFORM", None)  # AT-SPI needs the xcb platform
    env.update(extra or {})
    return env


class App:
    """A started program and its accessible application node."""

    def __init__(self, argv, env=None, timeout=DEFAULT_TIMEOUT):
        self.process = subprocess.Popen(
            argv, env=accessibility_environment(env), stdout=subprocess.PIPE, text=True
        )
        self.root = wait_until(f"{os.path.basename(argv[0])} on the bus", self._find_root, timeout)

    def _find_root(self):
        if self.process.poll() is not None:
            raise DriverError(f"the program ended early with {self.process.returncode}")
        for node in pyatspi.Registry.getDesktop(0):
            if node is not None and node.get_process_id() == self.process.pid:
                return node
        return None

    def find(self, role, name, within=None, timeout=DEFAULT_TIMEOUT, showing=True):
        """The first control of the role whose name (without '&') is name."""
        def probe():
            return find_now(within or self.root, role, name, showing)
        return wait_until(f"{role_name(role)} '{name}'", probe, timeout)

    def frame(self, title_part, timeout=DEFAULT_TIMEOUT):
        """A top-level window whose title contains title_part."""
        def probe():
            for node in self.root:
                if node is not None and title_part in (node.name or ""):
                    return node
            return None
        return wait_until(f"a window titled like '{title_part}'", probe, timeout)

    def wait_exit(self, timeout=DEFAULT_TIMEOUT):
        try:
            return self.process.wait(timeout=timeout)
        except subprocess.TimeoutExpired:
            raise DriverError("the program did not quit")

    def kill(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()


def start_private(argv, work):
    """Starts argv as an App with a home and runtime folder of its own under
    work: fresh settings, and no other running lumidate takes the files over."""
    home = os.path.join(work, "home")
    runtime = os.path.join(work, "runtime")
    os.makedirs(home)
    os.makedirs(runtime, mode=0o700)
    return App(argv, env={"HOME": home, "XDG_CONFIG_HOME": os.path.join(home, ".config"),
                          "XDG_RUNTIME_DIR": runtime})


def quit_app(app):
    """File > Quit, then the program must end cleanly."""
    run_menu(app, "File", "Quit")
    if app.wait_exit() != 0:
        raise DriverError(f"lumidate exited with {app.process.returncode}")


def run_on_copy(lumidate, source, drive, done):
    """Starts lumidate privately on a copy of the photo source, runs
    drive(app), and prints done with the time it took."""
    started = time.monotonic()
    work = tempfile.mkdtemp(prefix="lumidate-atspi-")
    try:
        photo = os.path.join(work, os.path.basename(source))
        shutil.copyfile(source, photo)
        app = start_private([lumidate, photo], work)
        try:
            drive(app)
        finally:
            app.kill()
    finally:
        shutil.rmtree(work, ignore_errors=True)
    print(f"{done}: OK ({time.monotonic() - started:.1f} s)")


def role_name(role):
    return str(role).split("ROLE_")[-1].lower().replace("_", " ")


def find_now(root, role, name, showing=True):
    """Depth-first search of root's subtree, without waiting."""
    def matches(node):
        if node.getRole() != role:
            return False
        if showing and not node.getState().contains(pyatspi.STATE_SHOWING):
            return False
        return (name is None or plain(node.name) == name or labelled_by(node) == name
                or plain(node.description) == name)
    return pyatspi.findDescendant(root, matches)


def labelled_by(node):
    """The text of the label that names node (a label with a buddy), or None.

    Qt on Linux reports a combo box's current text as its name, so a combo
    box is found through the label that points at it."""
    for relation in node.getRelationSet():
        if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY and relation.getNTargets():
            return plain(relation.getTarget(0).name).rstrip(":").strip()
    return None


def do_action(node, *names):
    """Runs the first of the named actions the node offers."""
    action = node.queryAction()
    offered = [action.getName(i) for i in range(action.nActions)]
    for wanted in names:
        if wanted in offered:
            action.doAction(offered.index(wanted))
            return
    raise DriverError(f"'{node.name}' offers {offered}, none of {names}")


def is_enabled(node):
    state = node.getState()
    return state.contains(pyatspi.STATE_ENABLED) and state.contains(pyatspi.STATE_SENSITIVE)


def press(node):
    """Presses a button or a menu item once it is enabled."""
    wait_until(f"'{plain(node.name)}' to be enabled", lambda: is_enabled(node))
    do_action(node, "Press", "press", "click")


def click_center(node):
    """A real mouse click on the middle of node (for what has no action)."""
    ext = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    Atspi.generate_mouse_event(ext.x + ext.width // 2, ext.y + ext.height // 2, "b1c")


def find_combo(app, name, items, within=None):
    """The combo box named name (through its label or description) or, when
    the window gives it no label, the one whose list holds exactly items."""
    def probe():
        root = within or app.root
        named = find_now(root, pyatspi.ROLE_COMBO_BOX, name)
        if named:
            return named
        def holds_items(node):
            if node.getRole() != pyatspi.ROLE_COMBO_BOX:
                return False
            listed = pyatspi.findAllDescendants(node, lambda n: n.getRole() == pyatspi.ROLE_LIST_ITEM)
            return [plain(n.name) for n in listed] == list(items)
        return pyatspi.findDescendant(root, holds_items)
    return wait_until(f"combo box '{name}'", probe)


def choose_in_combo(combo, item_name):
    """Opens the combo's list and clicks the item, as a user does; a combo
    box offers no action that picks an item by itself."""
    do_action(combo, "Press", "ShowMenu")
    item = wait_until(
        f"item '{item_name}' in the open list",
        lambda: find_now(combo, pyatspi.ROLE_LIST_ITEM, item_name, showing=True),
    )
    click_center(item)
    wait_until(f"the combo box to show '{item_name}'", lambda: combo.name == item_name)


def set_number(spin, value):
    spin.queryValue().currentValue = float(value)
    wait_until(
        f"'{spin.name}' to read {value}",
        lambda: spin.queryText().getText(0, -1).strip() == str(value),
    )


def menu_item(app, menu_title, item_title):
    """The item of a menu bar menu, found without opening the menu."""
    menu = app.find(pyatspi.ROLE_MENU_ITEM, menu_title, showing=False)
    return wait_until(
        f"menu item {menu_title} > {item_title}",
        lambda: find_now(menu, pyatspi.ROLE_MENU_ITEM, item_title, showing=False),
    )


def run_menu(app, menu_title, item_title):
    press(menu_item(app, menu_title, item_title))
