"""End to end through AT-SPI: lumidate is handed one photo, View > Show
Information opens the inspector, and the cells of its table are read through
the accessibility tree: the "GPS" heading and the DateTimeOriginal value.
The menu item then reads "Hide Information"; choosing it hides the window.

usage: inspector_test.py LUMIDATE PHOTO
"""

import sys

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
    d.quit_app(app)


def main(lumidate, source):
    d.run_on_copy(lumidate, source, drive, "the inspector's cells read through AT-SPI")


if __name__ == "__main__":
    main(*sys.argv[1:3])
