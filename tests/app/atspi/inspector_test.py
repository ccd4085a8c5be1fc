"""End to end through AT-SPI: lumidate is handed one photo, View > Show
Information opens the inspector, and the cells of its table are read through
the accessibility tree: the "GPS" heading and the DateTimeOriginal value.
The menu item then reads "Hide Information"; choosing it hides the window.

usage: inspector_test.py LUMIDATE PHOTO
"""

import os
import shutil
import sys
import tempfile
import time

import pyatspi

import atspi_driver as d

DATE_TIME_ORIGINAL = "2022:07:21 10:42:05"  # samples/gps-summit.jpg


def cell(app, window, text):
    return app.find(pyatspi.ROLE_TABLE_CELL, text, within=window, showing=False)


def drive(app):
    app.frame(".jpg")
    d.run_menu(app, "View", "Show Information")
    info = app.frame("Information")
    cell(app, info, "GPS")
    cell(app, info, DATE_TIME_ORIGINAL)
    hide = d.menu_item(app, "View", "Hide Information")
    d.press(hide)
    d.wait_until("the inspector to hide",
                 lambda: not info.getState().contains(pyatspi.STATE_SHOWING)
                 or not info.getState().contains(pyatspi.STATE_VISIBLE))
    d.menu_item(app, "View", "Show Information")
    d.run_menu(app, "File", "Quit")
    if app.wait_exit() != 0:
        raise d.DriverError(f"lumidate exited with {app.process.returncode}")


def main(lumidate, source):
    started = time.monotonic()
    work = tempfile.mkdtemp(prefix="lumidate-atspi-")
    try:
        photo = os.path.join(work, os.path.basename(source))
        shutil.copyfile(source, photo)
        app = d.start_private([lumidate, photo], work)
        try:
            drive(app)
        finally:
            app.kill()
    finally:
        shutil.rmtree(work, ignore_errors=True)
    print(f"the inspector's cells read through AT-SPI: OK ({time.monotonic() - started:.1f} s)")


if __name__ == "__main__":
    main(*sys.argv[1:3])
