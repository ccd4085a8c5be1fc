"""End to end through AT-SPI: lumidate is handed one photo, the day count
calculator is opened from the Tools menu, and its result reads "0 days"
(both dates start at today). A screen reader finds the two date pickers by
their names, the result through its text.

usage: calculator_test.py LUMIDATE PHOTO
"""

import sys

import pyatspi

import atspi_driver as d


def drive(app):
    app.frame(".jpg")  # the photo's window, which has the menu bar
    d.run_menu(app, "Tools", "Day Count Calculator")
    calculator = app.frame("Day Count Calculator")
    for name in ("First date", "Second date"):
        d.wait_until(f"the picker '{name}'",
                     lambda name=name: pyatspi.findDescendant(calculator, lambda n: d.plain(n.name) == name))
    # A label's text reaches the screen reader as its name.
    result = d.wait_until("the result label", lambda: pyatspi.findDescendant(
        calculator, lambda n: n.getRole() == pyatspi.ROLE_LABEL and "day" in (n.name or "")))
    if result.name != "0 days":
        raise d.DriverError(f"the result reads '{result.name}'")
    d.quit_app(app)


def main(lumidate, source):
    d.run_on_copy(lumidate, source, drive, "the day count calculator opened from the menu reads '0 days'")


if __name__ == "__main__":
    main(*sys.argv[1:3])
